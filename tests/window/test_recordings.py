"""Games that are kept: listed, saved, watched, played on with, deleted; and what is no game."""
import re
import signal
import subprocess

import harness
import layout
from desktop import Window, holds_for, wait_for
from game import later_run

GAMES, PLAY_ON = "Games", "Play on"
SAVE, DELETE = (270, 395), (370, 395)
RECORDING = harness.ROOT / "tests/recordings/10-arcade-score.prismfall"


class Recordings(harness.WindowTest):
    def kept(self):
        return list((self.desktop.folder / ".local/share/prismfall/recordings").glob("*"))

    def boxes(self):
        """Its own error boxes, whose titles are set in a way of their own."""
        found = re.findall(rf'(0x\w+) "{layout.ERROR}": \(\)', self.desktop.output("xwininfo", "-root", "-tree"))
        return [Window(self.desktop, int(number, 16)) for number in found]

    def open_games(self, run):
        run.main.key("F2")
        return self.desktop.window(GAMES)

    def test_a_game_is_kept_saved_watched_played_on_and_deleted(self):
        run = self.start(self.settings(later_run(StartLevel="9")))
        run.press("CommandArcade")
        run.answer_dialog(layout.SCORES, seconds=60)
        run.wait_for_main_menu()
        (game,) = self.kept()
        dialog = self.open_games(run)
        dialog.click(*SAVE)
        saved = self.desktop.folder / f"Prismfall {game.name}"
        wait_for(saved.exists, 3, "the saved game")
        verdict = subprocess.run([self.program.parent / "prismfall-headless", "verify", saved], capture_output=True, text=True)
        self.assertRegex(verdict.stdout, r": Arcade, \d+ points, level \d+, \d+:\d\d\n$")
        dialog.key("Return")
        run.wait_for_close(GAMES)
        run.wait_for_motion()
        run.main.key("g")
        self.desktop.window(PLAY_ON).key("Return")
        run.wait_for_close(PLAY_ON)
        run.wait_for_motion()
        run.main.key("Escape")
        run.wait_for_main_menu()
        self.assertEqual(self.kept(), [game], "a game that was played on is none of the player's")
        dialog = self.open_games(run)
        dialog.click(*DELETE, times=2)
        holds_for(self.kept, 0.6)  # a double click deletes nothing
        self.assertEqual(self.kept(), [game])
        dialog.click(*DELETE)
        wait_for(lambda: not self.kept(), 3, "the game to go")
        dialog.key("Escape")
        run.wait_for_close(GAMES)
        self.end_in_menu(run)

    def test_a_crash_leaves_the_game_and_says_where(self):
        run = self.start(self.settings(later_run(StartLevel="3")))
        run.press("CommandArcade")
        run.wait_for_motion()
        run.main.click(300, 300)
        self.assertEqual(run.kill(signal.SIGSEGV), -signal.SIGSEGV)
        (game,) = self.kept()
        self.assertIn(str(game), run.said())
        self.assertIn(" press 1 ", game.read_text())
        played = subprocess.run([self.program.parent / "prismfall-headless"], input=game.read_bytes(), capture_output=True)
        self.assertEqual((played.returncode, played.stderr), (0, b""))
        wait_for(self.boxes, 5, "the system's own box")[0].key("Return")
        wait_for(lambda: not self.boxes(), 5, "the box to go")
        game.unlink()

    def test_what_cannot_be_watched_is_told(self):
        program = self.install(harness.ASSETS / "pictures")
        for words in (["--watch", __file__], ["--watch", "x#1.AA"], ["--watch", "#2.AA"], ["--watch", "/nowhere"], ["--help"]):
            run = subprocess.run([program, *words], capture_output=True, text=True, timeout=5, env=self.desktop.environment)
            self.assertEqual((run.returncode, run.stderr.count("\n")), (1, 1), run.stderr)
        for name, box in ((__file__, layout.ERROR), (RECORDING, None)):
            starter = self.folder() / "start"
            starter.write_text(f'#!/bin/sh\nexec "{program}" "{name}"\n')
            starter.chmod(0o755)
            run = self.start(program=starter)
            if box:
                self.desktop.window(box).key("Return")
                run.wait_for_close(box)
            else:
                run.wait_for_motion()
                run.main.key("Escape")
            run.wait_for_main_menu()
            self.end_in_menu(run, "line 1" if box else "")


if __name__ == "__main__":
    harness.run()
