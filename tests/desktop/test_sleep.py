"""Suspend, as the login service announces it."""

import unittest

from support.application import DesktopTestCase
from support.desktop import WORK
from support.processes import wait_until


class Sleep(DesktopTestCase):
    def test_nothing_is_counted_while_the_machine_sleeps(self):
        self.app.launch("--hidden")
        self.app.do("allow", "--app", WORK)
        self.desktop.start_program(WORK)
        self.app.do("start")
        self.app.wait_for(lambda s: s["legitimateSeconds"] >= 2, "work is counted")

        self.desktop.announce_sleep(True)
        (before,) = wait_until(self.app.intervals, "the interval is closed and recorded")
        counted = self.app.status()["legitimateSeconds"]
        self.assertEqual(counted, before["durationSeconds"])
        # This machine does not really stop, so the phase itself shows that time passes.
        remaining = self.app.status()["timeRemaining"]
        self.app.wait_for(lambda s: s["timeRemaining"] <= remaining - 3, "time passes")
        self.assertEqual(self.app.status()["legitimateSeconds"], counted)

        self.desktop.announce_sleep(False)
        self.app.wait_for(lambda s: s["legitimateSeconds"] >= counted + 2, "work is counted again")
        self.app.do("stop")
        (_, after) = self.app.intervals()
        self.assertGreaterEqual(after["startTime"], before["endTime"] + 2000)
        self.assertEqual(after["bundleID"], WORK)


if __name__ == "__main__":
    unittest.main(verbosity=2)
