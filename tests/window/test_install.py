"""Plays what `cmake --install` has installed, from a prefix of any name, and after the whole tree was moved."""
import pathlib
import subprocess
import time

import harness
import layout
from game import later_run


class Installed(harness.WindowTest):
    def play(self, command):
        run = self.start(self.settings(later_run(Music="True")), self.folder(), command)  # it finds everything itself
        time.sleep(1.5)  # the music begins after a second
        self.assertFalse(self.desktop.windows(layout.ERROR))
        self.end_in_menu(run)

    def test_any_prefix(self):
        prefix = self.folder() / "a $home & 100% mine"
        subprocess.run(["cmake", "--install", self.program.parent, "--prefix", prefix], check=True, stdout=subprocess.DEVNULL)
        entry = (prefix / "share/applications/org.prismfall.prismfall.desktop").read_text()
        line = next(line for line in entry.splitlines() if line.startswith("Exec="))
        word = line.removeprefix("Exec=").replace("\\\\", "\\").replace("%%", "%")
        command = subprocess.check_output(["sh", "-c", f"printf %s {word}"], text=True)
        self.play(command)
        moved = prefix.rename(prefix.with_name("moved"))
        link = self.folder() / "link"
        link.symlink_to(moved / pathlib.Path(command).relative_to(prefix))
        self.play(link)


if __name__ == "__main__":
    harness.run()
