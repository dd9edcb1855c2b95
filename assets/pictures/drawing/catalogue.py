"""Every picture of the game by name, and how it is drawn."""

import buttons
import emblem
import logo
import scenery
import signs
import tutorial

ICON_SIZES = (16, 22, 24, 32, 48, 64, 128, 256, 512)


def pictures():
    """The name of each picture and the function that returns its SVG text."""
    drawn = {
        "Background": scenery.background,
        "DialogBackground": scenery.dialog_background,
        "PictureScores": scenery.arcade_scores,
        "PictureScores2": scenery.puzzle_score,
        "ImagePrismfall": logo.logo,
        "ImageA": logo.last_letter,
        "AboutPicture": emblem.about_picture,
        "Icon": lambda: emblem.icon(32),
        "PuzzleSolved": signs.solved,
        "YouFailed": signs.failed,
    }
    drawn.update(buttons.pictures())
    drawn.update((f"Image{name}", lambda i=i: signs.group(i)) for i, name in enumerate(signs.GROUPS))
    drawn.update((f"PictTut{i + 1}", lambda i=i: tutorial.picture(i)) for i in range(8))
    return drawn
