"""The scenery of the game: the main window with its neon frame, the background of the dialogs, the two score panels.

The playfield's edges are fixed by the game: it is black from x 14 to 669 and down to y 585. A beam that bounces leaves
black in the columns 11 and 672 next to the frame's hairline, so these are black in the picture from the start.
"""

from lettering import text_path
from neon import BEAM_LIGHT, PALE, ROOM, TUBE, WHITE, box, document, glowing, gradient, hatch, rounded, stroke

FRAME_TUBE = ("M12 10.5 H672 A3.5 3.5 0 0 1 675.5 14 V588 A3.5 3.5 0 0 1 672 591.5 H12 A3.5 3.5 0 0 1 8.5 588 V14 "
              "A3.5 3.5 0 0 1 12 10.5 Z")
BLACK = "#000000"
HAIRLINE = "#6fa4ff"
PANEL_LEFT = 682

PANEL_DEFS = (
    gradient("panel", [(0, "#101a33", 1), (0.45, "#0b1225", 1), (1, "#070b18", 1)]) +
    gradient("sheen", [(0, "#9dbcff", 0.16), (0.5, "#9dbcff", 0.03), (1, "#9dbcff", 0)], x2=1, y2=0) +
    hatch("weave", 6, "#a9c4ff", 0.05))


def frame():
    """Black field, hairline, black gap and the glowing tube; without the panel and the room around it."""
    tube = (stroke(FRAME_TUBE, TUBE, 9, 0.75, blur=4.5) + stroke(FRAME_TUBE, TUBE, 5) +
            stroke(FRAME_TUBE, "#79a6ff", 2.6) + stroke(FRAME_TUBE, "#e6efff", 1.1))
    gap, hairline, field = box(11, 13, 662, 576, BLACK), box(12, 14, 660, 574, HAIRLINE), box(14, 16, 656, 570, BLACK)
    return tube + gap + hairline + field


def background():
    panel = box(PANEL_LEFT, 0, 120, 602, "url(#panel)") + box(PANEL_LEFT, 0, 120, 602, "url(#weave)")
    edges = (box(PANEL_LEFT, 0, 14, 602, "url(#sheen)") + box(PANEL_LEFT, 0, 1, 602, "#2b4478") +
             box(801, 0, 1, 602, "#03050b"))
    return document(802, 602, box(0, 0, 802, 602, ROOM) + panel + edges + frame(), PANEL_DEFS)


def dialog_background():
    """Every dialog cuts its own piece from the top left, so all light comes from there, and there is no frame."""
    defs = (gradient("night", [(0, "#111b36", 1), (0.5, "#0a1122", 1), (1, "#070b17", 1)], x2=0.55) +
            gradient("ray", [(0, "#7ea6ff", 0.20), (0.7, "#7ea6ff", 0.03), (1, "#7ea6ff", 0)], x2=1, y2=1) +
            hatch("weave", 6, "#a9c4ff", 0.035))
    rays = ('<path d="M0 0 H120 L0 120 Z" fill="url(#ray)"/>'
            '<path d="M190 0 H250 L0 250 V190 Z" fill="#7ea6ff" fill-opacity="0.03"/>'
            '<path d="M330 0 H480 L0 480 V330 Z" fill="#7ea6ff" fill-opacity="0.022"/>\n')
    ground = box(0, 0, 545, 533, "url(#night)") + box(0, 0, 545, 533, "url(#weave)")
    return document(545, 533, ground + rays, defs)


def score_tile(rows):
    """A glass tile with a dark window for each number; a row is (word, baseline, x, y, width, height of the window)."""
    defs = gradient("glass", [(0, "#1b2b52", 0.95), (0.5, "#0f1930", 0.95), (1, "#0a1122", 0.95)])
    body = rounded(3.5, 5.5, 113, 105, 9, 'fill="url(#glass)" stroke="#31508f" stroke-width="1"')
    body += stroke("M12 7 H108", PALE, 1, 0.25)
    for word, baseline, x, y, width, height in rows:
        body += rounded(x + 0.5, y + 0.5, width - 1, height - 1, 4, 'fill="#05070d" stroke="#223864" stroke-width="1"')
        path = text_path(word, 10.5, baseline, 1.0, -0.4)
        body += stroke(path, TUBE, 3, 0.6, blur=1.6) + stroke(path, "#c3d8ff", 1.35)
    return body, defs


def arcade_scores():
    body, defs = score_tile([("Score", 39.5, 52, 20, 63, 26), ("Level", 69.5, 52, 50, 63, 25),
                             ("High", 97.5, 52, 78, 63, 26)])
    return document(120, 114, body, defs)


def puzzle_score():
    body, defs = score_tile([("Puzzle", 39.5, 70, 20, 35, 26)])
    for place, colour in enumerate(BEAM_LIGHT):
        x = 29 + 15 * place
        body += glowing(f"M{x} 60 L{x + 17} 77 L{x} 94", colour, WHITE, 2, 3, 0.6)
    return document(120, 114, body, defs)
