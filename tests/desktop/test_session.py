"""A whole work phase of a minute, as an installed program runs it, up to the notification at its end."""

import os
import subprocess
import unittest

from support.application import Application, DesktopTestCase
from support.desktop import BLOCKED, UNLISTED, WORK
from support.processes import wait_until

BUILD = os.environ.get("BUILD_UNDER_TEST", "build/dev")


class Session(DesktopTestCase):
    def setUp(self):
        super().setUp()
        prefix = self.desktop.path("prefix")
        subprocess.run(["cmake", "--install", BUILD, "--prefix", prefix], check=True, stdout=subprocess.DEVNULL)
        self.app = Application(self.desktop, os.path.join(prefix, "bin", "norvin-focus"))
        self.app.launch("--hidden")

    def test_a_finished_session_is_recorded_announced_and_leads_back(self):
        self.app.do("allow", "--app", WORK)
        self.app.do("block", "--app", BLOCKED)
        work = self.desktop.start_program(WORK)
        note = self.desktop.start_program(UNLISTED)
        self.desktop.bring_to_front(work)

        self.app.do("start", "--minutes", "1", "--task", "Write the report")
        self.app.wait_for(lambda s: s["legitimateSeconds"] >= 12, "work is counted", 30)
        self.desktop.bring_to_front(note)
        self.app.wait_for(lambda s: s["distractedSeconds"] >= 3, "distraction is counted")
        blocked = self.desktop.open_program(BLOCKED)
        wait_until(lambda: self.desktop.is_iconified(blocked), "the blocked application is hidden")
        self.desktop.bring_to_front(work)
        self.app.do("pause")
        self.assertEqual(self.app.command("pause")[0], 1)
        self.app.do("resume")
        # Tracking rests after the pause: a switch that the session no longer follows.
        self.desktop.bring_to_front(note)
        live = self.app.status()
        done = self.app.wait_for(lambda s: s["state"] == "completed", "the minute passes", 90)
        self.assertEqual(done["timeRemaining"], 0)

        (session,) = self.app.sessions()
        self.assertEqual((session["durationMinutes"], session["completed"]), (1, 1))
        self.assertEqual((session["interruptionCount"], session["blockedAttemptsCount"]), (1, 1))
        self.assertEqual(session["legitimateTimeSeconds"], live["legitimateSeconds"])
        self.assertEqual(session["distractedTimeSeconds"], live["distractedSeconds"])
        task = self.app.rows("SELECT title FROM TaskItem WHERE id = ?", session["task"])
        self.assertEqual([row["title"] for row in task], ["Write the report"])
        total = session["legitimateTimeSeconds"] + session["distractedTimeSeconds"]
        score = 10 * session["legitimateTimeSeconds"] / total - 0.5 - 1.0
        self.assertAlmostEqual(session["score"], score, places=6)

        seconds = {WORK: 0, UNLISTED: 0, BLOCKED: 0}
        for row in self.app.intervals():
            seconds[row["bundleID"]] += row["durationSeconds"]
        self.assertEqual(seconds[UNLISTED] + seconds[BLOCKED], session["distractedTimeSeconds"])
        # The own window, brought up over the blocked application, counts as work but is not recorded.
        self.assertGreaterEqual(seconds[WORK], 12)
        self.assertLessEqual(seconds[WORK], session["legitimateTimeSeconds"])
        (log,) = self.app.rows("SELECT * FROM SessionLog")
        self.assertEqual((log["task"], log["completed"]), ("Write the report", "yes"))

        self.assertFalse(self.app.is_in_front())
        (notification,) = wait_until(lambda: self.desktop.visible_windows("--class", "^Dunst$"),
                                     "the end is announced")
        self.desktop.run("xdotool", "mousemove", "--window", str(notification), "20", "20", "click", "1", check=True)
        wait_until(self.app.is_in_front, "the notification leads back to the window")


if __name__ == "__main__":
    unittest.main(verbosity=2)
