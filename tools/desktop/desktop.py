"""A virtual desktop to play the real program on: a display in memory, a window manager, a mouse, and the pixels.

Everything started here is ended here, at the latest when the test program ends.
"""
import atexit
import ctypes
import mmap
import os
import pathlib
import shutil
import signal
import struct
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "assets/pictures/drawing"))

import png  # noqa: E402  one of the tools that draw the assets

ENDING = []  # what to end, newest last
PAUSE = 0.01  # between two checks of a condition
PATIENCE = 8  # how many times longer than on an idle machine something may take on a busy one


def end_all():
    while ENDING:
        ENDING.pop().stop()


atexit.register(end_all)
signal.signal(signal.SIGTERM, lambda *_: os._exit(end_all() or 1))


class Missing(Exception):
    """What a test waited for has not appeared."""


def wait_for(condition, seconds=5, what="the condition"):
    """Calls `condition` until its result is true, and returns that. `seconds` is the limit on an idle machine."""
    seconds *= PATIENCE
    end = time.monotonic() + seconds
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() > end:
            raise Missing(f"after {seconds} s still waiting for {what}")
        time.sleep(PAUSE)


def holds_for(condition, seconds):
    """Whether `condition` stays true for that long."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        if not condition():
            return False
        time.sleep(PAUSE)
    return True


def end_with_me():
    """In a child process: ends it when this one ends, even if this one is killed."""
    ctypes.CDLL(None).prctl(1, signal.SIGKILL)


class Pixels:
    """A block of pixels, 4 bytes each: blue, green, red, 0."""

    def __init__(self, width, height, data):
        self.width, self.height, self.data = width, height, data

    def __eq__(self, other):
        return self.data == other.data

    def words(self):
        """The pixels as numbers 0xRRGGBB, row by row."""
        return memoryview(self.data).cast("I").tolist()

    def count(self, *colours):
        words = self.words()
        return sum(words.count(colour) for colour in colours)

    def save(self, path):
        path = pathlib.Path(path)
        path.parent.mkdir(parents=True, exist_ok=True)
        packed = b"".join(word.to_bytes(3, "big") for word in self.words())
        rows = [packed[at : at + 3 * self.width] for at in range(0, len(packed), 3 * self.width)]
        path.write_bytes(png.write(self.width, self.height, 3, rows))


class Screen:
    """The display's memory, which the X server keeps in a file. Reading it costs the server nothing."""

    def __init__(self, path):
        with open(path, "rb") as file:
            self.memory = mmap.mmap(file.fileno(), 0, prot=mmap.PROT_READ)
        header = struct.unpack(">25I", self.memory[:100])
        self.width, self.height, self.stride = header[4], header[5], header[12]
        self.first = header[0] + header[19] * 12

    def pixels(self, x, y, width, height):
        if x < 0 or y < 0 or x + width > self.width or y + height > self.height:
            raise Missing(f"pixels outside the display: {x}, {y}, {width} x {height}")
        begins = [self.first + row * self.stride + x * 4 for row in range(y, y + height)]
        data = bytearray(b"".join(self.memory[begin : begin + width * 4] for begin in begins))
        data[3::4] = bytes(width * height)
        return Pixels(width, height, bytes(data))



class Desktop:
    """A separate display, with or without a window manager."""

    def __init__(self, manager=True, size="1280x1024"):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="prismfall-desktop-"))
        self.processes = []
        ENDING.append(self)
        own = {name: value for name, value in os.environ.items() if not name.startswith(("SDL_", "XDG_", "WAYLAND_"))}
        # A desktop has a message bus. Without one SDL would search for a program that starts one, at every start.
        own.update(HOME=str(self.folder), SDL_AUDIODRIVER="dummy", DBUS_SESSION_BUS_ADDRESS=f"unix:path={self.folder}/bus")
        self.environment = own
        read, write = os.pipe()
        options = ["-screen", "0", f"{size}x24", "-fbdir", self.folder, "-nocursor", "-nolisten", "tcp", "-noreset", "-r"]
        self.start(["Xvfb", "-displayfd", str(write), *options], pass_fds=[write])
        os.close(write)
        with os.fdopen(read) as told:
            self.environment["DISPLAY"] = ":" + (told.readline().strip() or "the virtual display has not started")
        self.screen = Screen(self.folder / "Xvfb_screen0")
        if manager:
            ready = self.folder / "openbox-is-ready"  # it says sooner that it is there, but then has not begun to look
            self.start(["openbox", "--sm-disable", "--startup", f"touch {ready}"])
            wait_for(ready.exists, 10, "openbox")

    def start(self, command, **options):
        options = {"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL, "env": self.environment} | options
        self.processes.append(subprocess.Popen(command, preexec_fn=end_with_me, **options))
        return self.processes[-1]

    def settle(self):
        """Gives the window manager time to forget closed windows. It could mistake a new one for an old one, since the
        display reuses their numbers, and never show it."""
        end = time.monotonic() + 1
        while "0x" in self.output("xprop", "-root", "_NET_CLIENT_LIST") and time.monotonic() < end:
            time.sleep(PAUSE)
        time.sleep(0.1)

    def stop(self):
        for process in reversed(self.processes):
            process.kill()
            process.wait()
        shutil.rmtree(self.folder, ignore_errors=True)
        if self in ENDING:
            ENDING.remove(self)

    def output(self, *command):
        return subprocess.run(command, env=self.environment, capture_output=True, text=True, timeout=120).stdout

    def mouse(self, *words):
        self.output("xdotool", *[str(word) for word in words])

    def windows(self, title):
        """The visible windows with exactly this title."""
        found = self.output("xdotool", "search", "--onlyvisible", "--name", f"^{title}$").split()
        return [Window(self, int(number)) for number in found]

    def window(self, title, seconds=5):
        return wait_for(lambda: self.windows(title), seconds, f"the window {title!r}")[0]


class Window:
    """A window of the program; positions are in pixels of its inner area."""

    def __init__(self, desktop, number):
        self.desktop, self.number = desktop, number

    def facts(self):
        """Its xwininfo values by name."""
        lines = self.desktop.output("xwininfo", "-id", str(self.number)).splitlines()
        return {name.strip(): value.strip() for name, colon, value in (line.partition(":") for line in lines) if colon}

    def place(self):
        """Left, top, width and height of the inner area on the display."""
        facts = self.facts()
        if "Width" not in facts:
            raise Missing(f"window {self.number} is gone")
        return tuple(int(facts[n]) for n in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))

    def frame(self):
        """Widths of the frame: left, right, top, bottom. All 0 if there is none."""
        text = self.property("_NET_FRAME_EXTENTS")
        return tuple(int(number) for number in text.split(",")) if text else (0, 0, 0, 0)

    def property(self, name):
        text = self.desktop.output("xprop", "-id", str(self.number), name)
        return text.partition("=")[2].strip() or text.partition("#")[2].strip()

    def is_visible(self):
        return self.facts().get("Map State") == "IsViewable"

    def move(self, x, y):
        left, top, _, _ = self.place()
        self.desktop.mouse("mousemove", left + x, top + y)

    def click(self, x, y, button=1, times=1, delay=40):
        """Clicks repeatedly, `delay` milliseconds apart."""
        left, top, _, _ = self.place()
        repeat = ["--repeat", times, "--delay", delay] if times > 1 else []
        self.desktop.mouse("mousemove", left + x, top + y, "click", *repeat, button)

    def key(self, name):
        self.desktop.mouse("windowfocus", "--sync", self.number, "key", name)

    def pixels(self, x, y, width, height):
        return self.viewer(x, y, width, height)()

    def viewer(self, x, y, width, height):
        """Returns a function that reads one place quickly, as long as the window is not moved."""
        left, top, _, _ = self.place()
        return lambda: self.desktop.screen.pixels(left + x, top + y, width, height)

    def use_close_box(self):
        self.desktop.output("wmctrl", "-i", "-c", hex(self.number))
