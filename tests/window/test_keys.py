"""Keys in a real window: the same path through the game as in a headless one, and the mark at the chosen place."""
import harness
from desktop import Desktop, wait_for

WHITE = 0xFFFFFF


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
