"""Blocked applications, and what pause, resume and stop switch on and off."""

import unittest

from support.application import DesktopTestCase
from support.desktop import BLOCKED, WORK
from support.processes import wait_until


class Blocking(DesktopTestCase):
    def setUp(self):
        super().setUp()
        self.app.launch()
        self.app.do("allow", "--app", WORK)
        self.app.do("block", "--app", BLOCKED)
        self.work = self.desktop.start_program(WORK)

    def attempts(self):
        return self.app.status()["blockedAttemptsCount"]

    def assert_hidden(self, window, attempts):
        wait_until(lambda: self.desktop.is_iconified(window), "the blocked application is hidden")
        wait_until(self.app.is_in_front, "the own window is in front")
        self.app.wait_for(lambda s: s["blockedAttemptsCount"] == attempts, f"{attempts} attempts are counted")

    def test_a_blocked_application_is_hidden_and_counted_each_time(self):
        self.app.do("start")
        window = self.desktop.open_program(BLOCKED)
        self.assert_hidden(window, 1)
        self.desktop.activate(window)
        self.assert_hidden(window, 2)
        self.desktop.bring_to_front(self.work)
        self.app.wait_for_activity("legitimate", "Logo")
        self.assertEqual(self.attempts(), 2)

        self.app.do("stop")
        self.desktop.bring_to_front(window)
        self.assertFalse(self.desktop.is_iconified(window))

    def test_a_blocked_application_in_front_at_the_start_is_hidden(self):
        window = self.desktop.open_program(BLOCKED)
        wait_until(lambda: self.desktop.active_window() == window, "nothing is blocked before the session")
        self.app.do("start")
        self.assert_hidden(window, 1)

    def test_pause_lets_everything_rest_and_resume_does_not_track(self):
        self.app.do("start")
        self.app.wait_for(lambda s: s["initialDuration"] - s["timeRemaining"] >= 10, "the free time is over", 30)
        self.app.do("pause")
        paused = self.app.status()
        self.assertEqual((paused["state"], paused["interruptionCount"]), ("paused", 1))
        window = self.desktop.open_program(BLOCKED)
        wait_until(lambda: self.desktop.active_window() == window, "a pause blocks nothing")

        self.app.do("resume")
        self.assert_hidden(window, 1)
        self.desktop.bring_to_front(self.work)
        resumed = self.app.wait_for(lambda s: s["timeRemaining"] <= paused["timeRemaining"] - 2, "time goes on")
        self.assertEqual(resumed["activity"]["kind"], "idle")
        for seconds in ("legitimateSeconds", "distractedSeconds"):
            self.assertEqual(resumed[seconds], paused[seconds])
        self.assertEqual(resumed["interruptionCount"], 1)


if __name__ == "__main__":
    unittest.main(verbosity=2)
