"""The window during a session."""

import unittest

from support.application import DesktopTestCase
from support.processes import wait_until


class Window(DesktopTestCase):
    def test_closing_it_keeps_a_session_running(self):
        self.app.launch()
        self.app.do("start", "--task", "Go on")
        self.app.close_windows()
        remaining = self.app.status()["timeRemaining"]
        status = self.app.wait_for(lambda s: s["timeRemaining"] < remaining, "the session runs on")
        self.assertEqual((status["state"], status["activeTask"]["title"]), ("running", "Go on"))
        wait_until(lambda: self.desktop.visible_windows("--class", "^Dunst$"), "a notification says so")

        self.assertEqual(self.app.command()[0], 0)
        wait_until(self.app.is_in_front, "another launch brings the window back")
        self.app.do("stop")
        self.desktop.run("xdotool", "key", "ctrl+q", check=True)
        self.assertEqual(self.app.process.wait(15), 0)
        self.assertEqual(self.app.sessions(), [])

    def test_start_launches_the_program(self):
        self.assertEqual(self.app.command("status")[0], 3)
        self.app.do("start", "--minutes", "15")
        status = self.app.status()
        self.assertEqual((status["state"], status["initialDuration"]), ("running", 900))
        wait_until(lambda: self.desktop.visible_windows("--name", "Norvin Focus"), "its window is shown")


if __name__ == "__main__":
    unittest.main(verbosity=2)
