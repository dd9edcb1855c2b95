"""The emblem of the game, a prism from which the four beams fall, as picture of the About page and as program icon."""

from neon import BEAM_LIGHT, PALE, WHITE, document, glowing, gradient, rounded, stroke

# Sizes of the icon that have a simpler drawing of their own.
SMALL_SIZES = (16, 22, 24)


def about_picture():
    body = ""
    ways = ("M62 24 L78 40 L110 8 L142 40 L170 12 L186 28", "M62 24 L86 48 L126 8 L160 42 L186 16",
            "M60 36 L72 48 L112 8 L150 46 L186 10", "M64 26 L82 8 L122 48 L158 12 L186 40")
    for colour, way in zip(BEAM_LIGHT, ways):
        body += glowing(way, colour, WHITE, 2.2, 3, 0.5)
    body += glowing("M6 44 L48 30", PALE, WHITE, 2.2, 3, 0.6)
    body += prism(58, 8, 44)
    return document(195, 58, body, PRISM_DEFS)


PRISM_DEFS = gradient("prism", [(0, "#dfeaff", 0.55), (1, "#4a78e0", 0.25)])


def prism(middle, top, size):
    half = size * 0.56
    path = f"M{middle} {top} L{middle + half:.2f} {top + size:.2f} H{middle - half:.2f} Z"
    return (f'<path d="{path}" fill="#0b1430"/><path d="{path}" fill="url(#prism)"/>\n' +
            glowing(path, "#8db4ff", WHITE, 2, 3, 0.7))


def icon(size):
    """Drawn on a field of 64, simpler when it is small."""
    defs = gradient("tile", [(0, "#1a2b58", 1), (1, "#060a16", 1)])
    small = size in SMALL_SIZES
    weight = 8 if small else 5
    body = rounded(2, 2, 60, 60, 13, f'fill="url(#tile)" stroke="#5f95ff" stroke-width="{4 if small else 2.4}"')
    beams = (("M12 10 L34 32 L12 54", BEAM_LIGHT[3]), ("M52 10 L42 20 L54 32 L34 52", BEAM_LIGHT[2]))
    for way, colour in beams:
        body += glowing(way, colour, WHITE, weight, 4, 0.6)
    svg = document(64, 64, body, defs)
    return svg.replace('width="64" height="64" viewBox', f'width="{size}" height="{size}" viewBox', 1)
