"""Every button: a pill of glass with its word in neon, once at rest and once lit for the pointer over it.

Buttons of one column have one width of pill, whatever the size of their pictures, and share one axis of the window.
"""

from neon import PALE, SOFT, TUBE, WHITE, centred_text, document, gradient, rounded, stroke

# Name, words, picture size, middle of the pill in the picture (the picture's middle if not given), pill size, height of
# the lettering in pixels. PANEL is the axis of the main window's side panel.
PANEL = 740.5
TABLE = [
    ("Puzzle", "Puzzle", 133, 54, (66.5, 28), 121, 44, 17),
    ("Arcade", "Arcade", 151, 58, (64, 27), 121, 44, 17),
    ("Previous", "Previous Page", 121, 37, (PANEL - 679, 18.5), 113, 28, 10),
    ("Next", "Next Page", 97, 33, (PANEL - 693, 16.5), 88, 27, 10),
    ("Start", "Start", 100, 54, (PANEL - 690, 27), 92, 40, 15),
    ("Restart", "Restart", 100, 54, (PANEL - 690, 27), 92, 40, 14),
    ("Takeover", "Take Over", 100, 54, (PANEL - 690, 27), 92, 40, 11.5),
    ("Pause", "Pause", 89, 38, (PANEL - 695, 19), 82, 30, 12),
    ("Resume", "Resume", 89, 38, (PANEL - 695, 19), 82, 30, 12),
    ("Options", "Options", 97, 39, (PANEL - 696, 19.5), 82, 30, 12),
    ("Scores", "Scores", 107, 34, (PANEL - 691, 17), 82, 28, 12),
    ("About", "About", 86, 44, (PANEL - 698, 22), 82, 30, 12),
    ("Exit", "Exit", 59, 37, (PANEL - 711, 18.5), 53, 29, 12),
    ("OKScores", "OK", 70, 47, None, 60, 36, 14),
    ("ClearScores", "Clear Scores", 123, 36, None, 115, 28, 10),
    ("ClearPuzzleProgress", "Clear Puzzle Progress", 191, 40, None, 181, 28, 10),
    ("TryAgain", "Try Again", 125, 51, None, 113, 36, 13),
    ("NextPuzzle", "Next Puzzle", 155, 53, None, 141, 36, 13),
    ("MenuResult", "Menu", 83, 47, None, 73, 36, 13),
    ("ShowSolution", "Show Solution", 169, 44, None, 157, 36, 13),
    ("OKAbout", "OK", 65, 50, None, 55, 36, 14),
    ("OKOptions", "OK", 73, 51, None, 60, 36, 14),
    ("WatchGame", "Watch", 92, 38, None, 84, 30, 11),
    ("CopyLink", "Copy Link", 110, 38, None, 102, 30, 11),
    ("SaveGame", "Save As", 100, 38, None, 92, 30, 11),
    ("DeleteGame", "Delete", 92, 38, None, 84, 30, 11),
]


def pictures():
    """All faces as (name, function that draws it)."""
    for name, words, width, height, middle, pill_width, pill_height, cap in TABLE:
        face = (words, width, height, middle or (width / 2, height / 2), pill_width, pill_height, cap)
        yield name + "Up", lambda face=face: button(*face, lit=False)
        yield name + "Down", lambda face=face: button(*face, lit=True)


def button(words, width, height, middle, pill_width, pill_height, cap, lit):
    x, y = middle
    glass = pill(x - pill_width / 2, y - pill_height / 2, pill_width, pill_height, lit)
    body = glass + button_words(words, x, y + cap / 2, cap, lit)
    return document(width, height, body, PILL_DEFS[lit])


PILL_DEFS = (
    gradient("pill", [(0, "#1d3060", 0.95), (0.48, "#111d3c", 0.95), (0.52, "#0b142c", 0.95), (1, "#0e1a38", 0.95)]),
    gradient("pill", [(0, "#3a66c8", 0.97), (0.48, "#1f3f8e", 0.97), (0.52, "#16306f", 0.97), (1, "#1f4598", 0.97)]))


def pill(left, top, width, height, lit):
    radius = min(height / 2, 12)
    glow = 0.95 if lit else 0.45
    edge = f'fill="none" stroke="{TUBE}" stroke-width="2.6" stroke-opacity="{glow}" filter="url(#blur1.4)"'
    line = f'fill="url(#pill)" stroke="{"#b9d2ff" if lit else "#4672c8"}" stroke-width="1.2"'
    shine = stroke(f"M{left + radius:.1f} {top + 2.2:.1f} H{left + width - radius:.1f}", PALE, 1, 0.75 if lit else 0.28)
    return rounded(left, top, width, height, radius, edge) + rounded(left, top, width, height, radius, line) + shine


def button_words(words, middle, baseline, cap, lit):
    scale = cap / 10
    weight = 1.0 + cap * 0.055
    path = centred_text(words, middle, baseline, scale)
    if lit:
        return (stroke(path, "#9cc0ff", weight * 2.6, 0.8, blur=2.2) +
                stroke(path, SOFT, weight * 1.35, 0.9, blur=0.7) + stroke(path, WHITE, weight))
    return stroke(path, TUBE, weight * 2.2, 0.6, blur=1.8) + stroke(path, "#b8d0ff", weight)
