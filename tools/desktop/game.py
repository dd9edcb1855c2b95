"""The running program as a test sees it: its settings file, its main window, and what a player does there."""
import configparser
import os
import pathlib
import shutil
import signal
import tempfile

import layout
from desktop import ENDING, Missing, holds_for, wait_for


def later_run(**general):
    """Settings for a run that is not the first, silent unless a test asks for sound."""
    return {"General": {"PlayFirstTime": "False", "Music": "False"} | general}


def still(look, seconds):
    """Whether the picture stays the same for that long."""
    before = look()
    return holds_for(lambda: look() == before, seconds)


def click_in(dialog, title, element):
    """Clicks an element of a dialog, whose frame may be part of the window, like the small ones on Windows."""
    (width, height), (_, _, outer_width, outer_height) = layout.SIZES[title], dialog.place()
    edge = (outer_width - width) // 2
    x, y = layout.middle(element, title)
    dialog.click(x + edge, y + outer_height - height - edge)


class Settings:
    """A folder for the test's own settings."""

    def __init__(self, values=None):
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="prismfall-settings-"))
        self.file = self.home / "prismfall" / "settings.ini"
        ENDING.append(self)
        if values is not None:
            self.write(values)

    def stop(self):
        shutil.rmtree(self.home, ignore_errors=True)

    def write(self, values):
        parser = self.parser()
        parser.read_dict(values)
        self.file.parent.mkdir(parents=True, exist_ok=True)
        with open(self.file, "w") as file:
            parser.write(file, space_around_delimiters=False)

    @staticmethod
    def parser():
        parser = configparser.RawConfigParser()
        parser.optionxform = str
        return parser

    def read(self):
        parser = self.parser()
        parser.read(self.file)
        return {name: dict(parser[name]) for name in parser.sections()}

    def solved(self):
        """The numbers of the solved puzzles, as text."""
        return [name.removeprefix("Puzzle") for name, is_solved in self.read()["SolvedPuzzles"].items() if is_solved == "True"]


class Game:
    """A run of the program. It starts at once; `main` is its window once it is open."""

    def __init__(self, desktop, program, settings, folder, environment=None, shows_up=True, seconds=10):
        self.desktop = desktop
        self.messages = desktop.folder / f"messages-{len(desktop.processes)}"
        variables = dict(desktop.environment, XDG_CONFIG_HOME=str(settings.home), **(environment or {}))
        desktop.settle()
        with open(self.messages, "wb") as messages:
            self.process = desktop.start([str(program)], cwd=folder, env=variables, stderr=messages)
        if shows_up:
            self.wait_for_main_window(seconds)
            wait_for(lambda: self.face("CommandExit").count(0) < 1000, 5, "the first picture")

    def wait_for_main_window(self, seconds=10):
        try:
            self.main = self.desktop.window(layout.MAIN, seconds)
        except Missing as missing:
            status = self.process.poll()
            windows = self.desktop.output("xwininfo", "-root", "-tree")
            self.process.kill()  # the next window of that title must be another game's
            raise Missing(f"{missing}; exit status {status}, said {self.said()!r}, windows:\n{windows}") from None

    def said(self):
        return self.messages.read_text()

    def is_running(self):
        return self.process.poll() is None

    def wait_for_end(self, seconds=5):
        """The exit status."""
        return wait_for(lambda: None if self.is_running() else (self.process.poll(),), seconds, "the end")[0]

    def kill(self, number=signal.SIGKILL):
        os.kill(self.process.pid, number)
        return self.wait_for_end()

    # The main window.

    def press(self, button):
        """Clicks a button of the main window, which must be clickable."""
        self.main.click(*layout.middle(button))

    def rest_mouse(self):
        """Moves the pointer away from all buttons, so that all show their Up faces."""
        self.main.move(*layout.NO_ELEMENT)

    def face(self, element):
        return self.main.pixels(*layout.BOXES[layout.MAIN, element])

    def in_main_menu(self):
        return self.face("CommandPuzzle").count(0) < 6500  # everywhere else this area is black

    def wait_for_main_menu(self, seconds=5):
        self.rest_mouse()
        wait_for(self.in_main_menu, seconds, "the main menu")

    def start_puzzle(self, puzzle):
        """From the main menu, through the puzzle's page."""
        self.press("CommandPuzzle")
        wait_for(lambda: self.coloured(layout.PLAYFIELD) > 1000, 5, "the puzzle menu")
        for _ in range((puzzle - 1) // 9):
            self.press("CommandNext")
        self.main.click(*layout.cell(puzzle))
        self.press("CmdStart")
        self.wait_for_motion()

    # The game in progress.

    def stands_still(self, seconds=0.3):
        return still(self.main.viewer(*layout.PLAYFIELD), seconds)

    def wait_for_motion(self, seconds=3):
        look = self.main.viewer(*layout.PLAYFIELD)
        before = look()
        wait_for(lambda: look() != before, seconds, "beams that move")

    def coloured(self, box):
        return self.main.pixels(*box).count(*layout.CORES)

    def lowest_head(self, y=0):
        """Where the lowest beam below the blue line ends, if that is at `y` or lower."""
        left, top, width, _ = layout.BELOW_BLUE_LINE
        words = self.main.pixels(*layout.BELOW_BLUE_LINE).words()
        for at in range(len(words) - 1, max(y - top, 0) * width - 1, -1):
            if words[at] in layout.CORES:
                return left + at % width, top + at // width
        return None

    # Dialogs.

    def open_dialog(self, button, title):
        """Opens a dialog and waits until it is drawn."""
        self.press(button)
        return self.wait_for_dialog(title)

    def wait_for_dialog(self, title, seconds=5):
        """Waits until a dialog is where it belongs, and drawn."""
        dialog = self.desktop.window(title, seconds)
        look = dialog.viewer(0, 0, *layout.SIZES[title])
        wait_for(lambda: len(set(look().words())) > 1 and still(look, 0.1), 5, f"{title!r} drawn")
        return dialog

    def wait_for_close(self, title):
        wait_for(lambda: not self.desktop.windows(title), 5, f"the end of {title!r}")

    def answer_dialog(self, title, button=None, seconds=5):
        """Clicks a button of a dialog, OK if none is named, and waits until it is gone."""
        click_in(self.wait_for_dialog(title, seconds), title, button or layout.OK[title])
        self.wait_for_close(title)
