"""A player who does anything at all, with a real mouse and keyboard: clicks, drags, keys, close boxes, minimising, moving
the window, in every screen and dialog that comes up. The game may end when it is told to; it may not crash, hang or
complain. Meant for a build with the sanitizers (script/soak).

    python3 tests/window/soak.py PROGRAM SECONDS [SEED]
"""
import pathlib
import random
import signal
import sys
import time

import desktop
import game
import layout
from desktop import Missing

HERE = pathlib.Path(__file__).resolve().parent
ASSETS = HERE.parents[1] / "assets"
ACTIONS_AT_ONCE = 8
LONGEST_RUN = 60  # seconds; then the game gets a SIGTERM
KEYS = ("Escape", "Return", "space", "Tab", "F1", "a", "Left", "alt+F4", "ctrl+c")


class Player:
    def __init__(self, program, seed):
        self.random = random.Random(seed)
        self.program = program
        self.desktop = desktop.Desktop()
        self.runs = self.actions = 0
        self.windows_seen = set()

    def spot(self, title):
        """Anywhere in a window, but in the main window often on something that can be clicked."""
        width, height = layout.DIALOG_SIZES.get(title, (802, 602))
        if title == layout.MAIN and self.random.random() < 0.3:
            return layout.middle(self.random.choice([name for name in layout.BOXES if name.startswith(("C", "c"))]))
        return self.random.randrange(width), self.random.randrange(height)

    def windows(self):
        """The program's visible windows: number and title, the topmost at the end."""
        found = self.desktop.output("xdotool", "search", "--onlyvisible", "--class", "prismfall").split()
        return [(number, self.desktop.output("xdotool", "getwindowname", number).strip()) for number in found]

    def words_for(self, number, title):
        """One action in the words of xdotool."""
        x, y = self.spot(title)
        to_x, to_y = self.spot(title)
        move = ["mousemove", "--window", number, x, y]
        kind = self.random.choices(
            ("click", "double", "drag", "key", "move", "wheel", "shift", "minimise", "hide"),
            (60, 8, 6, 6, 8, 2, 2, 1, 1),
        )[0]
        button = self.random.choice((1, 1, 1, 1, 3, 3, 2))
        return {
            "click": move + ["click", button],
            "double": move + ["click", "--repeat", 2, "--delay", 30, button],
            "drag": move + ["mousedown", button, "mousemove", "--window", number, to_x, to_y, "mouseup", button],
            "key": ["key", self.random.choice(KEYS if self.random.random() < 0.2 else KEYS[:-2])],
            "move": move,
            "wheel": move + ["click", self.random.choice((4, 5, 6, 7, 8, 9))],
            "shift": ["windowmove", number, self.random.randrange(500), self.random.randrange(400)],
            "minimise": ["windowminimize", number, "sleep", 0.2, "windowmap", number],
            "hide": ["windowunmap", number, "sleep", 0.1, "windowmap", number],
        }[kind]

    def restore(self):
        """Minimising a dialog takes the main window with it; both come back by their buttons in the taskbar."""
        for number in self.desktop.output("xdotool", "search", "--name", f"^{layout.MAIN}$").split():
            self.desktop.mouse("windowmap", number, "windowactivate", number)

    def act(self):
        windows = self.windows()
        if not windows:
            return self.restore()
        number, title = self.random.choice(windows[-2:])
        self.windows_seen.add(title or "a window that has just gone")
        words = [word for _ in range(ACTIONS_AT_ONCE) for word in self.words_for(number, title)]
        self.actions += ACTIONS_AT_ONCE
        self.desktop.mouse(*words)
        if self.random.random() < 0.02:
            self.desktop.output("wmctrl", "-i", "-c", number)

    def settings(self):
        values = game.later_run(
            Music=self.random.choice(("True", "False")), StartLevel=str(self.random.randint(1, 12))
        )
        solved = {f"Puzzle{puzzle}": str(self.random.random() < 0.5) for puzzle in range(1, 46)}
        return game.Settings(values | {"SolvedPuzzles": solved})

    def lose_a_puzzle(self, run):
        """Without a plan a puzzle seldom comes to its end. So it is started, and its beams are run to the ground."""
        run.press("CommandPuzzle")
        time.sleep(0.3)
        run.main.click(*layout.cell(self.random.randint(2, 9)))
        time.sleep(0.3)
        run.press("CmdStart")
        end = time.monotonic() + 20
        while run.is_running() and not self.desktop.windows(layout.RESULT) and time.monotonic() < end:
            left, top, width, height = layout.PLAYFIELD
            spot = left + self.random.randrange(width), top + self.random.randrange(height)
            run.main.click(*spot, button=3, times=5)

    def play(self, end):
        """One run of the program. Gives what is wrong with it, or nothing."""
        is_first = self.random.random() < 0.2
        settings = game.Settings() if is_first else self.settings()
        leaks = {"LSAN_OPTIONS": f"suppressions={HERE / 'leaks.txt'}:print_suppressions=0"}
        run = game.Game(self.desktop, self.program, settings, ASSETS, environment=leaks, shows_up=False)
        self.runs += 1
        stop = min(end, time.monotonic() + LONGEST_RUN)
        run.main = run.wait_for_main_window()
        if not is_first and self.random.random() < 0.5:
            self.lose_a_puzzle(run)
        while run.is_running() and time.monotonic() < stop:
            self.act()
        if run.is_running():
            run.process.send_signal(signal.SIGTERM)
        try:
            status = run.wait_for_end(20)
        except Missing:
            run.kill(signal.SIGABRT)
            return f"does not end\n{run.said()}"
        finally:
            settings.stop()
        return "" if status == 0 and not run.said() else f"exit status {status}\n{run.said()}"


def main():
    program, seconds = pathlib.Path(sys.argv[1]).resolve(), float(sys.argv[2])
    seed = int(sys.argv[3]) if len(sys.argv) > 3 else int(time.time())
    player = Player(program, seed)
    end = time.monotonic() + seconds
    wrong = ""
    while time.monotonic() < end and not wrong:
        wrong = player.play(end)
    print(f"seed {seed}: {player.runs} runs, {player.actions} actions in {', '.join(sorted(player.windows_seen))}")
    if wrong:
        player.desktop.screen.whole().save(program.parent / "soak-failure.png")
        sys.exit(wrong)


if __name__ == "__main__":
    main()
