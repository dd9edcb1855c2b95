"""Plays what `cmake --install` has installed, from a prefix of any name, and after the whole tree was moved."""
import pathlib
import shutil
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

    def watch_by_a_relative_name(self, command):
        folder = self.folder()
        shutil.copy(harness.ROOT / "tests/recordings/10-arcade-score.prismfall", folder / "a game")
        starter = self.folder() / "start"
        starter.write_text('#!/bin/sh\nexec "$COMMAND" "a game"\n')
        starter.chmod(0o755)
        run = self.start(self.settings(later_run()), folder, starter, environment={"COMMAND": command})
        run.wait_for_motion()
        run.main.key("Escape")
        run.wait_for_main_menu()
        self.end_in_menu(run)

    def test_any_prefix(self):
        prefix = self.folder() / "a $home & 100% mine"
        subprocess.run(["cmake", "--install", self.program.parent, "--prefix", prefix], check=True, stdout=subprocess.DEVNULL)
        entry = (prefix / "share/applications/org.prismfall.prismfall.desktop").read_text()
        line = next(line for line in entry.splitlines() if line.startswith("Exec="))
        word = line.removeprefix("Exec=").removesuffix(" %f").replace("\\\\", "\\").replace("%%", "%")
        command = subprocess.check_output(["sh", "-c", f"printf %s {word}"], text=True)
        self.play(command)
        self.watch_by_a_relative_name(command)
        moved = prefix.rename(prefix.with_name("moved"))
        link = self.folder() / "link"
        link.symlink_to(moved / pathlib.Path(command).relative_to(prefix))
        self.play(link)


if __name__ == "__main__":
    harness.run()
