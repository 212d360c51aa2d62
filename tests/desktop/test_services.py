"""Services of the desktop that are missing, that leave, and that come back."""

import unittest

from support.application import DesktopTestCase
from support.desktop import UNLISTED, WORK, log_of
from support.processes import wait_until

NOT_INSTALLED = ("PomodoroTimerService: Notification locale ignorée car l'application n'est pas exécutée depuis un "
                 "bundle .app valide (ex: exécution directe depuis Xcode dans DerivedData)")


def missing(report):
    """The capabilities that a doctor's report names as missing, each with the lines that explain it."""
    result, name = {}, None
    for line in report.splitlines():
        if line.startswith("missing  "):
            name = line.removeprefix("missing  ")
            result[name] = []
        elif line.startswith("         ") and name:
            result[name].append(line.strip())
        else:
            name = None
    return result


class BareDesktop(DesktopTestCase):
    desktop_options = {"window_manager": False, "notifications": False, "login": False}

    def test_a_session_runs_and_the_doctor_names_what_is_missing(self):
        code, report, _ = self.app.command("doctor")
        self.assertEqual(code, 1)
        alone = missing(report)
        self.app.launch("--hidden")
        self.app.do("start")
        self.app.wait_for(lambda s: s["initialDuration"] - s["timeRemaining"] >= 2, "the session runs")
        self.assertEqual(self.app.status()["activity"]["appName"] or "", "")
        code, report, _ = self.app.command("doctor")
        self.assertEqual(code, 1)
        told = missing(report)
        self.assertGreaterEqual(len(told), 5, report)
        for capability, explanation in told.items():
            # A reason and a remedy in words, not their keys.
            self.assertGreaterEqual(len(explanation), 2, capability)
            self.assertFalse(any(line.startswith("health_") for line in [capability, *explanation]), report)
        self.assertEqual(set(alone), set(told), "the doctor finds the same with and without a running program")

    def test_what_comes_later_is_used(self):
        self.app.launch("--hidden")
        before = missing(self.app.command("doctor")[1])
        self.desktop.start_window_manager()
        self.desktop.start_notification_daemon()
        # Others may be missed only now: sounds are asked for when there is time.
        wait_until(lambda: len(before.keys() - missing(self.app.command("doctor")[1]).keys()) >= 3,
                   "the window manager and the notification daemon are found")
        self.app.do("allow", "--app", WORK)
        self.desktop.start_program(WORK)
        self.app.do("start")
        self.app.wait_for_activity("legitimate", "Logo")


class NoBus(DesktopTestCase):
    desktop_options = {"session_bus": False, "notifications": False, "login": False}

    def test_the_window_opens_without_a_session_bus(self):
        self.app.launch()
        wait_until(self.app.windows, "the window is shown")
        for command in ("status", "start", "stop"):
            code, _, errors = self.app.command(command)
            self.assertEqual(code, 4)
            self.assertIn("session bus", errors)


class LeavingServices(DesktopTestCase):
    def test_a_session_survives_the_loss_of_every_service(self):
        self.app.launch("--hidden")
        self.app.do("allow", "--app", WORK)
        work = self.desktop.start_program(WORK)
        self.app.do("start", "--minutes", "1")
        self.app.wait_for(lambda s: s["legitimateSeconds"] >= 2, "work is counted")

        self.desktop.stop_notification_daemon()
        self.desktop.processes.stop(self.desktop.login_service)
        self.desktop.stop_window_manager()
        self.app.wait_for(lambda s: s["activity"]["appName"] != "Logo" or s["state"] == "running", "it runs on")
        self.desktop.start_window_manager()
        note = self.desktop.start_program(UNLISTED)
        self.app.wait_for_activity("distracted", "Note")
        self.desktop.bring_to_front(work)
        self.app.wait_for_activity("legitimate", "Logo")
        self.desktop.bring_to_front(note)
        self.app.wait_for_activity("distracted", "Note")

        self.desktop.stop_session_bus()
        self.desktop.session_bus = None
        (session,) = wait_until(self.app.sessions, "the session is recorded at its end", 90)
        self.assertEqual(session["completed"], 1)
        self.assertGreater(session["legitimateTimeSeconds"], 0)
        self.assertGreater(session["distractedTimeSeconds"], 0)
        wait_until(lambda: NOT_INSTALLED in log_of(self.app.process).splitlines(),
                   "a program that is not installed says why it posts no notification")
        self.assertIsNone(self.app.process.poll())


if __name__ == "__main__":
    unittest.main(verbosity=2)
