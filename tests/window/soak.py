"""Random input from a real mouse and keyboard: clicks, drags, keys, close boxes, minimising, moving the window, in every
screen and dialog that comes up, some of it where beams end, while the program is halted now and then. The game may end when told
to; it may not crash, hang or complain, and every recording that it leaves must be true. Several desktops are played on side by
side until that many games have been recorded; a smaller number is for a build with the sanitizers (script/soak).

    python3 tests/window/soak.py PROGRAM GAMES [SEED [DESKTOPS]]
"""
import multiprocessing
import pathlib
import random
import signal
import subprocess
import sys
import time

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parents[1] / "tools/desktop"))

import desktop  # noqa: E402
import game  # noqa: E402
import layout  # noqa: E402

LEAKS = {"LSAN_OPTIONS": f"suppressions={HERE / 'leaks.txt'}:print_suppressions=0"}
LONGEST_RUN = 60  # seconds; then the game gets a SIGTERM
REPORT_PAUSE = 60  # seconds
# xdotool commands, weighted by repetition: W is a window, P a place in it, B a mouse button, K a key.
ACTIONS = {"mousemove --window W P click B": 60, "mousemove --window W P click --repeat 2 --delay 30 B": 8, "key K": 6,
           "mousemove --window W P mousedown B mousemove --window W P mouseup B": 6, "mousemove --window W P click 4": 2,
           "windowmove W P": 2, "windowminimize W sleep 0.2 windowmap W": 1, "windowunmap W sleep 0.1 windowmap W": 1}
PLACES = [(x + width // 2, y + height // 2) for x, y, width, height in layout.BOXES.values()]
PLACES += [layout.middle(name) for name in ("CommandArcade", "CommandPuzzle", "CmdStart")] * 4  # which lead to games
PLACES += [layout.cell(puzzle) for puzzle in range(1, 10)]


def chosen(chance, number):
    x, y = chance.choice((chance.choice(PLACES), (chance.randrange(802), chance.randrange(602))))
    rare = chance.choice(("alt+F4", "ctrl+c", "b", "c", "d", "p", "m"))
    keys = ("Escape", "Return", "space", "Tab", "F1", "F2", "g", "a", "Left", "r", rare)
    return {"W": number, "P": f"{x} {y}", "B": str(chance.choice((1, 1, 1, 1, 3, 3, 2))), "K": chance.choice(keys)}


def press_beam(run, chance, number):
    run.main = desktop.Window(run.desktop, int(number))
    try:
        head = run.lowest_head()
    except desktop.Missing:  # the window has gone, or a part of it is outside the display
        return
    if head:
        run.desktop.mouse("mousemove", "--window", number, *head, "click", chance.choice((1, 1, 1, 3)))


def halt(process, chance):
    process.send_signal(signal.SIGSTOP)
    time.sleep(chance.choice((0.02, 0.1, 0.3, 1.0)))
    process.send_signal(signal.SIGCONT)


def verify(screen, driver):
    """Plays all recordings of a run back and deletes them. How many, and what is wrong with them."""
    files = sorted((screen.folder / ".local/share/prismfall/recordings").glob("*"))
    wrong = ""
    for file in files:
        verdict = subprocess.run([driver, "verify", file], capture_output=True, text=True)
        if verdict.returncode:
            wrong += f"{verdict.stdout}{file.read_text()}"
        file.unlink()
    return len(files), wrong


def play(screen, program, chance):
    """One run of the program. Returns what went wrong, or nothing."""
    general = {"Music": chance.choice(("True", "False")), "StartLevel": str(chance.randint(1, 12))}
    settings = game.Settings(None if chance.random() < 0.1 else game.later_run(**general))
    run = game.Game(screen, program, settings, HERE.parents[1] / "assets", environment=LEAKS, shows_up=False)
    stop = time.monotonic() + LONGEST_RUN
    while run.is_running() and time.monotonic() < stop:
        found = screen.output("xdotool", "search", "--onlyvisible", "--class", "prismfall").split()
        if found and chance.random() < 0.6:
            press_beam(run, chance, found[0])
        if chance.random() < 0.1:
            halt(run.process, chance)
        for number in found[-2:] or screen.output("xdotool", "search", "--name", f"^{layout.MAIN}$").split():
            words = [] if found else ["windowmap", number, "windowactivate", number]  # with its button in the taskbar
            for action in chance.choices(list(ACTIONS), list(ACTIONS.values()), k=chance.choice((1, 4))):
                words += [part for word in action.split() for part in chosen(chance, number).get(word, word).split()]
            screen.mouse(*words)
    if run.is_running():
        run.process.send_signal(signal.SIGTERM)
    status = run.wait_for_end(20)
    settings.stop()
    return f"exit status {status}\n{run.said()}" if status or run.said() else ""


def play_on_one_desktop(program, seed, left, true):
    """Plays until no games are left to record; counts them in `left`, and those that are true. Exits with what was wrong."""
    screen, chance = desktop.Desktop(), random.Random(seed)
    try:
        while left.value > 0:
            wrong = play(screen, program, chance)
            count, differences = verify(screen, program.parent / "prismfall-headless")
            with left.get_lock():
                left.value -= count
                true.value += 0 if differences else count
            if wrong or differences:
                sys.exit(f"seed {seed}: {wrong}{differences}")
    finally:
        desktop.end_all()


def main(program, games, seed=None, desktops=8):
    left, true = multiprocessing.Value("i", int(games)), multiprocessing.Value("i", 0)
    seed = int(seed or time.time())
    players = [multiprocessing.Process(target=play_on_one_desktop, args=(pathlib.Path(program).resolve(), seed + i, left, true))
               for i in range(int(desktops))]
    for player in players:
        player.start()
    while any(player.is_alive() for player in players):
        time.sleep(REPORT_PAUSE)
        print(f"{true.value} so far", flush=True)
    print(f"seed {seed}: {true.value} of {int(games) - left.value} recordings are true")
    return 1 if any(player.exitcode for player in players) else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
