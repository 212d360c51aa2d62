"""Power failures at random moments of a scripted day. KILLS in the environment says how many."""

import itertools
import os
import random
import sqlite3
import threading
import time
import unittest

from support.application import DesktopTestCase
from support.desktop import BLOCKED, UNLISTED, WORK

KILLS = int(os.environ.get("KILLS", "30"))
SEED = int(os.environ.get("KILL_SEED", "20260301"))
LONGEST_DAY = 2.5  # seconds; long enough for intervals to be recorded


class Kill(DesktopTestCase):
    desktop_options = {"notifications": False, "login": False}

    def setUp(self):
        super().setUp()
        self.windows = [self.desktop.start_program(program) for program in (WORK, UNLISTED)]
        self.added = 0
        self.confirmed = []

    def day(self, killed):
        """Adds tasks and switches applications in a session. A task is confirmed once a later command has been
        answered: the turn of the event loop that made it has passed then."""
        while self.app.command("status")[0] != 0:
            if killed.is_set():
                return
        # Not by the command, which would launch a second program just after the kill.
        self.desktop.run("gdbus", "call", "--session", "--dest", "com.norvin.Focus", "--object-path",
                         "/com/norvin/Focus", "--method", "com.norvin.Focus.StartSession", "25", "", "work")
        pending = None
        switched = time.monotonic()
        for step in itertools.count(1):
            if time.monotonic() - switched > 1.1:  # long enough for an interval to be recorded
                self.windows.reverse()
                self.desktop.activate(self.windows[0])
                switched = time.monotonic()
            if step % 5 == 0:
                arguments = (("block", "allow")[step % 2], "--app", BLOCKED)
            else:
                self.added += 1
                arguments = ("add", f"Task {self.added}")
            code, _, errors = self.app.command(*arguments)
            if killed.is_set():
                return
            self.assertEqual(code, 0, errors)
            if pending:
                self.confirmed.append(pending)
            pending = arguments[1] if arguments[0] == "add" else None

    def test_nothing_confirmed_is_lost(self):
        print(f"{KILLS} kills, seed {SEED}", flush=True)
        moments = random.Random(SEED)
        stored = 0
        for round_number in range(KILLS):
            # Some die while they start, before they could answer.
            moment = moments.uniform(0, LONGEST_DAY)
            killed = threading.Event()
            killer = threading.Timer(moment, lambda: (killed.set(), self.app.process.kill()))
            self.start_program()
            killer.start()
            self.day(killed)
            killer.join()
            self.app.process.wait(10)
            self.assertEqual(self.app.process.returncode, -9, self.app.log())
            if not os.path.exists(self.app.store_file):
                self.assertEqual(self.confirmed, [])
                continue
            with self.subTest(round=round_number, moment=moment):
                stored = self.check_store(stored)
        print(f"{len(self.confirmed)} tasks confirmed, {stored} tasks and {len(self.app.intervals())} intervals stored")
        self.assertGreater(len(self.confirmed), KILLS)
        self.assertGreater(len(self.app.intervals()), 0)

    def start_program(self):
        # No waiting for an answer: the kill may come first.
        self.app.process = self.desktop.processes.start("norvin-focus", [self.app.program, "--hidden"],
                                                        self.desktop.environment)

    def check_store(self, stored_before):
        self.assertNotIn("resetting database", self.app.log())
        connection = sqlite3.connect(self.app.store_file)
        try:
            self.assertEqual(connection.execute("PRAGMA integrity_check").fetchall(), [("ok",)])
            self.assertEqual(connection.execute("PRAGMA foreign_key_check").fetchall(), [])
            titles = {row[0] for row in connection.execute("SELECT title FROM TaskItem")}
        finally:
            connection.close()
        self.assertEqual(set(self.confirmed) - titles, set())
        self.assertGreaterEqual(len(titles), stored_before)
        return len(titles)


if __name__ == "__main__":
    unittest.main(verbosity=2)
