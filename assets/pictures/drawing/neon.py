"""Light and glass: how a stroke glows, how a glass pill and a glass pane look, and the frame of an SVG file.

Everything is returned as SVG text. Blurs are asked for by name (blur3, blur1.5) and defined by `document`, so that a
picture never carries a filter that it does not use.
"""

import re

from lettering import number, text_path, text_width

# The light of the frame, from the dim glass of an unlit tube to its white-hot core.
ROOM = "#04060c"
DIM = "#33507f"
TUBE = "#2f6bff"
SOFT = "#8db4ff"
PALE = "#d4e4ff"
WHITE = "#ffffff"

# The four beams as they shine in pictures: brighter than on the playfield, in the same order.
BEAM_LIGHT = ("#3f78ff", "#16b84e", "#ff3a34", "#f2dc3c")


def document(width, height, body, defs=""):
    """A whole SVG file of the given size in pixels."""
    filters = "".join(blur_filter(name) for name in sorted(set(re.findall(r"url\(#blur([\d.]+)\)", body))))
    return (f'<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" width="{width}" '
            f'height="{height}" viewBox="0 0 {width} {height}">\n<defs>{filters}{defs}</defs>\n{body}\n</svg>\n')


def blur_filter(radius):
    """A blur that extends far enough for any picture, even one that shows part of a larger drawing."""
    return (f'<filter id="blur{radius}" filterUnits="userSpaceOnUse" x="-700" y="-700" width="2200" '
            f'height="2200" color-interpolation-filters="sRGB"><feGaussianBlur stdDeviation="{radius}"/></filter>')


def gradient(name, stops, x2=0, y2=1):
    """A linear gradient over the box that it fills; a stop is (place, colour, opacity)."""
    inner = "".join(f'<stop offset="{place}" stop-color="{colour}" stop-opacity="{opacity}"/>'
                    for place, colour, opacity in stops)
    return f'<linearGradient id="{name}" x1="0" y1="0" x2="{x2}" y2="{y2}">{inner}</linearGradient>\n'


def hatch(name, pitch, colour, opacity):
    """A calm pattern of thin lines at 45 degrees, the angle of the beams."""
    return (f'<pattern id="{name}" width="{pitch}" height="{pitch}" patternUnits="userSpaceOnUse">'
            f'<path d="M-1 1 L1 -1 M0 {pitch} L{pitch} 0 M{pitch - 1} {pitch + 1} L{pitch + 1} {pitch - 1}" '
            f'stroke="{colour}" stroke-opacity="{opacity}" stroke-width="1" fill="none"/></pattern>\n')


def stroke(path, colour, width, opacity=1.0, blur=None):
    extra = f' filter="url(#blur{blur})"' if blur else ""
    shade = f' stroke-opacity="{opacity}"' if opacity != 1.0 else ""
    return (f'<path d="{path}" fill="none" stroke="{colour}" stroke-width="{number(width)}"{shade} '
            f'stroke-linecap="round" stroke-linejoin="round"{extra}/>\n')


def glowing(path, colour, core, width, glow, halo):
    """A lit tube: a wide halo, a close glow, the coloured glass and the bright core."""
    return (stroke(path, colour, width * 2.2, halo, blur=number(glow)) +
            stroke(path, colour, width * 1.5, min(1.0, halo * 1.2), blur=number(glow / 3)) +
            stroke(path, colour, width) +
            stroke(path, core, width * 0.55))


def centred_text(text, middle, baseline, scale, tracking=0.0):
    return text_path(text, middle - text_width(text, scale, tracking) / 2, baseline, scale, tracking)


def rounded(x, y, width, height, radius, attributes):
    return (f'<rect x="{number(x)}" y="{number(y)}" width="{number(width)}" height="{number(height)}" '
            f'rx="{number(radius)}" {attributes}/>\n')


def box(x, y, width, height, colour):
    """A box on whole pixels."""
    return f'<rect x="{x}" y="{y}" width="{width}" height="{height}" fill="{colour}" shape-rendering="crispEdges"/>\n'
