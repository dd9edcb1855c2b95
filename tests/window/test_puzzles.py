"""Puzzles played with a real mouse: the first start with its tutorial, and a puzzle lost and then watched being solved."""
import harness
import layout
from desktop import holds_for, wait_for


class Puzzles(harness.WindowTest):
    def test_the_tutorial_leads_to_puzzle_2(self):
        settings = self.settings({"General": {"Music": "False"}})
        run = self.start(settings)
        run.answer_dialog(layout.ABOUT)
        wait_for(lambda: run.coloured(layout.PLAYFIELD) > 1000, 5, "the beams of puzzle 1")
        run.press("CmdStart")
        for spot, button in layout.tutorial():
            wait_for(run.stands_still, 10, "a picture, behind which beams stand still")
            run.main.click(*spot, button=button)
            run.wait_for_motion()
        run.answer_dialog(layout.RESULT, "CommandNext", 20)
        wait_for(lambda: run.coloured(layout.PLAYFIELD) > 1000, 5, "the beams of puzzle 2")
        for _ in range(2):
            run.main.key("Escape")
        run.wait_for_main_menu()
        self.end_in_menu(run)
        self.assertEqual(settings.solved(), ["1"])

    def test_a_lost_puzzle_is_watched_being_solved(self):
        run = self.start()
        puzzle, head = layout.STRAIGHT_DOWN
        run.start_puzzle(puzzle)
        run.main.click(*head, button=3)
        run.answer_dialog(layout.RESULT, "CommandTryAgain", 10)
        self.assertTrue(run.stands_still(), "the second try waits")
        run.press("CmdStart")
        run.wait_for_motion()
        run.main.click(*head, button=3)
        run.answer_dialog(layout.RESULT, "CommandSolution", 10)
        run.wait_for_motion()
        run.main.click(*head, button=3)  # which a replay must ignore
        run.answer_dialog(layout.RESULT, "Command1", 30)
        self.assertTrue(holds_for(run.is_running, 0.2))


if __name__ == "__main__":
    harness.run()
