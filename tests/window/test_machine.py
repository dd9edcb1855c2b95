"""Machines on which something is missing: a window manager, a display, a sound device, files, room for the settings, or
time."""
import os
import pathlib
import signal
import subprocess
import time

import harness
import layout
from desktop import holds_for, wait_for
from game import later_run


class PlainDisplay(harness.WindowTest):
    manager = False

    def test_it_can_be_played_without_a_window_manager(self):
        run = self.start(self.settings(later_run(StartLevel="3")))
        run.press("CommandArcade")
        run.wait_for_motion()
        dialog = run.open_dialog("CmdOptions", layout.OPTIONS)
        self.assertEqual(dialog.place()[2:], layout.DIALOG_SIZES[layout.OPTIONS])
        self.assertTrue(run.stands_still(0.3))
        dialog.click(*layout.OPTIONS_OK)
        run.wait_for_close(layout.OPTIONS)
        run.wait_for_motion()
        run.main.key("Escape")
        run.wait_for_main_menu()
        self.end_in_menu(run)

    def resize(self, window, width, height):
        """What a desktop does that gives no window the size it asks for."""
        self.desktop.output("xdotool", "windowsize", str(window.number), str(width), str(height))

    def test_a_window_of_another_size_shows_its_whole_picture(self):
        run = self.start(self.settings(later_run(Effects="False")))
        run.rest_mouse()
        before = run.main.pixels(0, 0, 802, 602)
        for size, left, top in (((802, 760), 0, 79), ((1000, 602), 99, 0)):
            with self.subTest(size=size):
                self.resize(run.main, *size)

                def is_whole():
                    picture = run.main.pixels(left, top, 802, 602)
                    black = run.main.pixels(0, 0, *size).count(0) - picture.count(0)
                    return picture == before and black == size[0] * size[1] - 802 * 602

                wait_for(is_whole, 3, "the picture in the middle of the black")
        x, y = layout.middle("CmdAbout")
        run.main.click(x, y)
        run.main.click(50, y)
        self.assertTrue(holds_for(lambda: not run.desktop.windows(layout.ABOUT), 0.5), "a press beside the button")
        run.main.click(99 + x, y)
        dialog = run.desktop.window(layout.ABOUT)
        self.resize(dialog, 204, 300)

        def is_small():
            above, picture, below = (dialog.pixels(0, y, 204, h).count(0) for y, h in ((0, 32), (32, 236), (268, 32)))
            return above == below == 204 * 32 and picture < 1000

        wait_for(is_small, 3, "a dialog of half its size")
        x, y = layout.ABOUT_OK
        dialog.click(x // 2, 32 + y // 2)
        run.wait_for_close(layout.ABOUT)


class Machine(harness.WindowTest):
    def check_sentence(self, text):
        """One line, a whole sentence."""
        self.assertEqual(len(text.splitlines()), 1, text)
        self.assertTrue(text.rstrip().endswith("."), text)

    def play(self, run):
        run.press("CommandArcade")
        run.wait_for_motion()
        run.press("CommandExit")
        run.wait_for_main_menu()

    def test_no_display(self):
        for display in ("", ":4711"):
            with self.subTest(display=display):
                run = self.start(environment={"DISPLAY": display}, shows_up=False)
                self.assertEqual(run.wait_for_end(), 1)
                self.check_sentence(run.said())

    def test_no_sound_device(self):
        settings = self.settings(later_run(Music="True"))
        run = self.start(settings, environment={"SDL_AUDIODRIVER": "bogus"})
        self.assertTrue(holds_for(lambda: not run.desktop.windows(layout.ERROR), 1.5), "an error box")
        self.play(run)
        self.end_in_menu(run)

    def test_no_music(self):
        run = self.start(self.settings(later_run(Music="True")), folder=self.folder())
        box = run.desktop.window(layout.ERROR, 5)
        self.assertIn(hex(run.main.number), box.property("WM_TRANSIENT_FOR"))
        _, _, width, height = box.place()
        box.click(width // 2, height - 31)
        run.wait_for_close(layout.ERROR)
        self.assertTrue(holds_for(lambda: not run.desktop.windows(layout.ERROR), 0.5), "the box came again")
        run.press("CommandArcade")
        run.desktop.window(layout.ERROR).use_close_box()
        run.wait_for_close(layout.ERROR)
        run.wait_for_motion()

    def test_no_pictures(self):
        run = self.start(program=self.install(pictures=None))
        faces = [run.face_at_rest(button) for button in ("CommandPuzzle", "CommandArcade")]
        self.assertTrue(all(face.count(0) < face.width * face.height / 2 for face in faces), "nothing in their place")
        self.play(run)
        run.press("CommandExit")
        self.assertEqual(run.wait_for_end(), 0)
        self.check_sentence(run.said())

    def test_no_fonts(self):
        fonts = self.folder() / "fonts.conf"
        fonts.write_text("<fontconfig><dir>/nowhere</dir></fontconfig>")
        run = self.start(environment={"FONTCONFIG_FILE": str(fonts)})
        self.play(run)
        run.open_dialog("CmdScores", layout.SCORES).use_close_box()
        run.wait_for_close(layout.SCORES)
        run.press("CommandExit")
        self.assertEqual(run.wait_for_end(), 0)
        self.check_sentence(run.said())

    def test_settings_of_a_later_version(self):
        later = {"Gravity": "0.5", "StartLevel": "31"}
        settings = self.settings(later_run(**later) | {"Planets": {"Saturn": "8 rings"}})
        run = self.start(settings)
        self.play(run)
        run.press("CommandPuzzle")
        wait_for(lambda: not run.in_main_menu(), 3, "the puzzle menu")
        self.assertEqual((run.kill(signal.SIGTERM), run.said()), (0, ""))
        kept = settings.read()
        self.assertEqual((kept["General"]["Gravity"], kept["Planets"]), ("0.5", {"Saturn": "8 rings"}))

    def test_no_folder_for_settings(self):
        settings = self.settings()
        settings.home.rmdir()
        settings.home.write_text("A file stands where the folder should be.\n")
        self.addCleanup(settings.home.unlink)
        run = self.start(settings)
        run.answer_dialog(layout.ABOUT, layout.ABOUT_OK)
        run.main.key("Escape")
        wait_for(lambda: run.face("CommandNext").count(0) < 100, 3, "the puzzle menu")
        run.main.key("Escape")
        run.wait_for_main_menu()
        self.assertEqual(run.kill(signal.SIGTERM), 0)
        self.check_sentence(run.said())

    def mount_small_disk(self, folder):
        done = subprocess.run(
            ["mount", "-t", "tmpfs", "-o", "size=64k", "tmpfs", str(folder)], capture_output=True, check=False
        )
        if done.returncode != 0:
            self.skipTest("this machine lets nobody mount a small disk")
        self.addCleanup(subprocess.run, ["umount", "-l", str(folder)], check=False)

    def test_a_full_disk_keeps_the_old_settings(self):
        settings = self.settings()
        self.mount_small_disk(settings.home)
        settings.write(later_run(StartLevel="6"))
        before = settings.file.read_bytes()
        with open(settings.home / "filler", "wb", buffering=0) as filler:
            try:
                while True:
                    filler.write(bytes(4096))
            except OSError:
                pass
        ends = {
            "CommandExit": lambda run: run.press("CommandExit"),
            "Escape": lambda run: run.main.key("Escape"),
            "close box": lambda run: run.main.use_close_box(),
        }
        for name, end in ends.items():
            with self.subTest(end=name):
                run = self.start(settings)
                end(run)
                box = run.desktop.window(layout.ERROR, 5)
                _, _, width, height = box.place()
                box.click(width // 2, height - 31)
                self.assertEqual((run.wait_for_end(), run.said()), (0, ""))
        run = self.start(settings)
        self.assertEqual(run.kill(signal.SIGTERM), 0)
        self.assertEqual(settings.file.read_bytes(), before)
        self.assertEqual(os.listdir(settings.file.parent), [settings.file.name])
        self.check_sentence(run.said())


class Time(harness.WindowTest):
    def moves(self, run, seconds=1):
        """At how many places the lowest head is seen within some seconds."""
        places = set()
        holds_for(lambda: places.add(run.lowest_head()) or True, seconds)
        return len(places)

    def play(self, **options):
        run = self.start(self.settings(later_run(StartLevel="1")), **options)
        run.press("CommandArcade")
        run.wait_for_lowest_head(80)
        return run

    def test_what_a_sleeping_machine_misses_is_not_made_up_for(self):
        run = self.play()
        run.process.send_signal(signal.SIGSTOP)
        _, before = run.lowest_head()
        time.sleep(6)
        run.process.send_signal(signal.SIGCONT)
        self.assertGreater(self.moves(run), 3)
        _, after = run.lowest_head()
        self.assertLess(after - before, 50, "the way of one second, not of seven")

    def test_the_clock_may_jump(self):
        libraries = sorted(pathlib.Path("/usr/lib").glob("*/faketime/libfaketime.so.1"))
        if not libraries:
            self.skipTest("the package faketime is missing")
        clock = self.folder() / "clock"
        clock.write_text("+0")
        faked = {"LD_PRELOAD": str(libraries[0]), "FAKETIME_TIMESTAMP_FILE": str(clock), "FAKETIME_NO_CACHE": "1"}
        run = self.play(environment=faked | {"FAKETIME_DONT_FAKE_MONOTONIC": "1"})
        for jump in ("+1d", "-10y"):
            clock.write_text(jump)
            self.assertGreater(self.moves(run), 3, jump)
        self.assertEqual(run.kill(signal.SIGTERM), 0)


if __name__ == "__main__":
    harness.run()
