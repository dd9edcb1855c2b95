"""Random input from a real mouse and keyboard: clicks, drags, keys, close boxes, minimising, moving the window, in every
screen and dialog that comes up. The game may end when told to; it may not crash, hang or complain. Meant for a build with
the sanitizers (script/soak).

    python3 tests/window/soak.py PROGRAM SECONDS [SEED]
"""
import pathlib
import random
import signal
import sys
import time

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parents[1] / "tools/desktop"))

import desktop  # noqa: E402
import game  # noqa: E402
import layout  # noqa: E402

LEAKS = {"LSAN_OPTIONS": f"suppressions={HERE / 'leaks.txt'}:print_suppressions=0"}
LONGEST_RUN = 60  # seconds; then the game gets a SIGTERM
# xdotool commands, weighted by repetition: W is a window, P a place in it, B a mouse button, K a key.
ACTIONS = {"mousemove --window W P click B": 60, "mousemove --window W P click --repeat 2 --delay 30 B": 8, "key K": 6,
           "mousemove --window W P mousedown B mousemove --window W P mouseup B": 6, "mousemove --window W P click 4": 2,
           "windowmove W P": 2, "windowminimize W sleep 0.2 windowmap W": 1, "windowunmap W sleep 0.1 windowmap W": 1}
PLACES = [(x + width // 2, y + height // 2) for x, y, width, height in layout.BOXES.values()]


def chosen(chance, number):
    x, y = chance.choice((chance.choice(PLACES), (chance.randrange(802), chance.randrange(602))))
    keys = ("Escape", "Return", "space", "Tab", "F1", "a", "Left", chance.choice(("alt+F4", "ctrl+c", "b", "c", "d")))
    return {"W": number, "P": f"{x} {y}", "B": str(chance.choice((1, 1, 1, 1, 3, 3, 2))), "K": chance.choice(keys)}


def play(screen, program, chance, end):
    """One run of the program. Returns what went wrong, or nothing."""
    general = {"Music": chance.choice(("True", "False")), "StartLevel": str(chance.randint(1, 12))}
    settings = game.Settings(None if chance.random() < 0.2 else game.later_run(**general))
    run = game.Game(screen, program, settings, HERE.parents[1] / "assets", environment=LEAKS, shows_up=False)
    stop = min(end, time.monotonic() + LONGEST_RUN)
    while run.is_running() and time.monotonic() < stop:
        found = screen.output("xdotool", "search", "--onlyvisible", "--class", "prismfall").split()
        for number in found[-2:] or screen.output("xdotool", "search", "--name", f"^{layout.MAIN}$").split():
            words = [] if found else ["windowmap", number, "windowactivate", number]  # with its button in the taskbar
            for action in chance.choices(list(ACTIONS), list(ACTIONS.values()), k=4):
                words += [part for word in action.split() for part in chosen(chance, number).get(word, word).split()]
            screen.mouse(*words)
    if run.is_running():
        run.process.send_signal(signal.SIGTERM)
    status = run.wait_for_end(20)
    settings.stop()
    return f"exit status {status}\n{run.said()}" if status or run.said() else ""


program, seconds = pathlib.Path(sys.argv[1]).resolve(), float(sys.argv[2])
seed = int(sys.argv[3]) if len(sys.argv) > 3 else int(time.time())
screen, chance, end = desktop.Desktop(), random.Random(seed), time.monotonic() + seconds
while time.monotonic() < end:
    wrong = play(screen, program, chance, end)
    if wrong:
        sys.exit(f"seed {seed}: {wrong}")
