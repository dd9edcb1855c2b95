"""The emblem of the game, a prism from which the beams fall, as picture of the About page and as program icon."""

from neon import BEAM_LIGHT, PALE, WHITE, document, glowing, gradient, rounded, stroke

# Sizes of the icon that have their own simpler drawing.
SMALL_SIZES = (16, 22, 24)

BLUE, GREEN, RED, YELLOW = BEAM_LIGHT
EMBLEM_DEFS = (gradient("prism", [(0, "#e8f0ff", 0.5), (0.55, "#6d97f5", 0.16), (1, "#4a78e0", 0.34)], x2=0.6) +
               gradient("tile", [(0, "#1c2f60", 1), (1, "#070c1a", 1)]))


def prism(points, weight):
    path = "M" + " L".join(f"{x} {y}" for x, y in points) + " Z"
    return (f'<path d="{path}" fill="#0a1228"/><path d="{path}" fill="url(#prism)"/>\n' +
            stroke(path, "#5f95ff", weight * 2.2, 0.6, blur=2.5) + stroke(path, "#a9c8ff", weight) +
            stroke(path, WHITE, weight * 0.4, 0.9))


def about_picture():
    """White light comes in from the left and leaves the prism as four beams that bounce to the right."""
    ways = (("M60 18 L68 10 L106 48 L144 10 L182 48", RED), ("M65 26 L81 10 L119 48 L157 10 L187 40", YELLOW),
            ("M69 34 L93 10 L131 48 L169 10 L187 28", GREEN), ("M74 42 L106 10 L144 48 L182 10 L187 15", BLUE))
    light = "M4 41 L44 31"
    body = stroke(light, PALE, 5, 0.6, blur=2.5) + stroke(light, PALE, 2.4) + stroke(light, WHITE, 1.2)
    for way, colour in ways:
        body += glowing(way, colour, WHITE, 2.2, 3, 0.5)
    return document(195, 58, body + prism([(54, 7), (78, 49), (30, 49)], 2), EMBLEM_DEFS)


def icon(size):
    """Drawn on a field of 64: a prism over three falling beams, drawn broad and flat where there is little room."""
    small = size in SMALL_SIZES
    body = rounded(2, 2, 60, 60, 13, f'fill="url(#tile)" stroke="#4f86ff" stroke-width="{4 if small else 2.2}"')
    body += small_emblem() if small else large_emblem()
    svg = document(64, 64, body, EMBLEM_DEFS)
    return svg.replace('width="64" height="64" viewBox', f'width="{size}" height="{size}" viewBox', 1)


def recording():
    """A file of a recorded game: a sheet with a folded corner and the icon on it."""
    sheet = ('<path d="M10 2 H40 L54 16 V62 H10 Z" fill="#e4ecff" stroke="#6f8fd0" stroke-width="1.6" stroke-linejoin="round"/>'
             '<path d="M40 2 V16 H54 Z" fill="#b4c8f4" stroke="#6f8fd0" stroke-width="1.6" stroke-linejoin="round"/>')
    tile = rounded(2, 2, 60, 60, 13, 'fill="url(#tile)" stroke="#4f86ff" stroke-width="2.2"')
    return document(64, 64, f'{sheet}<g transform="translate(13 20) scale(0.6)">{tile}{large_emblem()}</g>', EMBLEM_DEFS)


def falling(starts, top, fall, colours):
    """The paths of beams side by side, going down to the right."""
    return [(f"M{x} {top} L{x + fall} {top + fall}", colour) for x, colour in zip(starts, colours)]


def small_emblem():
    beams = falling((15, 28, 41), 38, 14, (RED, YELLOW, "#5c9bff"))
    return ("".join(stroke(way, colour, 6.6) for way, colour in beams) +
            '<path d="M30 11 L45 36 H15 Z" fill="#cfe0ff" stroke="#ffffff" stroke-width="3" stroke-linejoin="round"/>')


def large_emblem():
    body = stroke("M6 13 L18 20", PALE, 5, 0.7, blur=2.5) + stroke("M6.5 13.5 L18 20", WHITE, 2.4)
    beams = falling((15, 25.5, 36), 34, 19.5, (RED, YELLOW, BLUE))
    body += "".join(stroke(way, colour, 9.5, 0.55, blur=3) for way, colour in beams)
    body += "".join(stroke(way, colour, 5) + stroke(way, WHITE, 1.5, 0.85) for way, colour in beams)
    return body + prism([(27, 8), (43, 34), (11, 34)], 2.4)
