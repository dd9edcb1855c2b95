"""What the mouse and the window manager do to the game: hover faces, double clicks, minimising."""
import time

import harness
import layout
from desktop import wait_for
from game import APART, later_run

MENU_BUTTONS = ("CommandPuzzle", "CommandArcade", "CmdOptions", "CmdScores", "CmdAbout", "CommandExit")
ROOM = 120  # pixels to a wall


class Hover(harness.WindowTest):
    def test_faces_follow_the_pointer_in_the_menu(self):
        run = self.start()
        run.rest_mouse()
        up = {button: run.face_at_rest(button) for button in MENU_BUTTONS}
        for button in MENU_BUTTONS:
            with self.subTest(button=button):
                run.main.move(*layout.middle(button))
                wait_for(lambda: run.face(button) != up[button], 2, "the Down face")
                run.rest_mouse()
                wait_for(lambda: run.face(button) == up[button], 2, "the Up face")

    def test_a_face_stays_down_over_the_playfield(self):
        run = self.start()
        run.press("CommandPuzzle")
        wait_for(lambda: not run.in_main_menu(), 3, "the puzzle menu")
        up = run.face_at_rest("CmdAbout")
        run.main.move(*layout.middle("CmdAbout"))
        down = wait_for(lambda: run.face("CmdAbout") != up and run.face("CmdAbout"), 2, "the Down face")
        # xdotool's jump leaves out what lies between: the first place it comes to is on the playfield.
        run.main.move(300, 500)
        run.main.move(670, 500)
        time.sleep(0.1)
        self.assertEqual(run.face("CmdAbout"), down)
        run.main.move(673, 500)
        wait_for(lambda: run.face("CmdAbout") == up, 2, "the Up face")


class DoubleClick(harness.WindowTest):
    def line(self, run):
        """The way of the lowest beam and the line on which it runs, as x - way * y."""
        x, y = run.wait_for_lowest_head(70)
        while True:
            nextX, nextY = run.wait_for_lowest_head(y + 4)
            if abs(nextX - x) == nextY - y:
                way = 1 if nextX > x else -1
                return way, nextX - way * nextY
            x, y = nextX, nextY

    def test_it_bends_twice(self):
        run = self.start(self.settings(later_run(StartLevel="2")))
        run.press("CommandArcade")

        def is_free():
            head = run.lowest_head()
            return head and layout.PLAYFIELD[0] + ROOM < head[0] < layout.PLAYFIELD[0] + layout.PLAYFIELD[2] - ROOM

        wait_for(is_free, 15, "a beam far from the walls")
        way, line = self.line(run)
        run.main.click(*run.lowest_head(), times=2, delay=300)
        newWay, newLine = self.line(run)
        # One bend would have turned it; two shift its line by twice the way that it has run in between.
        self.assertEqual(newWay, way)
        self.assertGreaterEqual(abs(newLine - line), 4)
        self.assertLess(abs(newLine - line), 40)


class Minimise(harness.WindowTest):
    def test_an_arcade_game_waits_for_resume(self):
        run = self.start(self.settings(later_run(StartLevel="3")))
        run.press("CommandArcade")
        run.wait_for_motion()
        pause = run.face_at_rest("cmdPause")
        run.press("cmdPause")
        run.wait_for_stillness()
        resume = run.face_at_rest("cmdPause")
        self.assertNotEqual(resume, pause)
        time.sleep(APART)
        run.press("cmdPause")
        run.wait_for_motion()
        run.rest_mouse()
        run.desktop.mouse("windowminimize", "--sync", run.main.number)
        wait_for(lambda: not run.main.is_visible(), 3, "the window to go")
        run.desktop.mouse("windowmap", "--sync", run.main.number)
        wait_for(run.main.is_visible, 3, "the window to come back")
        wait_for(lambda: run.face("cmdPause") == resume, 3, "the face of Resume")
        self.assertTrue(run.stands_still())
        run.press("cmdPause")
        run.wait_for_motion()


if __name__ == "__main__":
    harness.run()
