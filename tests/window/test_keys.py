"""Keys in a real window: the same path through the game as in a headless one, and the mark at the chosen place."""
import contextlib
import json
import re
import signal

import harness
import game
import layout
from desktop import Desktop, Missing, wait_for

WHITE = 0xFFFFFF
SOLUTIONS = json.loads((harness.ROOT / "tests/support/solutions.json").read_text())
PUZZLES = [2, 4, 11, 12, 32]  # which leave time to choose
KEYS = {"bend": "space", "run": "Return"}
NEAR = 10  # game pixels, which a beam's end moves in as many ticks
RING, FRAME = 10, 89  # how far above the middle of a beam's end, and of a preview, its mark begins


class KeyPlayer:
    """Chooses places on the playfield, which are known by the mark around them, and presses there. The game is halted while
    this thinks, so it waits for slow machines."""

    def __init__(self, run):
        self.run, self.look, self.page = run, run.main.viewer(*layout.PLAYFIELD), 0

    def mark(self):
        """The middle of the mark's upper edge, or nothing."""
        picture, white = self.look(), b"\xff\xff\xff\0"
        begin, row = picture.data.find(white), 4 * picture.width
        if begin < 0:
            return None
        end = picture.data.rfind(white, begin, (begin // row + 1) * row)
        return layout.PLAYFIELD[0] + (begin + end) // 8 % picture.width, layout.PLAYFIELD[1] + begin // row

    def press(self, *keys):
        """Presses keys and lets the game go on until the picture has changed."""
        before = self.look()
        for key in keys:
            self.run.main.key(key)
        self.run.process.send_signal(signal.SIGCONT)
        with contextlib.suppress(Missing):
            wait_for(lambda: self.look() != before, 0.1)
        self.run.process.send_signal(signal.SIGSTOP)

    def choose(self, x, y):
        """Tabs until the mark's upper edge has its middle near that place."""
        is_near = lambda mark: mark and max(abs(mark[0] - x), abs(mark[1] - y)) <= NEAR
        for _ in range(4000):  # on a fast machine several for each tick
            if is_near(self.mark()):
                return
            self.press("Tab")
        raise Missing(f"a mark near {x}, {y}")

    def solve(self, puzzle):
        """From the puzzle menu and back."""
        for _ in range((puzzle - 1) // 9 - self.page):
            self.press("Next")
        self.page = (puzzle - 1) // 9
        x, y = layout.cell(puzzle)
        self.choose(x, y - FRAME)
        self.press("Return", "r")
        for what, *place in re.findall(r"(\w+) (\d+),(\d+)", SOLUTIONS[str(puzzle)]):
            x, y = map(int, place)
            self.choose(x, y - RING)
            while self.mark() and self.mark()[1] < y - RING:
                self.press()
            self.press(KEYS[what])
        self.run.process.send_signal(signal.SIGCONT)
        self.run.desktop.window(layout.RESULT, 20).key("Escape")
        self.run.wait_for_close(layout.RESULT)
        self.press("Escape")


class Keys(harness.WindowTest):
    def test_a_puzzle_is_picked_and_played_and_the_mouse_takes_the_mark_away(self):
        run = self.start()
        marks = lambda: run.main.pixels(14, 20, 656, 566).count(WHITE)
        run.rest_mouse()
        run.main.key("Tab")
        run.main.key("Return")
        wait_for(lambda: not run.in_main_menu(), 3, "the puzzle menu")
        self.assertEqual(marks(), 0)
        for key in ("Tab", "Right", "Down"):
            run.main.key(key)
        wait_for(lambda: run.main.pixels(238, 214, 210, 2).count(WHITE) == 420, 3, "a frame around puzzle 5")
        run.main.key("Return")
        wait_for(lambda: marks() == 0, 3, "the puzzle")
        run.main.key("r")
        run.wait_for_motion()
        run.main.key("Left")
        wait_for(lambda: 100 < marks() < 200, 3, "a ring")
        run.main.move(500, 500)
        wait_for(lambda: marks() == 0, 3, "the ring to go")
        run.main.key("p")
        self.assertTrue(run.stands_still())

    def test_five_puzzles_are_solved(self):
        settings = self.settings(game.later_run())
        run = self.start(settings)
        run.rest_mouse()
        run.main.key("Tab")
        run.main.key("Return")
        wait_for(lambda: not run.in_main_menu(), 3, "the puzzle menu")
        player = KeyPlayer(run)
        for puzzle in PUZZLES:
            player.solve(puzzle)
        run.process.send_signal(signal.SIGCONT)
        while run.is_running():
            run.main.key("Escape")
        self.assertEqual(list(map(int, settings.solved())), PUZZLES)

    def test_the_whole_display(self):
        run = self.start()
        run.rest_mouse()
        for key, width in (("F11", 1280), ("F11", 802), ("alt+Return", 1280), ("Escape", None)):
            run.main.key(key)
            if width:
                wait_for(lambda: run.main.place()[2] == width, 3, f"a width of {width}")
        self.assertEqual(run.wait_for_end(), 0)

    def test_a_small_display_holds_the_whole_window(self):
        shared, self.desktop = self.desktop, Desktop(size="800x600")
        self.addCleanup(lambda: self.desktop.stop() or setattr(self, "desktop", shared))
        run = self.start(shows_up=False)
        run.wait_for_main_window()
        bottom = lambda: sum(run.main.place()[1::2]) + run.main.frame()[3]
        wait_for(lambda: run.main.frame()[2] > 0 and 500 < bottom() <= 600, 1, "the ground to be seen")
        left, _, width, _ = run.main.place()
        self.assertTrue(0 <= left and left + width <= 800)


if __name__ == "__main__":
    harness.run()
