"""Puzzles as a player meets them: the first start with its tutorial, and a puzzle lost and then watched being solved."""
import harness
import layout
from desktop import wait_for
from game import later_run

PICTURE_SHOWS = 1500  # pixels that a tutorial picture changes at least, and beams do not between two of them
PUZZLE = 37  # on the last page; its solution is short
PUZZLE_HEAD = (334, 340)  # of a beam that runs straight to the floor
SOLUTION_SECONDS = 30


class FirstStart(harness.WindowTest):
    def take_step(self, run, before, box, spot, button):
        """Waits for a picture of the tutorial over what was there before, and clicks its spot."""
        look = run.main.viewer(*box)
        wait_for(lambda: look().different(before) > PICTURE_SHOWS, 10, f"a picture at {box}")
        self.assertTrue(run.stands_still(0.3), "beams move behind a picture")
        run.main.click(*spot, button=button)
        run.wait_for_motion()

    def test_the_tutorial_leads_to_puzzle_2(self):
        settings = self.settings({"General": {"Music": "False"}})
        run = self.start(settings)
        run.answer_dialog(layout.ABOUT, layout.ABOUT_OK)
        wait_for(lambda: run.coloured(layout.PLAYFIELD) > 1000, 5, "the beams of puzzle 1")
        self.assertTrue(run.stands_still(), "puzzle 1 does not wait")
        before = run.main.pixels(*layout.TUTORIAL[0][0])
        run.press("CmdStart")
        for number, step in enumerate(layout.TUTORIAL):
            self.take_step(run, before if number == 0 else run.main.pixels(*step[0]), *step)
        # Next Puzzle is clicked where only that button can stand: had the puzzle been lost, the dialog would stay.
        run.answer_dialog(layout.RESULT, layout.NEXT_PUZZLE, 20)
        wait_for(lambda: run.coloured(layout.PLAYFIELD) > 1000, 5, "the beams of puzzle 2")
        self.assertTrue(run.stands_still(), "puzzle 2 does not wait")
        run.press("CommandExit")
        wait_for(lambda: run.face("CommandNext").count(0) < 100, 5, "the puzzle menu")
        run.press("CommandExit")
        run.wait_for_main_menu()
        self.end_in_menu(run)
        solved = [name for name, value in settings.read()["SolvedPuzzles"].items() if value == "True"]
        self.assertEqual(solved, ["Puzzle1"])
        self.assertEqual(settings.general("PlayFirstTime"), "False")


class LostPuzzle(harness.WindowTest):
    def turn_to_last_page(self, run):
        names = [run.face("LabelPuzzlePage")]
        for _ in range(4):
            run.press("CommandNext")
            names.append(wait_for(lambda: self.new_name(run, names), 3, "the next page"))
        run.press("CommandNext")
        self.assertTrue(run.stands_still(0.2))
        self.assertEqual(run.face("LabelPuzzlePage"), names[-1])
        return names[-1]

    @staticmethod
    def new_name(run, names):
        name = run.face("LabelPuzzlePage")
        return None if name in names else name

    def test_a_lost_puzzle_is_watched_being_solved(self):
        settings = self.settings(later_run())
        run = self.start(settings)
        run.press("CommandPuzzle")
        wait_for(lambda: run.coloured(layout.PLAYFIELD) > 1000, 5, "the puzzle menu")
        page = self.turn_to_last_page(run)
        run.main.click(*layout.cell(PUZZLE))
        wait_for(lambda: run.coloured((14, 360, 656, 220)) == 0, 5, "a puzzle in place of the menu")
        run.press("CmdStart")
        run.wait_for_motion()
        run.main.click(*PUZZLE_HEAD, button=3)
        run.answer_dialog(layout.RESULT, layout.TRY_AGAIN, 10)
        self.assertTrue(run.stands_still(), "the second try does not wait")
        run.press("CmdStart")
        run.wait_for_motion()
        run.main.click(*PUZZLE_HEAD, button=3)
        run.answer_dialog(layout.RESULT, layout.SHOW_SOLUTION, 10)
        run.wait_for_motion()
        run.main.click(*PUZZLE_HEAD, button=3)  # no business of the player's in a solution
        run.answer_dialog(layout.RESULT, layout.RESULT_MENU, SOLUTION_SECONDS)
        wait_for(lambda: run.face("LabelPuzzlePage") == page, 5, "the page of the menu that was left")
        run.press("CommandExit")
        run.wait_for_main_menu()
        self.end_in_menu(run)
        self.assertNotIn("True", settings.read()["SolvedPuzzles"].values())


if __name__ == "__main__":
    harness.run()
