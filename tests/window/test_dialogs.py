"""Dialogs as desktop windows: which window they belong to, where they appear, how they close, and which input they block."""
import harness
import layout
from desktop import holds_for, wait_for
from game import later_run

HASTY_ROUNDS = 25  # the bug this looks for appeared once in dozens


class Dialogs(harness.WindowTest):
    def check_window(self, run, dialog, title):
        """The properties and the place that make it a dialog of the main window."""
        self.assertIn(hex(run.main.number), dialog.property("WM_TRANSIENT_FOR"))
        self.assertIn("_NET_WM_STATE_MODAL", dialog.property("_NET_WM_STATE"))
        self.assertIn("_NET_WM_WINDOW_TYPE_DIALOG", dialog.property("_NET_WM_WINDOW_TYPE"))
        (left, top, width, _), frame = run.main.place(), run.main.frame()
        (own_left, own_top, own_width, own_height), own_frame = dialog.place(), dialog.frame()
        self.assertEqual((own_width, own_height), layout.SIZES[title])
        outer, own_outer = width + frame[0] + frame[1], own_width + own_frame[0] + own_frame[1]
        self.assertAlmostEqual(own_left - own_frame[0], left - frame[0] + (outer - own_outer) / 2, delta=1)
        self.assertAlmostEqual(own_top - own_frame[2], top + frame[3], delta=1)

    def test_dialogs_belong_to_the_main_window(self):
        run = self.start(self.settings(later_run(StartLevel="3")))
        run.press("CommandArcade")
        for button, title in layout.DIALOGS.items():
            run.wait_for_motion()
            dialog = run.open_dialog(button, title)
            self.check_window(run, dialog, title)
            self.assertTrue(run.stands_still(), "the game stands still behind it")
            dialog.click(*layout.middle(layout.OK[title], title))
            run.wait_for_close(title)
        run.desktop.mouse("windowmove", "--sync", run.main.number, 40, 60)
        wait_for(lambda: run.main.place()[0] < 60, 3, "the window to move")
        holds_for(run.is_running, 0.2)  # the desktop tells the program its new position
        dialog = run.open_dialog("CmdAbout", layout.ABOUT)
        self.check_window(run, dialog, layout.ABOUT)
        dialog.use_close_box()
        run.wait_for_close(layout.ABOUT)
        # A different button each time: the same one at once would make it the second press of a double click.
        for key, (button, title) in zip(("Escape", "Return"), reversed(layout.DIALOGS.items())):
            run.open_dialog(button, title).key(key)
            run.wait_for_close(title)

    def test_dialogs_may_come_and_go_in_haste(self):
        settings = self.settings(later_run(SoundEffects="False"))  # no click sound to wait for
        run = self.start(settings)
        for _ in range(HASTY_ROUNDS):
            run.press("CmdOptions")
            self.desktop.window(layout.OPTIONS).click(*layout.middle("Option7", layout.OPTIONS))
            run.answer_dialog(layout.OPTIONS)
        self.end_in_menu(run)
        self.assertEqual(settings.read()["General"]["StartLevel"], "7")

    def test_nothing_reaches_the_window_behind(self):
        run = self.start()
        dialog = run.open_dialog("CmdAbout", layout.ABOUT)
        for button in ("CommandExit", "CmdOptions"):
            run.press(button)
        run.main.use_close_box()
        self.assertTrue(holds_for(run.is_running, 0.3))
        self.assertTrue(dialog.is_visible())
        dialog.click(*layout.middle("Command1", layout.ABOUT))
        run.wait_for_close(layout.ABOUT)
        self.assertTrue(holds_for(run.is_running, 0.2), "and none of it was kept for later")
        self.assertEqual(run.desktop.windows(layout.OPTIONS), [])
        dialog = run.open_dialog("CmdOptions", layout.OPTIONS)
        run.main.click(*layout.middle("Command1", layout.OPTIONS))
        self.assertTrue(holds_for(dialog.is_visible, 0.2), "a place behind a dialog is not the same place in it")


if __name__ == "__main__":
    harness.run()
