"""What outlasts a run, and what does not: options, scores, and every way in which the program can end."""
import signal

import desktop
import game
import harness
import layout
from desktop import wait_for
from game import later_run

ALL_VALUES = 79
MARKS = (21, 16, 200, 220)  # of the options: levels, effects, music


class Options(harness.WindowTest):
    def test_options_are_found_again(self):
        settings = self.settings(later_run(StartLevel="2"))
        run = self.start(settings)
        dialog = run.open_dialog("CmdOptions", layout.OPTIONS)
        before = dialog.pixels(*MARKS)
        for place in (layout.level_text(7), layout.EFFECTS, layout.MUSIC):
            last = dialog.pixels(*MARKS)
            dialog.click(*place)
            wait_for(lambda: dialog.pixels(*MARKS) != last, 3, f"a mark at {place}")
        chosen = dialog.pixels(*MARKS)
        dialog.click(*layout.OPTIONS_OK)
        run.wait_for_close(layout.OPTIONS)
        self.end_in_menu(run)
        general = settings.read()["General"]
        self.assertEqual((general["StartLevel"], general["Music"], general["SoundEffects"]), ("7", "True", "False"))
        run = self.start(settings)
        dialog = run.open_dialog("CmdOptions", layout.OPTIONS)
        self.assertNotEqual(chosen, before)
        wait_for(lambda: dialog.pixels(*MARKS) == chosen, 3, "the options as they were left")

    def test_a_level_without_ok_is_forgotten(self):
        settings = self.settings(later_run(StartLevel="2"))
        run = self.start(settings)
        dialog = run.open_dialog("CmdOptions", layout.OPTIONS)
        dialog.click(*layout.level_text(9))
        dialog.click(*layout.EFFECTS)
        dialog.use_close_box()
        run.wait_for_close(layout.OPTIONS)
        self.end_in_menu(run)
        general = settings.read()["General"]
        self.assertEqual((general["StartLevel"], general["SoundEffects"]), ("2", "False"))


class Scores(harness.WindowTest):
    def play_for_a_score(self, run):
        """Plays until there is a score, and then until the game is over."""
        run.press("CommandArcade")
        run.wait_for_motion()
        high = run.face("VHighScore")
        for _ in range(60):
            if run.face("VHighScore") != high or self.desktop.windows(layout.SCORES):
                break
            for spot in run.spots():
                run.main.click(*spot, button=3)
        scored = run.face("VHighScore") != high
        return scored, self.desktop.window(layout.SCORES, 20)

    def test_a_score_is_entered_and_shown_again(self):
        settings = self.settings(later_run(StartLevel="8"))
        run = self.start(settings)
        empty = run.open_dialog("CmdScores", layout.SCORES).pixels(*layout.FIRST_SCORE)
        run.answer_dialog(layout.SCORES, layout.SCORES_OK)
        for _ in range(3):
            scored, dialog = self.play_for_a_score(run)
            entered = dialog.pixels(*layout.FIRST_SCORE)
            run.answer_dialog(layout.SCORES, layout.SCORES_OK)
            run.wait_for_main_menu()
            if scored:
                break
        self.assertNotEqual(entered, empty)
        self.end_in_menu(run)
        stored = settings.read()["Scores"]
        self.assertGreater(int(stored["Score1"]), 0)
        self.assertEqual(stored["Level1"], "8")
        run = self.start(settings)
        dialog = run.open_dialog("CmdScores", layout.SCORES)
        wait_for(lambda: dialog.pixels(*layout.FIRST_SCORE) == entered, 3, "the score")
        dialog.click(*layout.CLEAR_SCORES)
        wait_for(lambda: dialog.pixels(*layout.FIRST_SCORE) == empty, 3, "a cleared table")


class Ends(harness.WindowTest):
    def playing(self, settings):
        run = self.start(settings)
        run.press("CommandArcade")
        run.wait_for_motion()
        return run

    def test_every_orderly_end_saves(self):
        ends = {
            "SIGTERM": lambda run: run.kill(signal.SIGTERM),
            "SIGINT": lambda run: run.kill(signal.SIGINT),
            "close box": lambda run: run.main.use_close_box() or run.wait_for_end(),
        }
        for name, end in ends.items():
            with self.subTest(end=name):
                settings = self.settings(later_run())
                run = self.playing(settings)
                self.assertEqual(end(run), 0)
                self.assertEqual(sum(len(values) for values in settings.read().values()), ALL_VALUES)
                self.assertEqual(run.said(), "")

    def test_the_end_of_the_display_saves(self):
        settings = self.settings(later_run())
        display = desktop.Desktop()
        self.addCleanup(display.stop)
        run = game.Game(display, self.install(), settings, harness.ASSETS)
        run.press("CommandArcade")
        run.wait_for_motion()
        display.processes[0].terminate()
        self.assertEqual(run.wait_for_end(), 0)
        self.assertEqual(sum(len(values) for values in settings.read().values()), ALL_VALUES)
        self.assertEqual(run.said(), "")

    def test_a_killed_game_leaves_the_settings_alone(self):
        settings = self.settings(later_run(StartLevel="5"))
        before = settings.file.read_bytes()
        run = self.playing(settings)
        run.kill(signal.SIGKILL)
        self.assertEqual(settings.file.read_bytes(), before)
        self.assertEqual([entry.name for entry in settings.file.parent.iterdir()], [settings.file.name])

    def test_escape_goes_one_step_back(self):
        settings = self.settings(later_run())
        run = self.playing(settings)
        run.main.key("Escape")
        run.wait_for_main_menu()
        run.press("CommandPuzzle")
        wait_for(lambda: not run.in_main_menu(), 3, "the puzzle menu")
        menu = run.face_at_rest("LabelPuzzlePage")
        run.main.click(*layout.cell(2))
        wait_for(lambda: run.face("LabelPuzzlePage") != menu, 3, "a puzzle that waits")
        run.press("CmdStart")
        run.wait_for_motion()
        run.main.key("Escape")
        wait_for(lambda: run.face("LabelPuzzlePage") == menu, 3, "the puzzle menu")
        run.main.key("Escape")
        run.wait_for_main_menu()
        run.main.key("Escape")
        self.assertEqual(run.wait_for_end(), 0)
        self.assertEqual(sum(len(values) for values in settings.read().values()), ALL_VALUES)


if __name__ == "__main__":
    harness.run()
