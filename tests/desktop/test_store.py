"""Damaged stores, and the second launch that must not touch the first one's store."""

import hashlib
import os
import sqlite3
import unittest

from support.application import DesktopTestCase
from support.processes import wait_until

RESET = "⚠️ SwiftData: Schema mismatch or corruption — resetting database. Error: "
FATAL = "SwiftData: Critical failure after reset — "


class Store(DesktopTestCase):
    desktop_options = {"notifications": False, "login": False}

    def make_store(self):
        """A store with one task in it, its program ended."""
        self.app.launch("--hidden")
        self.app.do("add", "Old task")
        self.app.process.terminate()
        self.assertEqual(self.app.process.wait(15), 0)
        self.assertEqual(self.titles(), ["Old task"])

    def titles(self):
        return [row["title"] for row in self.app.rows("SELECT title FROM TaskItem")]

    def test_a_store_that_cannot_be_opened_is_made_anew(self):
        def overwrite(store):
            with open(store, "wb") as file:
                file.write(os.urandom(65536))

        def truncate(store):
            os.truncate(store, 6000)

        def change_schema(store):
            connection = sqlite3.connect(store)
            connection.execute("PRAGMA user_version = 99")
            connection.close()

        for damage in (overwrite, truncate, change_schema):
            with self.subTest(damage=damage.__name__):
                self.make_store()
                damage(self.app.store_file)
                self.app.launch("--hidden")
                resets = [line for line in self.app.log().splitlines() if line.startswith(RESET)]
                self.assertEqual(len(resets), 1, self.app.log())
                self.assertGreater(len(resets[0]), len(RESET), "the reason is given")
                self.assertEqual(self.titles(), [])
                self.app.do("add", "New task")
                wait_until(lambda: self.titles() == ["New task"], "the new store is used")
                self.app.process.terminate()
                self.app.process.wait(15)
                os.remove(self.app.store_file)

    def test_a_store_that_cannot_be_made_stops_the_program(self):
        os.makedirs(os.path.join(self.app.store_file, "something"))
        code, output, errors = self.app.command("--hidden")
        self.assertEqual(code, 70)
        self.assertIn(RESET, output)
        self.assertIn(FATAL, errors)
        self.assertTrue(os.path.isdir(os.path.join(self.app.store_file, "something")))

    def test_a_second_launch_shows_the_window_of_the_first(self):
        self.app.launch("--hidden")
        self.app.do("add", "Kept")
        wait_until(lambda: self.titles() == ["Kept"], "the task is stored")
        self.assertEqual(self.app.windows(), [])
        before = self.fingerprint()
        self.assertEqual(self.app.command()[0], 0)
        wait_until(self.app.is_in_front, "the window of the first is in front")
        self.assertEqual(self.fingerprint(), before)
        self.assertNotIn(RESET, self.app.log())

        # Also where the two do not meet on a bus: the lock on the store decides.
        self.desktop.environment["DBUS_SESSION_BUS_ADDRESS"] = f"unix:path={self.desktop.path('elsewhere')}"
        self.assertEqual(self.app.command()[0], 0)
        self.assertEqual(self.fingerprint(), before)

    def fingerprint(self):
        """Of the store's files as they are on the disk."""
        result = {}
        for suffix in ("", "-wal"):
            path = self.app.store_file + suffix
            with open(path, "rb") as file:
                result[suffix] = (os.stat(path).st_ino, os.stat(path).st_mtime_ns,
                                  hashlib.sha256(file.read()).hexdigest())
        return result


if __name__ == "__main__":
    unittest.main(verbosity=2)
