"""The logo: the name in tubes that run through all colours and rise to the right, its last letter gone dim.

The dim letter and the lit one that flickers over it come from the same drawing, so they fit to the pixel.
"""

from lettering import GLYPHS, placed
from neon import WHITE, box, document, stroke

WIDTH, HEIGHT = 586, 205
# Where the flickering letter's picture is in the logo, and its size.
CUT_LEFT, CUT_TOP, CUT_WIDTH, CUT_HEIGHT = 498, 1, 84, 87

# Letter, left edge, baseline before the skew, scale, colour. The letters shrink as they rise, and follow the rainbow.
RISE = -11.5  # degrees
BASELINE = 181.5
LETTERS = "PRISMFALL"
FIRST_LEFT, LAST_LEFT = 27.0, 517.0
TUBE_WEIGHT = 1.25  # of the scale
FIRST_SCALE, LAST_SCALE = 9.2, 6.3
# Added to the even gap before each letter: open shapes are set closer.
OPTICAL = (0, -1, 2, 2, 0, 4, -13, 0, 4)
SPECTRUM = ("#a44dff", "#6a5cff", "#2f86ff", "#14bdf5", "#14cf8f", "#8edb2e", "#f4d52c", "#ff9326", "#ff4236")
UNLIT = ("#551c1d", "#8a3534", "#cf8f88")


def letter_places():
    """Left edge and scale of every letter."""
    last = len(LETTERS) - 1
    scales = [FIRST_SCALE + (LAST_SCALE - FIRST_SCALE) * i / last for i in range(last + 1)]
    widths = [GLYPHS[letter][0] * scale for letter, scale in zip(LETTERS, scales)]
    gap = (LAST_LEFT - FIRST_LEFT - sum(widths[:-1]) - sum(OPTICAL)) / last
    x = FIRST_LEFT
    for i, width in enumerate(widths):
        yield x, scales[i]
        x += width + gap + (OPTICAL[i + 1] if i < last else 0)


def lit_tube(path, colour, weight, halo=10):
    return (stroke(path, colour, weight * 2.2, 0.5, blur=halo) + stroke(path, colour, weight * 1.5, 0.8, blur=3) +
            stroke(path, colour, weight) + stroke(path, WHITE, weight * 0.62, 0.45, blur=0.9) +
            stroke(path, WHITE, weight * 0.26, 0.95))


def unlit_tube(path, weight):
    return stroke(path, UNLIT[0], weight) + stroke(path, UNLIT[1], weight * 0.6) + stroke(path, UNLIT[2], weight * 0.14)


def rising(body):
    return f'<g transform="translate(0 {BASELINE}) skewY({RISE})">\n{body}</g>\n'


def tubes():
    """Path, weight and colour of every letter."""
    for letter, colour, (x, scale) in zip(LETTERS, SPECTRUM, letter_places()):
        yield placed(GLYPHS[letter][1], x, 0, scale), scale * TUBE_WEIGHT, colour


def logo():
    *lit, (path, weight, _) = tubes()
    body = "".join(lit_tube(path, colour, weight) for path, weight, colour in lit)
    return document(WIDTH, HEIGHT, box(0, 0, WIDTH, HEIGHT, "#000000") + rising(body + unlit_tube(path, weight)))


def last_letter():
    """The letter alone; its halo is narrow and fades towards the edges, otherwise the picture would be visible as a box."""
    *_, (path, weight, colour) = tubes()
    fading = ('<mask id="fading" maskUnits="userSpaceOnUse" x="0" y="0" width="84" height="87">'
              '<rect x="3" y="3" width="78" height="81" rx="6" fill="#ffffff" filter="url(#blur1.5)"/></mask>')
    body = rising(lit_tube(path, colour, weight, halo=4))
    moved = f'<g mask="url(#fading)"><g transform="translate({-CUT_LEFT} {-CUT_TOP})">\n{body}</g></g>\n'
    return document(CUT_WIDTH, CUT_HEIGHT, fading + moved)
