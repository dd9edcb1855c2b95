"""The running program as a test sees it: its settings file, its main window, and what a player does there."""
import configparser
import os
import pathlib
import shutil
import signal
import tempfile

import layout
from desktop import Missing, ENDING, holds_for, wait_for

APART = 0.6  # seconds between two clicks that must not become a double click


def later_run(**general):
    """Settings of a run that is not the first one, in silence unless a test wants it otherwise."""
    return {"General": {"PlayFirstTime": "False", "Music": "False"} | general}


def at_rest(look, what):
    """What there is to be seen when it has stopped changing."""
    last = [look()]

    def same():
        last.append(look())
        return last[-1] == last[-2]

    wait_for(lambda: holds_for(same, 0.1), 3, f"{what} at rest")
    return last[-1]


class Settings:
    """A folder for settings of the test's own."""

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

    def general(self, key):
        return self.read()["General"][key]


class Game:
    """A run of the program. It starts at once; `main` is its window when that stands."""

    def __init__(self, desktop, program, settings, folder, environment=None, shows_up=True):
        self.desktop = desktop
        self.program = program
        self.messages = desktop.folder / f"messages-{len(desktop.processes)}"
        variables = dict(desktop.environment, XDG_CONFIG_HOME=str(settings.home), **(environment or {}))
        desktop.settle()
        with open(self.messages, "wb") as messages:
            self.process = desktop.start([str(program)], cwd=folder, env=variables, stderr=messages)
        self.main = None
        if shows_up:
            self.main = self.wait_for_main_window()
            wait_for(lambda: self.main.pixels(*layout.BOXES["CommandExit"]).count(0) < 1000, 5, "the first picture")

    def wait_for_main_window(self):
        try:
            return self.desktop.window(layout.MAIN, 10)
        except Missing as missing:
            raise Missing(f"{missing}; exit status {self.process.poll()}, said {self.said()!r}") from None

    def said(self):
        return self.messages.read_text()

    def is_running(self):
        return self.process.poll() is None

    def wait_for_end(self, seconds=5):
        """The exit status."""
        return wait_for(lambda: (self.process.poll(), ) if not self.is_running() else None, seconds, "the end")[0]

    def kill(self, number=signal.SIGKILL):
        os.kill(self.process.pid, number)
        return self.wait_for_end()

    # The main window.

    def press(self, button):
        """Clicks a button of the main window, which must be there for the mouse."""
        self.main.click(*layout.middle(button))

    def rest_mouse(self):
        """Puts the pointer where it lies on no button and gives all of them their Up faces."""
        self.main.move(*layout.NO_ELEMENT)

    def face(self, button):
        return self.main.pixels(*layout.BOXES[button])

    def face_at_rest(self, button):
        """A button's face with the pointer elsewhere, when it has stopped changing."""
        self.rest_mouse()
        return at_rest(self.main.viewer(*layout.BOXES[button]), f"a face of {button}")

    def in_main_menu(self):
        return self.face("CommandPuzzle").count(0) < 6500  # in a game there is nothing but black

    def wait_for_main_menu(self, seconds=5):
        self.rest_mouse()
        wait_for(self.in_main_menu, seconds, "the main menu")

    # The game in progress.

    def stands_still(self, seconds=0.5):
        look = self.main.viewer(*layout.PLAYFIELD)
        before = look()
        return holds_for(lambda: look() == before, seconds)

    def wait_for_motion(self, seconds=3):
        look = self.main.viewer(*layout.PLAYFIELD)
        before = look()
        wait_for(lambda: look() != before, seconds, "beams that move")

    def wait_for_stillness(self, seconds=5):
        wait_for(lambda: self.stands_still(0.5), seconds, "beams that stand still")

    def coloured(self, box):
        return self.main.pixels(*box).count(*layout.CORES)

    def lowest_head(self):
        """Where the lowest beam ends, below the blue line, or nothing."""
        left, top, width, _ = layout.BELOW_BLUE_LINE
        words = self.main.pixels(*layout.BELOW_BLUE_LINE).words()
        for at in range(len(words) - 1, -1, -1):
            if words[at] in layout.CORES:
                return left + at % width, top + at // width
        return None

    def wait_for_lowest_head(self, y, seconds=10):
        """Where it is when it has come down to `y`."""

        def head():
            place = self.lowest_head()
            return place if place and place[1] >= y else None

        return wait_for(head, seconds, f"a beam at y {y}")

    def spots(self):
        """The middles of the spots in the entry zone."""
        left, top, width, height = layout.ENTRY_ZONE
        words = self.main.pixels(*layout.ENTRY_ZONE).words()
        places = [divmod(at, width) for at, word in enumerate(words) if word in layout.CORES]
        spots = []
        for y, x in sorted(places, key=lambda place: place[1]):
            if spots and x - spots[-1][-1][0] <= 3:
                spots[-1].append((x, y))
            else:
                spots.append([(x, y)])
        return [(left + spot[len(spot) // 2][0], top + spot[len(spot) // 2][1]) for spot in spots]

    def open_dialog(self, button, title):
        """Opens a dialog and waits until it is drawn: what it covers changes until then."""
        self.press(button)
        dialog = self.desktop.window(title)
        at_rest(lambda: dialog.pixels(0, 0, *layout.DIALOG_SIZES[title]), f"the dialog {title!r}")
        return dialog

    def wait_for_close(self, title):
        wait_for(lambda: not self.desktop.windows(title), 5, f"the end of {title!r}")

    def answer_dialog(self, title, place, seconds=5):
        """Clicks in a dialog and waits until it is gone."""
        dialog = self.desktop.window(title, seconds)
        dialog.click(*place)
        self.wait_for_close(title)
