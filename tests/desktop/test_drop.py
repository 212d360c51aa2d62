"""Files dragged from another program's window onto the sheet of a task."""

import json
import os
import sqlite3
import unittest

from support.application import DesktopTestCase
from support.processes import wait_until

SOURCE = os.path.join(os.environ["BUILD_UNDER_TEST"], "bin", "drag-source")


class Drop(DesktopTestCase):
    def attached(self):
        with sqlite3.connect(self.app.store_file) as store:
            return [(name, json.loads(bookmark)["path"])
                    for name, bookmark in store.execute("SELECT name, fileURLData FROM TaskResource ORDER BY rowid")]

    def drop_on_sheet(self, window):
        """Opens the first task of the agenda by keyboard and drags the files onto its sheet."""
        if not self.attached():
            self.desktop.bring_to_front(window)
            self.desktop.run("xdotool", "key", "--delay", "300", "Escape", "ctrl+1", "ctrl+2", "Tab", "Return")
            self.desktop.run("xdotool", "mousemove", "1345", "745", "sleep", "0.3", "mousedown", "1")
            for x, y in ((1340, 740), (1200, 700), (800, 500), (500, 460), (490, 455)):
                self.desktop.run("xdotool", "mousemove", str(x), str(y), "sleep", "0.1")
            self.desktop.run("xdotool", "mouseup", "1", "sleep", "0.3")
        return self.attached()

    def test_files_dropped_on_the_sheet_are_attached(self):
        self.app.launch()
        window = self.app.windows()[0]
        self.desktop.bring_to_front(window)
        self.app.do("add", "Read the plan")
        files = [self.desktop.path(name) for name in ("plan été.pdf", "figures.csv")]
        for file in files:
            with open(file, "w", encoding="utf-8") as content:
                content.write("content")
        self.desktop.processes.start("drag-source", [SOURCE, *files], self.desktop.environment)
        source = wait_until(lambda: next(iter(self.desktop.visible_windows("--name", "^drag source$")), None),
                            "the source is there")
        self.desktop.run("xdotool", "windowmove", "--sync", str(source), "1250", "700")
        self.desktop.bring_to_front(window)
        self.desktop.run("xdotool", "windowraise", str(source))
        wanted = [(os.path.basename(file), file) for file in files]
        # Nothing outside the window tells when the sheet is open, so one that came too late is tried again.
        wait_until(lambda: self.drop_on_sheet(window) == wanted, lambda: f"both are attached: {self.attached()}", 60)
        for file in files:
            self.assertTrue(os.path.exists(file), "the file stays where it is")


if __name__ == "__main__":
    unittest.main()
