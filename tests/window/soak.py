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

HERE = pathlib.Path(__file__).resolve().parent
LONGEST_RUN = 60  # seconds; then the game gets a SIGTERM
LEAKS = {"LSAN_OPTIONS": f"suppressions={HERE / 'leaks.txt'}:print_suppressions=0"}
# Words of xdotool, by how often they come: W is a window, P and Q are places in it, B is a mouse button, K a key.
ACTIONS = {
    "mousemove --window W P click B": 60,
    "mousemove --window W P click --repeat 2 --delay 30 B": 8,
    "mousemove --window W P mousedown B mousemove --window W Q mouseup B": 6,
    "mousemove --window W P": 8,
    "mousemove --window W P click 4 click 7": 2,
    "key K": 6,
    "windowmove W P": 2,
    "windowminimize W sleep 0.2 windowmap W": 1,
    "windowunmap W sleep 0.1 windowmap W": 1,
}
KEYS = ("Escape", "Return", "space", "Tab", "F1", "a", "Left", "alt+F4", "ctrl+c")


def place(chance, title):
    """Anywhere in a window, but in the main window often on something that can be clicked."""
    if title == layout.MAIN and chance.random() < 0.3:
        x, y = layout.middle(chance.choice([name for window, name in layout.BOXES if window == title and name[0] in "Cc"]))
    else:
        x, y = map(chance.randrange, layout.SIZES.get(title, (300, 150)))
    return f"{x} {y}"


def act(screen, chance):
    """Eight actions in one of the two topmost windows."""
    found = screen.output("xdotool", "search", "--onlyvisible", "--class", "prismfall").split()
    if not found:  # minimising a dialog takes the main window with it; both come back by their buttons in the taskbar
        found = screen.output("xdotool", "search", "--name", f"^{layout.MAIN}$").split()
        return [screen.mouse("windowmap", number, "windowactivate", number) for number in found]
    number = chance.choice(found[-2:])
    title = screen.output("xdotool", "getwindowname", number).strip()
    words = []
    for action in chance.choices(list(ACTIONS), list(ACTIONS.values()), k=8):
        chosen = {"W": number, "P": place(chance, title), "Q": place(chance, title), "B": str(chance.choice((1, 1, 1, 1, 3, 3, 2))),
                  "K": chance.choice(KEYS if chance.random() < 0.2 else KEYS[:-2])}
        words += " ".join(chosen.get(word, word) for word in action.split()).split()
    screen.mouse(*words)
    if chance.random() < 0.02:
        screen.output("wmctrl", "-i", "-c", number)
    return title


def play(screen, program, chance, end):
    """One run of the program; it may lose a puzzle first, which seldom comes by chance. Gives what is wrong with it."""
    general = {"Music": chance.choice(("True", "False")), "StartLevel": str(chance.randint(1, 12))}
    settings = game.Settings(None if chance.random() < 0.2 else game.later_run(**general))
    run = game.Game(screen, program, settings, HERE.parents[1] / "assets", environment=LEAKS, shows_up=False)
    run.wait_for_main_window()
    stop = min(end, time.monotonic() + LONGEST_RUN)
    try:
        if settings.file.exists() and chance.random() < 0.5:
            run.start_puzzle(layout.STRAIGHT_DOWN[0])
            run.main.click(*layout.STRAIGHT_DOWN[1], button=3)
        while run.is_running() and time.monotonic() < stop:
            act(screen, chance)
        if run.is_running():
            run.process.send_signal(signal.SIGTERM)
        status = run.wait_for_end(20)
    except desktop.Missing as missing:
        run.kill(signal.SIGABRT)
        return f"{missing}\n{run.said()}"
    finally:
        settings.stop()
    return f"exit status {status}\n{run.said()}" if status or run.said() else ""


def main():
    program, seconds = pathlib.Path(sys.argv[1]).resolve(), float(sys.argv[2])
    seed = int(sys.argv[3]) if len(sys.argv) > 3 else int(time.time())
    screen, chance = desktop.Desktop(), random.Random(seed)
    end, runs, wrong = time.monotonic() + seconds, 0, ""
    while time.monotonic() < end and not wrong:
        wrong, runs = play(screen, program, chance, end), runs + 1
    print(f"seed {seed}: {runs} runs")
    if wrong:
        screen.screen.whole().save(program.parent / "soak-failure.png")
        sys.exit(wrong)


if __name__ == "__main__":
    main()
