"""Dialogs as windows of the desktop: whose they are, where they stand, how they close, and what they keep from the game."""
import time

import harness
import layout
from desktop import holds_for, wait_for
from game import later_run

DIALOGS = (
    ("CmdAbout", layout.ABOUT, layout.ABOUT_OK),
    ("CmdScores", layout.SCORES, layout.SCORES_OK),
    ("CmdOptions", layout.OPTIONS, layout.OPTIONS_OK),
)
LEFT_OF_ABOUT = (170, 435)  # on CommandPuzzle, where the dialog does not cover it
HASTY_ROUNDS = 25  # the fault that this is for showed in one of dozens
STRAIGHT_DOWN = 37, (334, 340)  # a puzzle, and the head of a beam that runs straight to the floor


class Dialogs(harness.WindowTest):
    def check_window(self, run, dialog, title):
        """The marks and the place that make it a dialog of the main window."""
        self.assertIn(hex(run.main.number), dialog.property("WM_TRANSIENT_FOR"))
        self.assertIn("_NET_WM_STATE_MODAL", dialog.property("_NET_WM_STATE"))
        self.assertIn("_NET_WM_WINDOW_TYPE_DIALOG", dialog.property("_NET_WM_WINDOW_TYPE"))
        left, top, width, height = run.main.place()
        frame = run.main.frame()
        ownLeft, ownTop, ownWidth, ownHeight = dialog.place()
        ownFrame = dialog.frame()
        self.assertEqual((ownWidth, ownHeight), layout.DIALOG_SIZES[title])
        outer = width + frame[0] + frame[1]
        ownOuter = ownWidth + ownFrame[0] + ownFrame[1]
        self.assertAlmostEqual(ownLeft - ownFrame[0], left - frame[0] + (outer - ownOuter) / 2, delta=1)
        self.assertAlmostEqual(ownTop - ownFrame[2], top - frame[2] + frame[2] + frame[3], delta=1)

    def test_dialogs_belong_to_the_main_window(self):
        run = self.start()
        for button, title, ok in DIALOGS:
            for close_it in (lambda dialog: dialog.click(*ok), lambda dialog: dialog.use_close_box()):
                with self.subTest(dialog=title):
                    dialog = run.open_dialog(button, title)
                    self.check_window(run, dialog, title)
                    close_it(dialog)
                    run.wait_for_close(title)
        self.end_in_menu(run)

    def test_dialogs_may_come_and_go_in_haste(self):
        run = self.start(self.settings(later_run(SoundEffects="False")))  # no click sound to wait for
        for _ in range(HASTY_ROUNDS):
            run.press("CmdOptions")
            self.desktop.window(layout.OPTIONS).click(*layout.level_text(7))
            run.answer_dialog(layout.OPTIONS, layout.OPTIONS_OK)
        self.end_in_menu(run)

    def test_dialogs_follow_the_main_window(self):
        run = self.start()
        left, top, _, _ = run.main.place()
        run.desktop.mouse("windowmove", "--sync", run.main.number, 40, 60)
        wait_for(lambda: run.main.place()[:2] != (left, top), 3, "the window to move")
        time.sleep(0.2)  # the desktop tells the program where it is now
        dialog = run.open_dialog("CmdAbout", layout.ABOUT)
        self.check_window(run, dialog, layout.ABOUT)

    def test_nothing_reaches_the_window_behind(self):
        run = self.start()
        dialog = run.open_dialog("CmdAbout", layout.ABOUT)
        faces = [run.face(button) for button in ("CommandExit", "CmdOptions")]
        for place in (layout.middle("CommandExit"), layout.middle("CmdOptions"), LEFT_OF_ABOUT):
            run.main.click(*place)
        run.main.use_close_box()
        run.main.key("Escape")
        self.assertTrue(holds_for(run.is_running, 0.3))
        self.assertTrue(dialog.is_visible())
        self.assertEqual([run.face(button) for button in ("CommandExit", "CmdOptions")], faces)
        self.assertEqual(run.desktop.windows(layout.OPTIONS), [])
        # And none of it was kept for later.
        dialog.click(*layout.ABOUT_OK)
        run.wait_for_close(layout.ABOUT)
        self.assertTrue(holds_for(run.is_running, 0.2))
        self.assertTrue(run.in_main_menu())
        # A place behind a dialog is not the same place in the dialog.
        dialog = run.open_dialog("CmdOptions", layout.OPTIONS)
        run.main.click(*layout.OPTIONS_OK)
        self.assertTrue(holds_for(dialog.is_visible, 0.2))

    def test_a_game_stands_still_behind_a_dialog(self):
        run = self.start(self.settings(later_run(StartLevel="3")))
        run.press("CommandArcade")
        run.wait_for_motion()
        for button, title, ok in DIALOGS:
            with self.subTest(dialog=title):
                dialog = run.open_dialog(button, title)
                self.assertTrue(run.stands_still(0.3), "beams move behind a dialog")
                dialog.click(*ok)
                run.wait_for_close(title)
                run.wait_for_motion()
        # A game that was paused before stays paused.
        run.press("cmdPause")
        run.wait_for_stillness()
        run.open_dialog("CmdAbout", layout.ABOUT).use_close_box()
        run.wait_for_close(layout.ABOUT)
        self.assertTrue(run.stands_still())

    def test_the_result_closed_by_its_close_box_leaves_the_lost_puzzle(self):
        run = self.start()
        puzzle, head = STRAIGHT_DOWN
        run.press("CommandPuzzle")
        for _ in range((puzzle - 1) // 9):
            run.press("CommandNext")
        run.main.click(*layout.cell(puzzle))
        run.press("CmdStart")
        run.wait_for_motion()
        run.main.click(*head, button=3)
        dialog = run.desktop.window(layout.RESULT, 10)
        self.check_window(run, dialog, layout.RESULT)
        dialog.use_close_box()
        run.wait_for_close(layout.RESULT)
        self.assertGreater(run.coloured(layout.PLAYFIELD) + run.main.pixels(*layout.PLAYFIELD).count(layout.GREY), 1000)
        self.assertTrue(run.stands_still())
        run.press("CmdStart")  # reads Restart
        wait_for(lambda: run.main.pixels(*layout.PLAYFIELD).count(layout.GREY) == 0, 3, "the puzzle anew")


if __name__ == "__main__":
    harness.run()
