"""What the window tests share: a desktop for each class, a fresh game for each test, and a screenshot when one fails.

    python3 tests/window/test_arcade.py PROGRAM FOLDER [unittest options and names]

PROGRAM is the built game; screenshots of failures go to FOLDER.
"""
import pathlib
import shutil
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
ASSETS = ROOT / "assets"
sys.path.insert(0, str(ROOT / "tools/desktop"))

import desktop  # noqa: E402
import game  # noqa: E402


class WindowTest(unittest.TestCase):
    program = pictures = None
    manager = True

    @classmethod
    def setUpClass(cls):
        cls.desktop = desktop.Desktop(cls.manager)
        cls.addClassCleanup(cls.desktop.stop)

    def _callTestMethod(self, method):  # not run(), which also ends what the test has started
        try:
            return super()._callTestMethod(method)
        except Exception:
            screen = self.desktop.screen
            screen.pixels(0, 0, screen.width, screen.height).save(self.pictures / f"{self.id()}.png")
            raise

    def folder(self):
        folder = tempfile.TemporaryDirectory(prefix="prismfall-test-")
        self.addCleanup(folder.cleanup)
        return pathlib.Path(folder.name)

    def settings(self, values=None):
        settings = game.Settings(values)
        self.addCleanup(settings.stop)
        return settings

    def install(self, pictures):
        """Copies the program to a folder where it finds `pictures`."""
        root = self.folder()
        (root / "build/test").mkdir(parents=True)
        (root / "assets").mkdir()
        (root / "assets/pictures").symlink_to(pictures)
        return shutil.copy(self.program, root / "build/test/prismfall")

    def start(self, settings=None, folder=ASSETS, program=None, pictures=ASSETS / "pictures", **options):
        """Starts the game, by default not as its first run."""
        program = program or self.install(pictures)
        run = game.Game(self.desktop, program, settings or self.settings(game.later_run()), folder, **options)
        self.addCleanup(lambda: run.is_running() and run.kill())
        return run

    def end_in_menu(self, run, complaint=""):
        """Ends a run by Exit in the main menu: without output, or with one line that contains a complaint."""
        run.press("CommandExit")
        self.assertEqual(run.wait_for_end(), 0)
        self.assertIn(complaint, run.said())
        self.assertEqual(run.said().count("\n"), 1 if complaint else 0, run.said())


def run():
    WindowTest.program, WindowTest.pictures = map(pathlib.Path, sys.argv[1:3])
    unittest.main("__main__", argv=[sys.argv[0]] + sys.argv[3:], verbosity=2)
