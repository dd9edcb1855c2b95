"""Machines on which something is missing: a window manager, a display, a sound device, files, room for the settings."""
import os
import pathlib
import subprocess
import tempfile

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


class Machine(harness.WindowTest):
    def empty_folder(self):
        folder = tempfile.TemporaryDirectory(prefix="prismfall-empty-")
        self.addCleanup(folder.cleanup)
        return pathlib.Path(folder.name)

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
        run = self.start(self.settings(later_run(Music="True")), folder=self.empty_folder())
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
        run.press("CommandExit")
        self.assertEqual(run.wait_for_end(), 0)
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
        run = self.start(settings)
        run.press("CommandExit")
        self.assertEqual(run.wait_for_end(), 0)
        self.assertEqual(settings.file.read_bytes(), before)
        self.assertEqual(os.listdir(settings.file.parent), [settings.file.name])
        self.check_sentence(run.said())


if __name__ == "__main__":
    harness.run()
