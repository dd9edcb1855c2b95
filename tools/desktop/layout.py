"""Where things are in the game's windows, in pixels of their inner areas, read from the list that the game prints."""
import pathlib
import re

TEXT = (pathlib.Path(__file__).resolve().parents[2] / "tests/game/layout.expected").read_text()
TITLES, SIZES, BOXES = {}, {}, {}
for name, title, *size in re.findall(r'^(\w+) "([^"]+)" at \S+ inside (\d+)x(\d+)', TEXT, re.M):
    TITLES[name], SIZES[title] = title, tuple(map(int, size))
for name, element, *box in re.findall(r"^(V\w+) (\w+) (-?\d+),(-?\d+) (\d+)x(\d+)", TEXT, re.M):
    BOXES[TITLES[name], element] = tuple(map(int, box))
MAIN, ABOUT, OPTIONS, SCORES, RESULT = (TITLES[n] for n in ("VMain", "VAbout", "VOptions", "VHighScore2", "VPuzzleResult"))
ERROR = "Prismfall"
OK = {ABOUT: "Command1", SCORES: "Command2", OPTIONS: "Command1"}
DIALOGS = {"CmdAbout": ABOUT, "CmdScores": SCORES, "CmdOptions": OPTIONS}

# left, top, width, height
PLAYFIELD = (14, 20, 656, 566)
ENTRY_ZONE = (14, 20, 656, 38)
BELOW_BLUE_LINE = (14, 66, 656, 520)
NO_ELEMENT = (676, 340)  # bare surface right of the playfield, where all buttons get their Up faces back
STRAIGHT_DOWN = 37, (334, 340)  # a puzzle on the last page, and the head of a beam that runs straight to the floor

CORES = (0x0000FF, 0x008000, 0xFF0000, 0xC0C000)  # of beams: blue, green, red, yellow
GREY = 0x808080


def middle(element, title=MAIN):
    left, top, width, height = BOXES[title, element]
    return left + width // 2, top + height // 2


def cell(puzzle):
    """The middle of a puzzle's preview on its page."""
    row, column = divmod((puzzle - 1) % 9, 3)
    return 14 + 656 * (2 * column + 1) // 6, 20 + 566 * (2 * row + 1) // 6


def tutorial():
    """The tutorial's pictures: the place to press in the window, the mouse button."""
    for left, top, picture in re.findall(r"^moment \d+ at (\d+),(\d+) (\w+)", TEXT, re.M):
        spot = re.search(rf"^spot {picture} goes on (\d+),(\d+) (\d+)x(\d+)(.*)", TEXT, re.M)
        x, y, width, height = map(int, spot.groups()[:4])
        seen = min(height, BOXES[MAIN, picture][3] - y)  # one spot extends below its picture
        yield (int(left) + x + width // 2, int(top) + y + seen // 2), 3 if "right" in spot[5] else 1
