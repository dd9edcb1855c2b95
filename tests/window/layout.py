"""Where things stand in the game's windows, in pixels of their insides, and the colours that beams are painted in."""

MAIN = "Prismfall v1.1"
ABOUT = "About Prisfall v1.1"
SCORES = "Highscore"
OPTIONS = "Options"
RESULT = "Puzzle Result"
ERROR = "Prismfall"

# left, top, width, height
PLAYFIELD = (14, 20, 656, 566)
ENTRY_ZONE = (14, 20, 656, 38)
BELOW_BLUE_LINE = (14, 66, 656, 520)
BLUE_LINE_Y = 60
BOXES = {
    "CommandPuzzle": (160, 408, 133, 54),
    "CommandArcade": (400, 409, 151, 58),
    "CommandPrevious": (679, 27, 121, 37),
    "CommandNext": (693, 71, 97, 33),
    "LabelPuzzlePage": (680, 110, 121, 53),
    "LabelPuzzleNr": (758, 21, 23, 21),
    "VHighScore": (739, 79, 57, 23),
    "VLevel": (739, 51, 56, 22),
    "CmdStart": (690, 223, 100, 54),
    "cmdPause": (695, 294, 89, 38),
    "CmdOptions": (696, 362, 97, 39),
    "CmdScores": (691, 428, 107, 34),
    "CmdAbout": (698, 479, 86, 44),
    "CommandExit": (711, 540, 59, 37),
}
NO_ELEMENT = (676, 340)  # bare surface right of the playfield: there all buttons get their Up faces

DIALOG_SIZES = {ABOUT: (408, 472), SCORES: (327, 455), OPTIONS: (237, 297), RESULT: (512, 266)}
ABOUT_OK = (208, 447)
SCORES_OK = (279, 425)
CLEAR_SCORES = (143, 424)
FIRST_SCORE = (96, 56, 105, 25)
OPTIONS_OK = (178, 262)
EFFECTS = (180, 51)
MUSIC = (180, 76)
SHOW_SOLUTION = (99, 228)
RESULT_MENU = (266, 226)
NEXT_PUZZLE = (358, 227)  # left of where Try Again can stand
TRY_AGAIN = (499, 227)  # right of where Next Puzzle can stand

# The tutorial's pictures: their box, the place to click in the window, the mouse button.
TUTORIAL = (
    ((325, 54, 209, 114), (485, 146), 1),
    ((323, 74, 216, 148), (342, 188), 1),
    ((13, 177, 184, 89), (119, 240), 1),
    ((449, 64, 191, 165), (546, 88), 1),
    ((20, 420, 197, 116), (183, 507), 1),
    ((468, 173, 186, 149), (615, 290), 1),
    ((13, 291, 213, 94), (201, 331), 3),
    ((84, 484, 200, 109), (251, 569), 1),
)

CORES = (0x0000FF, 0x008000, 0xFF0000, 0xC0C000)  # blue, green, red, yellow
GREY = 0x808080


def middle(name):
    left, top, width, height = BOXES[name]
    return left + width // 2, top + height // 2


def level_text(level):
    """The text of a level's radio button in the options."""
    return 70, 48 + 24 * (level - 1)


def cell(puzzle):
    """The middle of a puzzle's preview on its page."""
    row, column = divmod((puzzle - 1) % 9, 3)
    return 14 + 656 * (2 * column + 1) // 6, 20 + 566 * (2 * row + 1) // 6
