"""Pictures that are one lit word: the verdict on a puzzle and the names of the five groups of puzzles."""

from neon import TUBE, WHITE, centred_text, document, glowing, stroke

GROUPS = ("Beginner", "Easy", "Medium", "Hard", "Pro")


def solved():
    body = glowing(centred_text("You Succeeded!", 160, 42, 2.6), "#34e27a", WHITE, 3.4, 7, 0.6)
    return document(320, 70, body + glowing("M40 57 H280", "#34e27a", WHITE, 1.4, 4, 0.5))


def failed():
    body = glowing(centred_text("Puzzle Failed...", 160, 42, 2.5), "#ff4b46", "#ffd9d4", 3.2, 6, 0.5)
    return document(320, 70, body + stroke("M40 57 H280", "#5a2326", 1.4))


def group(index):
    """The group's name over five lamps, of which as many are lit as the group is hard."""
    path = centred_text(GROUPS[index], 60.5, 25, 1.6)
    body = stroke(path, TUBE, 4.5, 0.7, blur=3) + stroke(path, "#cfe0ff", 2)
    for lamp in range(5):
        x = 30 + lamp * 14
        way = f"M{x} 39 l6.5 6.5"
        body += glowing(way, "#f2dc3c", WHITE, 2, 2.5, 0.6) if lamp <= index else stroke(way, "#2c4270", 2)
    return document(121, 53, body)
