"""What Windows players get, under wine: installed, played with a real mouse, ended in every way, and removed.

    python3 tests/windows/test_windows.py PACKAGES FOLDER [unittest options and names]

PACKAGES is build/windows-packages; screenshots of failures go to FOLDER. PRISMFALL_KILLS is the number of kills in a save.
"""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import time
import zipfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tests/window"))

import harness  # noqa: E402
import game  # noqa: E402
import layout  # noqa: E402
from desktop import wait_for  # noqa: E402

WINE = "/usr/lib/wine/wine64"
SERVER = "/usr/lib/wine/wineserver64"
NATIVE = ROOT / "build/release/prismfall-headless"
BUILT = ROOT / "build/windows"
STORIES = ROOT / "tests/stories"
KILLS = int(os.environ.get("PRISMFALL_KILLS", "20"))
# Libraries that every Windows 10 has; the last comes with the game.
LIBRARIES = "advapi32 gdi32 imm32 kernel32 msvcrt ole32 oleaut32 setupapi shell32 shlwapi user32 version winmm libmpg123"
REPLAYS = "".join(
    f"set GrowthToggle {toggle}\nset CurrentPuzzle {puzzle}\nsolution {puzzle}\nrun 120000\ndump\n"
    for toggle in (0, 1)
    for puzzle in range(1, 46)
)
ALL_VALUES = 79
RUNNING = 2  # the installer's exit status


class WineSettings(game.Settings):
    """The settings of wine's only user."""

    def __init__(self, user, values=None):
        self.home = user / "AppData/Roaming"
        self.file = self.home / "Prismfall/settings.ini"
        self.file.unlink(missing_ok=True)
        if values is not None:
            self.write(values)

    def count(self):
        return sum(len(values) for values in self.read().values())


class WindowsTest(harness.WindowTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.desktop.environment.update(WINEDEBUG="-all", WINEDLLOVERRIDES="winemenubuilder.exe,mscoree,mshtml=")
        cls.addClassCleanup(subprocess.run, [SERVER, "-k"], env=cls.desktop.environment)
        cls.wine("wineboot", "--init")
        users = cls.desktop.folder / ".wine/drive_c/users"
        cls.user = next(folder for folder in users.iterdir() if folder.name != "Public")
        cls.packages = pathlib.Path(sys.argv[1]).resolve()
        cls.setup = next(cls.packages.glob("*-setup.exe"))

    @classmethod
    def wine(cls, *command, **options):
        """The exit status."""
        return subprocess.run([WINE, *command], env=cls.desktop.environment, timeout=200, **options).returncode

    def play(self, program, settings):
        """Starts a program as its shortcut does, in its own folder."""
        starter = self.folder() / "start"
        starter.write_text(f'#!/bin/sh\nexec {WINE} "{program}"\n')
        starter.chmod(0o755)
        return self.start(settings, program.parent, starter, seconds=60)


class Programs(WindowsTest):
    def test_the_driver_prints_the_same_bytes(self):
        folder = self.folder()
        expected = {path.stem: path.with_suffix(".expected").read_bytes() for path in STORIES.glob("*.script")}
        for name in expected:
            (folder / name).write_bytes((STORIES / f"{name}.script").read_bytes())
        replays = b"load\n" + REPLAYS.encode()
        (folder / "replays").write_bytes(replays)
        expected["replays"] = subprocess.run([NATIVE], input=replays, capture_output=True, check=True).stdout
        self.assertEqual(expected["replays"].count(b"dialog VPuzzleResult solved"), 90)
        shutil.copytree(ROOT / "tests/recordings", folder / "games")
        verify = ["verify", *(f"games/{game.name}" for game in (folder / "games").iterdir())]
        (folder / "verified").touch()
        expected["verified"] = subprocess.run([NATIVE, *verify], cwd=folder, capture_output=True, check=True).stdout
        (folder / "driver.exe").symlink_to(BUILT / "prismfall-headless.exe")
        run = "driver.exe {1} <{0} >{0}.out 2>{0}.err\r\nif errorlevel 1 >>{0}.err echo exit status %errorlevel%\r\n"
        words = {"verified": " ".join(verify)}
        (folder / "all.bat").write_text("".join(run.format(name, words.get(name, "")) for name in expected))
        self.wine("cmd", "/c", "all.bat", cwd=folder, stdout=subprocess.DEVNULL)
        for name, text in expected.items():
            errors = (folder / f"{name}.err").read_bytes().replace(b"\r", b"")
            self.assertEqual((folder / f"{name}.out").read_bytes() + errors, text, name)

    def test_programs_are_guarded_and_need_nothing_that_windows_10_lacks(self):
        for program in (*BUILT.glob("*.exe"), ROOT / "build/windows-folder/libmpg123.dll"):
            headers = subprocess.check_output(["x86_64-w64-mingw32-objdump", "-p", program], text=True)
            needed = {name.lower().removesuffix(".dll") for name in re.findall(r"DLL Name: (\S+)", headers)}
            self.assertLessEqual(needed, set(LIBRARIES.split()), program.name)
            for guard in ("HIGH_ENTROPY_VA", "DYNAMIC_BASE", "NX_COMPAT"):
                self.assertIn(guard, headers, program.name)

    def test_a_kill_in_a_save_leaves_a_whole_file(self):
        settings = WineSettings(self.user)
        saves = 0
        for number in range(KILLS):
            before = settings.file.exists() and settings.file.stat().st_mtime_ns
            runs = [self.desktop.start([WINE, BUILT / "tests/windows/KeepSaving.exe"]) for _ in range(2)]
            wait_for(lambda: settings.file.exists() and settings.file.stat().st_mtime_ns != before, 20, "a save")
            time.sleep(0.05 + number % 10 * 0.003)
            for run in runs:
                self.assertIsNone(run.poll(), "a save has failed")
                run.kill()
                run.wait()
            values = settings.read()["Saved"]
            self.assertEqual((len(values), len(set(values.values()))), (ALL_VALUES, 1))
            saves += int(values["Value1"])
        self.assertGreater(saves, KILLS, "hardly anything was saved")
        leftovers = [path.name for path in settings.file.parent.iterdir() if path != settings.file]
        self.assertLessEqual(len(leftovers), 2, "one of each killed run, until the next one saves")
        for name in leftovers:
            self.assertRegex(name, r"^settings\.ini\.new-\d+$")


class Player(WindowsTest):
    def test_from_the_installer_to_the_uninstaller(self):
        self.assertEqual(self.wine(self.setup, "/S"), 0)
        self.assertTrue(list(self.user.rglob("Start Menu/Programs/Prismfall.lnk")))
        folder = self.user / "AppData/Local/Programs/Prismfall"
        settings = WineSettings(self.user, {"General": {"Music": "False"}})
        run = self.play(folder / "prismfall.exe", settings)
        run.answer_dialog(layout.ABOUT, seconds=10)
        time.sleep(1)  # under wine a press right after the dialog has gone is sometimes lost
        spot, button = next(layout.tutorial())
        run.press("CmdStart")
        run.wait_for_motion(10)
        wait_for(run.stands_still, 10, "a picture of the tutorial")
        run.main.click(*spot, button=button)
        run.wait_for_motion()
        # An older version that is running must be closed first.
        self.assertEqual(self.wine(self.setup, "/S"), RUNNING)
        run.main.use_close_box()
        self.assertEqual(run.wait_for_end(), 0)
        self.assertEqual(self.wine(self.setup, "/S"), 0)

        run = self.play(folder / "prismfall.exe", settings)
        dialog = run.open_dialog("CmdOptions", layout.OPTIONS)
        run.press("CommandExit")  # which is behind the dialog
        width, height = layout.SIZES[layout.OPTIONS]
        self.assertEqual(dialog.place()[2:], (width + 6, height + 22), "the frame of a tool window")
        game.click_in(dialog, layout.OPTIONS, "Option8")
        run.answer_dialog(layout.OPTIONS)
        run.press("CommandArcade")
        run.wait_for_motion()
        run.answer_dialog(layout.SCORES, seconds=60)
        run.wait_for_main_menu()
        self.end_in_menu(run)
        self.assertEqual(settings.count(), ALL_VALUES)
        general = settings.read()["General"]
        self.assertEqual((general["StartLevel"], general["PlayFirstTime"]), ("8", "False"))

        self.wine(folder / "uninstall.exe", "/S")
        wait_for(lambda: not folder.exists(), 30, "the end of the uninstaller")
        recordings = settings.file.parent / "recordings"
        self.assertEqual(set(self.user.rglob("*rismfall*")), {settings.file.parent, *recordings.iterdir()})
        self.assertEqual(set(settings.file.parent.iterdir()), {settings.file, recordings})
        # On a slow machine the first game has been long enough to be kept, too.
        verdict = subprocess.run([NATIVE, "verify", *recordings.iterdir()], capture_output=True, text=True)
        self.assertEqual(verdict.returncode, 0, verdict.stdout)
        self.assertRegex(verdict.stdout, r"(?m): Arcade, \d+ points, level \d+, \d+:\d\d$")

    def test_a_folder_of_any_name_and_the_end_of_the_session(self):
        folder = self.folder() / "Zoë & 遊戯"
        with zipfile.ZipFile(next(self.packages.glob("*-windows.zip"))) as packed:
            packed.extractall(folder)
        settings = WineSettings(self.user, game.later_run(Music="True"))
        run = self.play(folder / "Prismfall/prismfall.exe", settings)
        time.sleep(2)  # the music begins after a second
        self.assertFalse(self.desktop.windows(layout.ERROR))
        run.press("CommandArcade")
        run.wait_for_motion()
        self.assertEqual(run.said(), "")
        self.wine("wineboot", "--end-session", "--kill")
        run.wait_for_end(20)
        self.assertEqual(settings.count(), ALL_VALUES)
        # A program that starts in what is left of the session may lose its clicks.
        for end in ("-k", "-w"):
            subprocess.run([SERVER, end], env=self.desktop.environment, timeout=60)


if __name__ == "__main__":
    harness.run()
