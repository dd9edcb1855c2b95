"""An Arcade game played with the mouse: spots and trails, a bend, a speed-up, leaving, and a game to its end."""

import time

import harness
import layout
from desktop import holds_for, wait_for
from game import later_run

PATIENT = later_run(StartLevel="1")
BRISK = later_run(StartLevel="3")
FASTEST = later_run(StartLevel="10")
FARTHER_THAN_TICKS = 200  # coloured pixels more than all beams together grow in the time of a look
FLOOR = 586
END_SOUND = 1.01  # seconds
ROOM = 80  # pixels to a wall, enough to measure and to bend


class Arcade(harness.WindowTest):
    def drift(self, run):
        """1 or -1: which way the lowest beam runs; and where it has come to."""
        x, y = run.wait_for_lowest_head(70)
        for _ in range(40):
            nextX, nextY = run.wait_for_lowest_head(y + 6)
            if abs(nextX - x) == nextY - y:
                return (1 if nextX > x else -1), (nextX, nextY)
            x, y = nextX, nextY
        return self.fail("the lowest beam never runs straight")

    def wait_for_room(self, run):
        """Until no wall is near the lowest beam, on either side."""
        left, _, width, _ = layout.PLAYFIELD

        def has_room():
            head = run.lowest_head()
            return head and left + ROOM < head[0] < left + width - ROOM

        wait_for(has_room, 15, "a beam far from the walls")

    def test_beams_enter_as_spots_and_leave_trails(self):
        run = self.start(self.settings(PATIENT))
        run.press("CommandArcade")
        wait_for(run.spots, 5, "spots in the entry zone")
        wait_for(lambda: run.coloured(layout.BELOW_BLUE_LINE) > 200, 10, "a trail")
        spots = run.coloured(layout.ENTRY_ZONE)
        self.assertLess(spots, 100 * max(1, len(run.spots())), "a spot has a trail in the entry zone")
        line = run.main.pixels(14, layout.BLUE_LINE_Y, 656, 1)
        self.assertGreater(line.count(0x0000FF), 500, "the blue line")
        run.press("CommandExit")
        run.wait_for_main_menu()
        self.end_in_menu(run)

    def test_left_button_bends_a_beam(self):
        run = self.start(self.settings(BRISK))
        run.press("CommandArcade")
        self.wait_for_room(run)
        way, _ = self.drift(run)
        run.main.click(*run.lowest_head())
        bentWay, head = self.drift(run)
        self.assertEqual(bentWay, -way)
        self.assertEqual(run.main.pixels(head[0] - bentWay * 3, head[1] - 5, 1, 1).count(0), 0, "no trail behind")

    def speeds_a_beam_up(self, run):
        """Right clicks on whatever comes, for some seconds of one game; whether one of them ran far at once."""
        run.press("CommandArcade")
        run.wait_for_lowest_head(140)
        look = run.main.viewer(*layout.BELOW_BLUE_LINE)
        end = time.monotonic() + 8
        while time.monotonic() < end:
            for spot in run.spots():
                before = look().count(*layout.CORES)
                run.main.click(*spot, button=3)
                if not holds_for(lambda: look().count(*layout.CORES) < before + FARTHER_THAN_TICKS, 0.12):
                    return True
        return False

    def test_right_button_speeds_a_beam_up(self):
        run = self.start(self.settings(BRISK))
        for _ in range(6):  # beams come by chance, and a click that would end on the ground is refused
            if self.speeds_a_beam_up(run):
                return
            run.press("CommandExit")
            run.wait_for_main_menu()
        self.fail("no beam runs to its end at once")

    def test_a_game_played_to_the_floor(self):
        settings = self.settings(FASTEST)
        run = self.start(settings)
        run.press("CommandArcade")
        run.wait_for_lowest_head(FLOOR - 3, 15)
        atFloor = time.monotonic()
        field = run.main.viewer(*layout.BELOW_BLUE_LINE)
        wait_for(lambda: field().count(layout.GREY) > 0, 5, "the grey sweep")
        self.assertGreater(time.monotonic() - atFloor, END_SOUND - 0.3, "the sweep did not wait for the sound")
        scores = self.desktop.window(layout.SCORES, 15)
        wait_for(lambda: field().count(*layout.CORES) == 0, 2, "an end of all colours")
        self.assertGreater(field().count(layout.GREY), 200, "grey beams")
        self.assertTrue(scores.is_visible())
        run.answer_dialog(layout.SCORES, layout.SCORES_OK)
        run.wait_for_main_menu()
        self.end_in_menu(run)
        self.assertEqual(len(settings.read()["Scores"]), 30)


if __name__ == "__main__":
    harness.run()
