"""Power failures in the midst of backups and restores, and a restore as its user makes it. KILLS says how many."""

import os
import random
import shutil
import sqlite3
import subprocess
import time
import unittest

from support.application import DesktopTestCase
from support.processes import wait_until

DRIVER = os.path.join(os.environ.get("BUILD_UNDER_TEST", "build/dev"), "bin", "store-driver")
KILLS = int(os.environ.get("KILLS", "15"))
# One kill that came too late has the next ones come earlier: how long it takes depends on what else the machine does.
LATE = 0.8
SEED = int(os.environ.get("KILL_SEED", "20260301"))
INTERVALS = 100_000  # enough for a copy to take some tenths of a second


def titles(store):
    """The tasks in a store file that has to be whole."""
    connection = sqlite3.connect(store)
    try:
        assert connection.execute("PRAGMA integrity_check").fetchall() == [("ok",)], store
        assert connection.execute("PRAGMA foreign_key_check").fetchall() == [], store
        assert connection.execute("SELECT count(*) FROM AppUsageSession").fetchone() == (INTERVALS,), store
        return [row[0] for row in connection.execute("SELECT title FROM TaskItem")]
    finally:
        connection.close()


class Backup(DesktopTestCase):
    desktop_options = {"notifications": False, "login": False}

    def setUp(self):
        super().setUp()
        self.moments = random.Random(SEED)
        self.store = self.app.store_file
        self.backups = os.path.join(self.desktop.data_home, "norvin-focus", "backups")

    def former_stores(self):
        return [os.path.join(self.backups, name) for name in os.listdir(self.backups)
                if name.endswith("before-restore.sqlite")]

    def drive(self, *arguments):
        result = subprocess.run([DRIVER, *arguments], env=self.desktop.environment, capture_output=True, text=True,
                                timeout=60, check=False)
        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)

    def make_stores(self):
        """The store with the task "Old", and a backup of another one with the task "New"."""
        for title in ("New", "Old"):
            self.drive("fill", self.store, title, str(INTERVALS))
            self.drive("backup", self.store, self.desktop.path(f"{title}.sqlite"))
            if title == "New":
                os.remove(self.store)

    def kill_in_the_midst(self, longest, *command):
        """Starts a command and kills it, unless it ends before."""
        with open(self.desktop.path("killed.log"), "ab") as log:
            with subprocess.Popen(command, env=self.desktop.environment, stdout=log, stderr=log,
                                  stdin=subprocess.DEVNULL) as process:
                try:
                    process.wait(self.moments.uniform(0, longest))
                except subprocess.TimeoutExpired:
                    process.kill()
        return process.returncode == -9

    def duration(self, *arguments):
        start = time.monotonic()
        self.drive(*arguments)
        return time.monotonic() - start

    def test_a_backup_is_whole_or_not_there(self):
        self.make_stores()
        target = os.path.join(self.backups, "2026-03-01-120000-manual.sqlite")
        longest = self.duration("backup", self.store, target)
        os.remove(target)
        killed = kept = 0
        for _ in range(KILLS):
            if self.kill_in_the_midst(longest * 1.2, DRIVER, "backup", self.store, target):
                killed += 1
            else:
                longest *= LATE
            if os.path.exists(target):
                kept += 1
                self.assertEqual(titles(target), ["Old"])
                os.remove(target)
        self.assertEqual(titles(self.store), ["Old"])
        print(f"{killed} of {KILLS} killed, {kept} backups were there; one takes {longest:.2f} s", flush=True)
        self.assertGreater(killed, KILLS // 3)

    def test_a_restore_leaves_the_old_or_the_new_store(self):
        self.make_stores()
        # Longer than the preparation alone, so that many die while one store takes the place of the other.
        longest = self.duration("restore", self.store, self.desktop.path("New.sqlite"))
        self.assertEqual(titles(self.store), ["New"])
        counts = {"Old": 0, "New": 0}
        killed = 0
        for _ in range(KILLS):
            present = titles(self.store)[0]
            wanted = "Old" if present == "New" else "New"
            if self.kill_in_the_midst(longest * 1.3, DRIVER, "restore", self.store,
                                      self.desktop.path(f"{wanted}.sqlite")):
                killed += 1
            else:
                longest *= LATE
            after = titles(self.store)
            self.assertIn(after, (["Old"], ["New"]))
            counts[after[0]] += 1
            if after == [wanted]:
                self.assertIn([present], [titles(os.path.join(self.backups, name))
                                          for name in os.listdir(self.backups) if name.endswith(".sqlite")])
            shutil.rmtree(self.backups, ignore_errors=True)
        print(f"{killed} of {KILLS} killed, {counts}; a restore takes {longest:.2f} s", flush=True)
        self.assertGreater(killed, KILLS // 3)

    def test_the_program_finishes_what_a_failure_stopped(self):
        self.make_stores()
        for _ in range(6):
            self.drive("prepare", self.store, self.desktop.path("New.sqlite"))
            self.kill_in_the_midst(0.5, self.app.program, "--hidden")
            self.assertIn(titles(self.store), (["Old"], ["New"]))
        self.app.launch("--hidden")
        self.assertNotIn("resetting database", self.app.log())
        self.app.process.terminate()
        self.assertEqual(self.app.process.wait(15), 0)
        self.assertEqual(titles(self.store), ["New"])
        self.assertFalse(os.path.exists(self.store.replace(".sqlite", ".restore")))

    def test_a_backup_is_restored_by_keyboard(self):
        self.make_stores()
        self.drive("backup", self.desktop.path("New.sqlite"),
                   os.path.join(self.backups, "2026-03-01-120000-manual.sqlite"))
        self.app.launch()
        wait_until(self.app.is_in_front, "the window is in front")
        running = self.app.process.pid
        # The pane of the data, the list of backups, the question.
        self.desktop.run("xdotool", "key", "--delay", "150", "ctrl+7", "Right", "Right", "Right", *["Tab"] * 4,
                         check=True)
        self.desktop.screenshot(self.desktop.path("restore.png"))
        self.desktop.run("xdotool", "key", "--delay", "300", "Return", "Tab", "Return", check=True)
        # Nobody may read the store while it is replaced: with another reader it would stay as it is.
        wait_until(self.former_stores, "the store that gives way is kept", timeout=30)
        wait_until(self.app.answers, "the program answers again")
        self.assertEqual(titles(self.store), ["New"])
        self.assertEqual(self.app.process.pid, running)
        wait_until(self.app.is_in_front, "its window is in front again")
        self.assertEqual([titles(store) for store in self.former_stores()], [["Old"]])


if __name__ == "__main__":
    unittest.main(verbosity=2)
