"""The lettering of the game: one alphabet of single strokes with round ends, like bent neon tubes.

A glyph is a width and an SVG path along the middle of its stroke. Capitals are 10 units high, small letters 7; the
baseline is y = 0 and y grows downwards. How thick and bright a stroke is drawn is left to neon.py.
"""

import re

# Space between the strokes of neighbouring letters, and the width of a space.
LETTER_GAP = 3.0
WORD_GAP = 1.0

GLYPHS = {
    " ": (WORD_GAP, ""),
    "A": (7, "M0 0 L3.5 -10 L7 0 M1.05 -3 H5.95"),
    "B": (6, "M0 0 V-10 H3.5 A2.5 2.5 0 0 1 3.5 -5 H0 M3.5 -5 A2.5 2.5 0 0 1 3.5 0 H0"),
    "C": (7, "M7 -7 A3.5 3.5 0 0 0 0 -6.5 V-3.5 A3.5 3.5 0 0 0 7 -3"),
    "D": (7, "M0 0 V-10 H3 A4 4 0 0 1 7 -6 V-4 A4 4 0 0 1 3 0 Z"),
    "E": (6, "M6 -10 H0 V0 H6 M0 -5 H5"),
    "F": (6, "M6 -10 H0 V0 M0 -5 H5"),
    "G": (7, "M7 -7 A3.5 3.5 0 0 0 0 -6.5 V-3.5 A3.5 3.5 0 0 0 7 -3.5 V-5 H4"),
    "H": (7, "M0 0 V-10 M7 0 V-10 M0 -5 H7"),
    "I": (0, "M0 0 V-10"),
    "J": (5, "M5 -10 V-2.5 A2.5 2.5 0 0 1 0 -2.5"),
    "K": (6, "M0 0 V-10 M6 -10 L0 -4 M2 -6 L6 0"),
    "L": (5, "M0 -10 V0 H5"),
    "M": (8, "M0 0 V-10 L4 -4 L8 -10 V0"),
    "N": (7, "M0 0 V-10 L7 0 V-10"),
    "O": (7, "M3.5 -10 A3.5 3.5 0 0 0 0 -6.5 V-3.5 A3.5 3.5 0 0 0 7 -3.5 V-6.5 A3.5 3.5 0 0 0 3.5 -10 Z"),
    "P": (6, "M0 0 V-10 H3 A3 3 0 0 1 3 -4 H0"),
    "Q": (7, "M3.5 -10 A3.5 3.5 0 0 0 0 -6.5 V-3.5 A3.5 3.5 0 0 0 7 -3.5 V-6.5 A3.5 3.5 0 0 0 3.5 -10 Z"
             " M4.5 -2.5 L7.2 0.6"),
    "R": (6, "M0 0 V-10 H3 A3 3 0 0 1 3 -4 H0 M3 -4 L6 0"),
    "S": (6, "M5.9 -8 C5.6 -9.2 4.6 -10 3 -10 C1.3 -10 0.2 -9 0.2 -7.6 C0.2 -4 6 -6.2 6 -2.6"
             " C6 -1 4.8 0 3 0 C1.3 0 0.2 -0.8 0 -2.2"),
    "T": (6, "M0 -10 H6 M3 -10 V0"),
    "U": (7, "M0 -10 V-3.5 A3.5 3.5 0 0 0 7 -3.5 V-10"),
    "V": (7, "M0 -10 L3.5 0 L7 -10"),
    "W": (10, "M0 -10 L2.5 0 L5 -8 L7.5 0 L10 -10"),
    "X": (6, "M0 -10 L6 0 M6 -10 L0 0"),
    "Y": (6, "M0 -10 L3 -5 L6 -10 M3 -5 V0"),
    "Z": (6, "M0 -10 H6 L0 0 H6"),
    "a": (5, "M5 -7 V0 M5 -4.5 A2.5 2.5 0 0 0 0 -4.5 V-2.5 A2.5 2.5 0 0 0 5 -2.5"),
    "b": (5, "M0 -10 V0 M0 -4.5 A2.5 2.5 0 0 1 5 -4.5 V-2.5 A2.5 2.5 0 0 1 0 -2.5"),
    "c": (4.5, "M4.6 -5.8 A2.5 2.5 0 0 0 0 -4.5 V-2.5 A2.5 2.5 0 0 0 4.6 -1.2"),
    "d": (5, "M5 -10 V0 M5 -4.5 A2.5 2.5 0 0 0 0 -4.5 V-2.5 A2.5 2.5 0 0 0 5 -2.5"),
    "e": (5, "M0 -4 H5 V-4.5 A2.5 2.5 0 0 0 0 -4.5 V-2.5 A2.5 2.5 0 0 0 4.6 -1.2"),
    "f": (3, "M3.6 -10 H3 A2 2 0 0 0 1 -8 V0 M-0.5 -7 H3"),
    "g": (5, "M5 -4.5 A2.5 2.5 0 0 0 0 -4.5 V-2.5 A2.5 2.5 0 0 0 5 -2.5 M5 -7 V0.5 A2.5 2.5 0 0 1 0.4 1.9"),
    "h": (5, "M0 -10 V0 M0 -4.5 A2.5 2.5 0 0 1 5 -4.5 V0"),
    "i": (0, "M0 -7 V0 M0 -10 V-9.9"),
    "j": (1.5, "M1.5 -7 V1 A2 2 0 0 1 -0.5 3 M1.5 -10 V-9.9"),
    "k": (4.5, "M0 -10 V0 M4.3 -7 L0 -2.8 M1.7 -4.4 L4.8 0"),
    "l": (1.5, "M0 -10 V-2 A2 2 0 0 0 2 0"),
    "m": (8, "M0 -7 V0 M0 -5 A2 2 0 0 1 4 -5 V0 M4 -5 A2 2 0 0 1 8 -5 V0"),
    "n": (5, "M0 -7 V0 M0 -4.5 A2.5 2.5 0 0 1 5 -4.5 V0"),
    "o": (5, "M2.5 -7 A2.5 2.5 0 0 0 0 -4.5 V-2.5 A2.5 2.5 0 0 0 5 -2.5 V-4.5 A2.5 2.5 0 0 0 2.5 -7 Z"),
    "p": (5, "M0 -7 V3 M0 -4.5 A2.5 2.5 0 0 1 5 -4.5 V-2.5 A2.5 2.5 0 0 1 0 -2.5"),
    "q": (5, "M5 -7 V3 M5 -4.5 A2.5 2.5 0 0 0 0 -4.5 V-2.5 A2.5 2.5 0 0 0 5 -2.5"),
    "r": (3, "M0 -7 V0 M0 -4.5 A2.5 2.5 0 0 1 2.5 -7 H3.2"),
    "s": (4.5, "M4.4 -5.7 C4.1 -6.6 3.3 -7 2.3 -7 C1 -7 0.2 -6.3 0.2 -5.3 C0.2 -2.8 4.6 -4.3 4.6 -1.8"
               " C4.6 -0.7 3.6 0 2.3 0 C1.1 0 0.2 -0.5 0 -1.4"),
    "t": (3, "M1 -9.5 V-2 A2 2 0 0 0 3 0 H3.4 M-0.5 -7 H3.2"),
    "u": (5, "M0 -7 V-2.5 A2.5 2.5 0 0 0 5 -2.5 M5 -7 V0"),
    "v": (5, "M0 -7 L2.5 0 L5 -7"),
    "w": (8, "M0 -7 L2 0 L4 -6 L6 0 L8 -7"),
    "x": (5, "M0 -7 L5 0 M5 -7 L0 0"),
    "y": (5, "M0 -7 L2.5 0 M5 -7 L2 1.4 C1.6 2.5 1 3 0 3"),
    "z": (5, "M0 -7 H5 L0 0 H5"),
    "!": (0, "M0 -10 V-3.5 M0 -0.1 V0"),
    ".": (0, "M0 -0.1 V0"),
    "-": (3, "M0 -4 H3"),
}

# Pairs that are too far apart at the common gap, and how much closer they go.
KERNING = {"Ta": 1.5, "Te": 1.5, "To": 1.5, "Tr": 1.5, "Tu": 0.5, "Ar": 0.5, "FA": 2, "AL": 0.5, "Yo": 1.5, "ry": 0.5}

TOKEN = re.compile(r"[MLHVACZ]|-?\d+(?:\.\d+)?")
ARGUMENTS = {"M": 2, "L": 2, "H": 1, "V": 1, "A": 7, "C": 6, "Z": 0}


def number(value):
    """A coordinate as short text, the same on every machine."""
    return f"{value:.2f}".rstrip("0").rstrip(".") if "." in f"{value:.2f}" else f"{value:.2f}"


def placed(path, x, y, scale):
    """The glyph path `path`, enlarged by `scale`, with its origin moved to (x, y)."""
    tokens = TOKEN.findall(path)
    out = []
    i = 0
    while i < len(tokens):
        command = tokens[i]
        values = [float(t) for t in tokens[i + 1:i + 1 + ARGUMENTS[command]]]
        i += 1 + ARGUMENTS[command]
        out.append(command + " ".join(number(v) for v in placed_arguments(command, values, x, y, scale)))
    return " ".join(out)


def placed_arguments(command, values, x, y, scale):
    if command == "H":
        return [x + values[0] * scale]
    if command == "V":
        return [y + values[0] * scale]
    if command == "A":
        radius = values[0] * scale
        return [radius, radius, 0, values[3], values[4], x + values[5] * scale, y + values[6] * scale]
    return [(x if k % 2 == 0 else y) + value * scale for k, value in enumerate(values)]


def advances(text, tracking=0.0):
    """Where each letter of `text` begins, in units, and the width of the whole."""
    starts = []
    x = 0.0
    for index, letter in enumerate(text):
        if index:
            x += LETTER_GAP + tracking - KERNING.get(text[index - 1] + letter, 0)
        starts.append(x)
        x += GLYPHS[letter][0]
    return starts, x


def text_width(text, scale, tracking=0.0):
    return advances(text, tracking)[1] * scale


def text_path(text, x, baseline, scale, tracking=0.0, snap=False):
    """`text` as one path from x on; `snap` puts every letter on a whole pixel, which keeps small text sharp."""
    parts = []
    for letter, start in zip(text, advances(text, tracking)[0]):
        left = x + start * scale
        if snap:
            left = int(left) + 0.5
        if GLYPHS[letter][1]:
            parts.append(placed(GLYPHS[letter][1], left, baseline, scale))
    return " ".join(parts)
