"""The logo: the name in tubes that run through the spectrum and rise to the right, its last letter gone dim.

The dim letter and the lit one that flickers over it come from the same drawing, so they fit to the pixel.
"""

from lettering import GLYPHS, placed
from neon import WHITE, document, glowing, stroke

WIDTH, HEIGHT = 586, 205
# Where the flickering letter's picture lies in the logo, and its size.
CUT_LEFT, CUT_TOP, CUT_WIDTH, CUT_HEIGHT = 498, 1, 84, 87

SCALE = 7.0
RISE = -11.5  # degrees
FIRST_LEFT = 20.0
LAST_LEFT = 516.0
FIRST_BASELINE = 182.0
NAME = "PRISMFALL"
SPECTRUM = ("#b45cff", "#6f6bff", "#3f8cff", "#22c3ff", "#1fdd9a", "#9be23a", "#f6dc38", "#ff9a32", "#ff4a3c")
UNLIT, UNLIT_GLASS = "#4a1f24", "#7c3a3c"


def letter_places():
    """The left edge of every letter: even gaps from the first letter to the last."""
    widths = [GLYPHS[letter][0] * SCALE for letter in NAME]
    gap = (LAST_LEFT - FIRST_LEFT - sum(widths[:-1])) / (len(NAME) - 1)
    places = []
    x = FIRST_LEFT
    for width in widths:
        places.append(x)
        x += width + gap
    return places


def letters(lit_last):
    body = ""
    for index, (letter, x) in enumerate(zip(NAME, letter_places())):
        path = placed(GLYPHS[letter][1], x, 0, SCALE)
        is_last = index == len(NAME) - 1
        if is_last and not lit_last:
            body += stroke(path, UNLIT, 8) + stroke(path, UNLIT_GLASS, 4.5) + stroke(path, "#a86a66", 1.2)
            continue
        body += glowing(path, SPECTRUM[index], WHITE, 6.5 if not is_last else 8, 9, 0.55 if not is_last else 0.9)
    return f'<g transform="translate(0 {FIRST_BASELINE}) skewY({RISE}) translate(0 4)">\n{body}</g>\n'


def logo():
    return document(WIDTH, HEIGHT, letters(lit_last=False))


def last_letter():
    moved = f'<g transform="translate({-CUT_LEFT} {-CUT_TOP})">\n{letters(lit_last=True)}</g>\n'
    return document(CUT_WIDTH, CUT_HEIGHT, moved)
