"""Arcade games played with a real mouse: hover, double click, pause, minimise, and a game to its end."""
import time

import harness
import layout
from desktop import wait_for
from game import later_run

END_SOUND = 1.01  # seconds


class Arcade(harness.WindowTest):
    def test_played_by_hand(self):
        run = self.start(self.settings(later_run(StartLevel="3")))
        run.rest_mouse()
        up = run.face("CommandArcade")
        run.main.move(*layout.middle("CommandArcade"))
        wait_for(lambda: run.face("CommandArcade") != up, 2, "the Down face")
        run.press("CommandArcade")
        wait_for(lambda: run.coloured(layout.ENTRY_ZONE) > 20, 5, "spots in the entry zone")
        pause = run.face("cmdPause")
        run.main.click(*layout.middle("cmdPause"), times=2, delay=100)  # the second makes a double click: ignored
        run.rest_mouse()
        wait_for(run.stands_still, 3, "beams to stand still")
        resume = run.face("cmdPause")
        self.assertNotEqual(resume, pause)
        time.sleep(0.5)  # to avoid a double click
        run.press("cmdPause")
        run.wait_for_motion()
        run.rest_mouse()
        run.desktop.mouse("windowminimize", "--sync", run.main.number)
        wait_for(lambda: not run.main.is_visible(), 3, "the window to go")
        run.desktop.mouse("windowmap", "--sync", run.main.number)
        wait_for(lambda: run.main.is_visible() and run.face("cmdPause") == resume, 3, "the face of Resume")
        self.assertTrue(run.stands_still(), "a game that was minimised waits")
        run.main.key("Escape")
        run.wait_for_main_menu()
        self.end_in_menu(run)

    def test_played_to_the_floor(self):
        settings = self.settings(later_run(StartLevel="10"))
        run = self.start(settings)
        run.press("CommandArcade")
        looks = []  # when they began; the last but one was before the beam reached the floor
        wait_for(lambda: looks.append(time.monotonic()) or run.lowest_head(583), 15, "a beam at the floor")
        field = run.main.viewer(*layout.BELOW_BLUE_LINE)
        wait_for(lambda: field().count(layout.GREY) > 0, 5, "the grey sweep")
        self.assertGreater(time.monotonic() - looks[-2], END_SOUND, "the sweep waits for the sound")
        run.desktop.window(layout.SCORES)
        wait_for(lambda: field().count(*layout.CORES) == 0, 2, "an end of all colours")
        run.answer_dialog(layout.SCORES)
        run.wait_for_main_menu()
        self.end_in_menu(run)
        self.assertEqual(sum(len(values) for values in settings.read().values()), 79)


if __name__ == "__main__":
    harness.run()
