"""What the tests in a real window have in common: a desktop for each class, a fresh game for each test, a picture of the
screen when one fails, and an end to everything that hangs.

    python3 tests/window/test_arcade.py PROGRAM FOLDER [unittest options and names]

PROGRAM is the built game; pictures of failures go to FOLDER.
"""
import faulthandler
import os
import pathlib
import shutil
import sys
import tempfile
import threading
import unittest

import desktop
import game

ASSETS = pathlib.Path(__file__).resolve().parents[2] / "assets"
LONGEST = 150  # seconds for a file of tests


class WindowTest(unittest.TestCase):
    program = None
    pictures = None
    manager = True

    @classmethod
    def setUpClass(cls):
        cls.desktop = desktop.Desktop(cls.manager)
        cls.addClassCleanup(cls.desktop.stop)

    def install(self, pictures=ASSETS / "pictures"):
        """The program in a folder where it finds its pictures, wherever it was built. Without `pictures` it finds none."""
        root = self.folder()
        (root / "build/test").mkdir(parents=True)
        (root / "assets").mkdir()
        shutil.copy(self.program, root / "build/test/prismfall")
        if pictures:
            (root / "assets/pictures").symlink_to(pictures)
        return root / "build/test/prismfall"

    def folder(self):
        folder = tempfile.TemporaryDirectory(prefix="prismfall-test-")
        self.addCleanup(folder.cleanup)
        return pathlib.Path(folder.name)

    def settings(self, values=None):
        settings = game.Settings(values)
        self.addCleanup(settings.stop)
        return settings

    def start(self, settings=None, folder=ASSETS, program=None, **options):
        """Starts the game, by default past its first run."""
        settings = settings or self.settings(game.later_run())
        run = game.Game(self.desktop, program or self.install(), settings, folder, **options)
        self.addCleanup(lambda: run.is_running() and run.kill())
        return run

    def end_in_menu(self, run):
        """Ends a run by Exit in the main menu, and sees that it was content."""
        run.press("CommandExit")
        self.assertEqual((run.wait_for_end(), run.said()), (0, ""))


class Result(unittest.TextTestResult):
    """Saves a picture of the screen at the moment of a failure."""

    def keep_picture(self, test):
        screen = getattr(getattr(test, "desktop", None), "screen", None)
        if screen is None:
            return
        name = test.id().replace("__main__", pathlib.Path(sys.argv[0]).stem)
        path = WindowTest.pictures / f"{name}.png"
        screen.whole().save(path)
        self.stream.writeln(f"screen saved in {path}")

    def addFailure(self, test, error):
        self.keep_picture(test)
        super().addFailure(test, error)

    def addError(self, test, error):
        self.keep_picture(test)
        super().addError(test, error)

    def addSubTest(self, test, subtest, error):
        if error is not None:
            self.keep_picture(test)
        super().addSubTest(test, subtest, error)


def give_up():
    print(f"not done after {LONGEST} s", file=sys.stderr)
    faulthandler.dump_traceback()
    for number, thing in enumerate(desktop.ENDING):
        if isinstance(thing, desktop.Desktop):
            thing.screen.whole().save(WindowTest.pictures / f"hung-{number}.png")
    desktop.end_all()
    os._exit(2)


def run():
    if len(sys.argv) < 3:
        sys.exit(f"usage: {sys.argv[0]} PROGRAM FOLDER [unittest options and names]")
    WindowTest.program = pathlib.Path(sys.argv[1]).resolve()
    WindowTest.pictures = pathlib.Path(sys.argv[2])
    watchdog = threading.Timer(LONGEST, give_up)
    watchdog.daemon = True
    watchdog.start()
    unittest.main(
        "__main__",
        argv=[sys.argv[0]] + sys.argv[3:],
        testRunner=unittest.TextTestRunner(resultclass=Result, verbosity=2),
    )
