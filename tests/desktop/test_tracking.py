"""Which application is in front, and what its seconds count as."""

import unittest

from support.application import DesktopTestCase, Follower
from support.desktop import BLOCKED, UNLISTED, WORK
from support.processes import wait_until


class Tracking(DesktopTestCase):
    def setUp(self):
        super().setUp()
        self.app.launch("--hidden")
        self.app.do("allow", "--app", WORK)
        self.work = self.desktop.start_program(WORK)

    def test_every_switch_is_known_and_told(self):
        self.app.do("start", "--task", "Follow me")
        follower = Follower(self.app)
        note = self.desktop.start_program(UNLISTED)
        expected = [("legitimate", "Logo"), ("distracted", "Note")]
        wait_until(lambda: follower.activities() == expected, lambda: f"{follower.activities()}")
        for _ in range(3):
            for window, activity in ((self.work, expected[0]), (note, expected[1])):
                self.desktop.bring_to_front(window)
                wait_until(lambda want=activity: follower.activities()[-1] == want,
                           lambda want=activity: f"{want} is told, not {follower.activities()}")
        self.assertEqual(follower.activities(), expected * 4)
        self.assertEqual(follower.reports[-1]["activeTask"]["title"], "Follow me")

        self.app.process.terminate()
        self.assertEqual(self.app.process.wait(15), 0)
        self.assertEqual(follower.exit_code(), 3)

    def test_seconds_are_counted_once_and_recorded(self):
        self.app.do("start", "--minutes", "25")
        self.app.wait_for(lambda s: s["legitimateSeconds"] >= 2, "work is counted")
        note = self.desktop.start_program(UNLISTED)
        before = self.app.wait_for_activity("distracted", "Note")
        after = self.app.wait_for(lambda s: s["distractedSeconds"] >= 2, "distraction is counted")
        self.assertEqual(after["legitimateSeconds"], before["legitimateSeconds"])
        self.desktop.bring_to_front(self.work)
        last = self.app.wait_for(lambda s: s["legitimateSeconds"] >= after["legitimateSeconds"] + 2,
                                 "work is counted again")
        elapsed = last["initialDuration"] - last["timeRemaining"]
        self.assertLessEqual(last["legitimateSeconds"] + last["distractedSeconds"], elapsed + 1)

        # Putting an application on a list counts from the next interval on and changes nothing before.
        self.app.do("allow", "--app", UNLISTED)
        self.desktop.bring_to_front(note)
        self.app.wait_for_activity("legitimate", "Note")
        self.app.do("allow", "--app", UNLISTED, "--remove")

        self.app.do("stop")
        self.assertEqual(self.app.status()["state"], "idle")
        self.assertEqual(self.app.sessions(), [], "a stopped session is not recorded")
        intervals = self.app.intervals()
        self.assertEqual([row["bundleID"] for row in intervals][:3], [WORK, UNLISTED, WORK])
        self.assertEqual(intervals[0]["category"], "category_design")
        for row in intervals:
            self.assertEqual(row["durationSeconds"], (row["endTime"] - row["startTime"]) // 1000)
        for earlier, later in zip(intervals, intervals[1:]):
            self.assertLessEqual(earlier["endTime"], later["startTime"])

    def test_refusals_and_bad_arguments_say_why(self):
        for arguments, code in ((("pause",), 1), (("resume",), 1), (("start", "--minutes", "none"), 2),
                                (("start", "--phase", "nap"), 2), (("block",), 2), (("dance",), 2), (("add",), 2),
                                (("block", "--site", "https://", "--browser", "org.mozilla.firefox"), 1)):
            with self.subTest(arguments=arguments):
                answer = self.app.command(*arguments)
                self.assertEqual(answer[0], code, answer)
                self.assertTrue(answer[2].startswith("norvin-focus: "), answer)
        self.assertEqual(self.app.status()["state"], "idle")

        self.app.do("block", "--app", BLOCKED)
        self.app.do("block", "--site", "https://www.Example.org:8080/a?b", "--browser", "org.mozilla.firefox")
        lists = self.app.do("lists", "--json")
        self.assertIn(f'"blockedApps":["{BLOCKED}"]', lists)
        self.assertIn('"blockedSites":{"org.mozilla.firefox":["example.org"]}', lists)


if __name__ == "__main__":
    unittest.main(verbosity=2)
