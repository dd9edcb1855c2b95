"""Machines on which something is missing or disappears: a window manager, a display, a sound device, files, time."""
import signal
import time

import harness
import desktop
import layout
from desktop import holds_for, wait_for
from game import later_run

ASLEEP = 3  # seconds
STEP = 0.075  # seconds per pixel, in an Arcade game at level 1


class Ends(harness.WindowTest):
    def test_every_orderly_end_saves(self):
        display = desktop.Desktop()
        self.addCleanup(display.stop)
        Ends.desktop, shared = display, self.desktop
        tell = display.processes[0].send_signal
        ends = {
            "SIGTERM": lambda run: run.kill(signal.SIGTERM),
            "two signals": lambda run: run.process.send_signal(signal.SIGHUP) or run.kill(signal.SIGINT),
            "close box": lambda run: run.main.use_close_box() or run.wait_for_end(),
            "Ctrl+Q": lambda run: run.main.key("ctrl+q") or run.wait_for_end(),
            "end of the display": lambda run: display.processes[0].terminate() or run.wait_for_end(),
        }
        try:
            for name, end in ends.items():
                with self.subTest(end=name):
                    settings = self.settings(later_run())
                    run = self.start(settings)
                    run.press("CommandArcade")
                    run.wait_for_motion()
                    self.assertEqual((end(run), run.said()), (0, ""))
                    self.assertEqual(sum(len(values) for values in settings.read().values()), 79)
        finally:
            Ends.desktop = shared


class PlainDisplay(harness.WindowTest):
    manager = False

    def resize(self, window, width, height):
        """Acts like a desktop that never gives a window the size it asks for."""
        self.desktop.output("xdotool", "windowsize", str(window.number), str(width), str(height))

    def test_a_window_of_another_size_shows_its_whole_picture(self):
        run = self.start(self.settings(later_run(SoundEffects="False")))
        run.rest_mouse()
        before = run.main.pixels(0, 0, 802, 602)
        for size, left, top in (((802, 760), 0, 79), ((1000, 602), 99, 0)):
            self.resize(run.main, *size)
            wait_for(lambda: run.main.place()[2:] == size and run.main.pixels(left, top, 802, 602) == before, 3, "it centred")
            black = run.main.pixels(0, 0, *size).count(0) - before.count(0)
            self.assertEqual(black, size[0] * size[1] - 802 * 602, "on black")
        x, y = layout.middle("CmdAbout")
        run.main.click(x - 30, y)  # next to the button, if the picture were at the left
        run.main.click(99 + x, y)
        dialog = run.desktop.window(layout.ABOUT)
        self.resize(dialog, 204, 300)
        rows = ((0, 32), (268, 32), (32, 236))  # black above and below, the picture between
        wait_for(lambda: [dialog.pixels(0, y, 204, height).count(0) // 1000 for y, height in rows] == [6, 6, 0], 3, "it small")
        x, y = layout.middle("Command1", layout.ABOUT)
        dialog.click(x // 2, 32 + y // 2)
        run.wait_for_close(layout.ABOUT)


class Machine(harness.WindowTest):
    def test_no_display(self):
        for display in ("", ":4711"):
            run = self.start(environment={"DISPLAY": display}, shows_up=False)
            self.assertEqual(run.wait_for_end(), 1)
            self.assertRegex(run.said(), r"^[^\n]+\.\n$")

    def test_no_sound_device(self):
        run = self.start(self.settings(later_run(Music="True")), environment={"SDL_AUDIODRIVER": "bogus"})
        self.assertTrue(holds_for(lambda: not run.desktop.windows(layout.ERROR), 1.5), "no error box")
        self.end_in_menu(run)

    def test_no_music(self):
        run = self.start(self.settings(later_run(Music="True")), folder=self.folder())
        box = run.desktop.window(layout.ERROR, 5)
        self.assertIn(hex(run.main.number), box.property("WM_TRANSIENT_FOR"))
        _, _, width, height = box.place()
        box.click(width // 2, height - 31)
        run.wait_for_close(layout.ERROR)
        run.press("CommandArcade")
        run.desktop.window(layout.ERROR).use_close_box()
        run.wait_for_close(layout.ERROR)
        run.wait_for_motion()

    def test_no_pictures_and_no_fonts(self):
        fonts = self.folder() / "fonts.conf"
        fonts.write_text("<fontconfig><dir>/nowhere</dir></fontconfig>")
        for missing in ({"pictures": "/nowhere"}, {"environment": {"FONTCONFIG_FILE": str(fonts)}}):
            run = self.start(**missing)
            face = run.face("CommandPuzzle")
            self.assertLess(face.count(0), face.width * face.height / 2, "something in its place")
            run.open_dialog("CmdScores", layout.SCORES)
            run.answer_dialog(layout.SCORES)
            self.end_in_menu(run, complaint=".\n")

    def test_settings_that_cannot_be_saved(self):
        settings = self.settings()
        settings.home.rmdir()
        settings.home.write_text("A file is where the folder should be.\n")
        self.addCleanup(settings.home.unlink)
        for end in (lambda: run.press("CommandExit"), lambda: run.main.key("Escape"), lambda: run.main.use_close_box()):
            run = self.start(settings)
            run.answer_dialog(layout.ABOUT)
            for _ in range(2):
                wait_for(lambda: not run.in_main_menu(), 3, "a puzzle, then its menu")
                run.main.key("Escape")
            run.wait_for_main_menu()
            end()
            box = run.desktop.window(layout.ERROR)
            box.click(box.place()[2] // 2, box.place()[3] - 31)
            self.assertEqual((run.wait_for_end(), run.said()), (0, ""))
        run = self.start(settings)
        self.assertEqual(run.kill(signal.SIGTERM), 0)
        self.assertRegex(run.said(), r"^[^\n]+\.\n$", "nobody reads a box then")


class Time(harness.WindowTest):
    def test_what_a_sleeping_machine_misses_is_not_made_up_for(self):
        run = self.start()
        run.press("CommandArcade")
        wait_for(lambda: run.lowest_head(80), 10, "a beam")
        run.process.send_signal(signal.SIGSTOP)
        _, before = run.lowest_head()
        time.sleep(ASLEEP)
        woken = time.monotonic()
        run.process.send_signal(signal.SIGCONT)
        run.wait_for_motion()
        time.sleep(1)
        way = run.lowest_head()[1] - before
        self.assertLess(way, (time.monotonic() - woken + ASLEEP / 2) / STEP, "the way since then, not that of the sleep")


if __name__ == "__main__":
    harness.run()
