"""The start at login, as a session manager sees to it."""

import os
import unittest

from support.application import DesktopTestCase
from support.processes import wait_until


class Autostart(DesktopTestCase):
    desktop_options = {"notifications": False, "login": False}

    def setUp(self):
        super().setUp()
        self.user_entry = os.path.join(self.desktop.environment["XDG_CONFIG_HOME"], "autostart",
                                       "com.norvin.Focus.desktop")
        self.system_folder = self.desktop.path("xdg")
        os.makedirs(os.path.join(self.system_folder, "autostart"))
        self.desktop.environment["XDG_CONFIG_DIRS"] = self.system_folder

    def log_in(self):
        """Starts what the session starts."""
        self.desktop.processes.start("dex", ["dex", "--autostart", "--environment", "norvin"],
                                     self.desktop.environment)

    def is_started_at_login(self):
        folders = ":".join(os.path.join(folder, "autostart")
                           for folder in (self.desktop.environment["XDG_CONFIG_HOME"], self.system_folder))
        return "norvin-focus" in self.desktop.run("dex", "--autostart", "--dry-run", "--search-paths", folders)

    def switch(self):
        """Presses the switch of the preferences page."""
        before = os.path.exists(self.user_entry) and os.stat(self.user_entry).st_mtime_ns
        self.desktop.run("xdotool", "key", "--delay", "150", "ctrl+1", "ctrl+7", "Tab", "Tab", "Tab", "space",
                         check=True)
        wait_until(lambda: (os.path.exists(self.user_entry) and os.stat(self.user_entry).st_mtime_ns) != before,
                   "the switch counts")

    def test_the_program_starts_hidden_with_the_session(self):
        self.assertFalse(self.is_started_at_login())
        self.app.launch()
        wait_until(self.app.is_in_front, "the window is in front")
        self.switch()
        self.assertTrue(self.is_started_at_login())
        self.app.process.terminate()
        self.assertEqual(self.app.process.wait(15), 0)

        # The program is started by the session, not by us: it is found by what answers.
        self.log_in()
        wait_until(lambda: self.app.command("status")[0] == 0, "the program runs")
        pid = self.desktop.run("dbus-send", "--session", "--print-reply=literal", "--dest=org.freedesktop.DBus", "/",
                               "org.freedesktop.DBus.GetConnectionUnixProcessID",
                               "string:com.norvin.Focus").split()[-1]
        with open(f"/proc/{pid}/cmdline", encoding="utf-8") as command:
            self.assertEqual(command.read().split("\0")[:-1], [self.app.program, "--hidden"])
        try:
            self.assertEqual(self.desktop.visible_windows("--pid", pid), [])
            self.assertEqual(self.app.command()[0], 0)
            wait_until(lambda: self.desktop.visible_windows("--pid", pid), "its window is shown when asked for")
            wait_until(lambda: self.desktop.active_window() in self.desktop.visible_windows("--pid", pid),
                       "and in front")
            self.switch()
            self.assertFalse(self.is_started_at_login())
        finally:
            self.desktop.run("kill", pid)
        wait_until(lambda: self.app.command("status")[0] != 0, "the program has ended")

    def test_an_entry_of_the_system_is_overruled(self):
        with open(os.path.join(self.system_folder, "autostart", "com.norvin.Focus.desktop"), "w",
                  encoding="utf-8") as file:
            file.write(f"[Desktop Entry]\nType=Application\nName=Norvin Focus\nExec={self.app.program} --hidden\n")
        self.assertTrue(self.is_started_at_login())
        self.app.launch()
        wait_until(self.app.is_in_front, "the window is in front")
        self.switch()
        self.assertFalse(self.is_started_at_login())
        self.switch()
        self.assertTrue(self.is_started_at_login())


if __name__ == "__main__":
    unittest.main(verbosity=2)
