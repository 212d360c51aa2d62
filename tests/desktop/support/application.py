"""Norvin Focus as a user meets it: its command line, its windows, and the file it leaves behind."""

import json
import os
import signal
import sqlite3
import subprocess
import threading
import unittest

from support.desktop import Desktop, log_of
from support.processes import wait_until

PROGRAM = os.environ.get("PROGRAM_UNDER_TEST", "build/dev/bin/norvin-focus")

FLOATING_TIMER_TITLES = ("Floating timer", "Minuteur flottant")


class Application:
    """The program on one desktop."""

    def __init__(self, desktop, program=PROGRAM):
        self.desktop = desktop
        self.program = os.path.abspath(program)
        self.process = None
        self._launches = 0

    @property
    def preferences_file(self):
        return os.path.join(self.desktop.environment["XDG_CONFIG_HOME"], "norvin-focus", "preferences.ini")

    def write_preferences(self, welcome_completed="true", **settings):
        """The settings that the program finds when it is launched: those of somebody who was welcomed already,
        unless told otherwise."""
        settings["welcome_completed"] = welcome_completed
        os.makedirs(os.path.dirname(self.preferences_file), exist_ok=True)
        with open(self.preferences_file, "w", encoding="utf-8") as file:
            file.writelines(["[General]\n", *(f"{key}={value}\n" for key, value in settings.items())])

    # Processes

    def launch(self, *arguments):
        """Starts the program and waits until it answers (where there is a session bus to ask it over)."""
        self._launches += 1
        if not os.path.exists(self.preferences_file):
            self.write_preferences()
        self.process = self.desktop.processes.start(f"norvin-focus-{self._launches}", [self.program, *arguments],
                                                    self.desktop.environment)
        if self.desktop.session_bus:
            wait_until(self.answers, lambda: f"the program answers; it printed: {self.log()}")
        return self.process

    def answers(self):
        if self.process and self.process.poll() is not None:
            raise AssertionError(f"the program ended with {self.process.returncode}: {self.log()}")
        return self.command("status")[0] == 0

    def kill(self):
        """Ends the program as a power failure would."""
        self.process.send_signal(signal.SIGKILL)
        self.process.wait(10)

    def log(self):
        return log_of(self.process)

    # Command line

    def command(self, *arguments, timeout=30):
        """Runs one command to its end: (exit code, standard output, standard error)."""
        result = subprocess.run([self.program, *arguments], env=self.desktop.environment, capture_output=True,
                                stdin=subprocess.DEVNULL, text=True, timeout=timeout, check=False)
        return result.returncode, result.stdout, result.stderr

    def do(self, *arguments):
        """Runs a command that has to succeed; what it printed."""
        code, output, errors = self.command(*arguments)
        if code != 0:
            raise AssertionError(f"{arguments} ended with {code}: {output}{errors}")
        return output

    def status(self):
        return json.loads(self.do("status", "--json"))

    def wait_for(self, condition, what, timeout=15.0):
        """The first status that meets the condition."""
        last = {}

        def met():
            nonlocal last
            last = self.status()
            return last if condition(last) else None

        # Each look is a process: seldom enough to leave the machine to the other tests.
        return wait_until(met, lambda: f"{what}; the last status is {last}", timeout, interval=0.1)

    def wait_for_activity(self, kind, name):
        return self.wait_for(lambda s: (s["activity"]["kind"], s["activity"]["appName"]) == (kind, name),
                             f"{name} is counted as {kind}")

    # Windows

    def windows(self):
        """The windows on the screen of the program that was launched, without those that lie over all others."""
        return [window for window in self.desktop.visible_windows("--pid", str(self.process.pid))
                if not self.desktop.is_overlay(window)]

    def overlays(self):
        """The windows of the program that lie over all others, but for the floating timer."""
        return [window for window in self._overlays() if not self._is_floating_timer(window)]

    def floating_timer(self):
        """The window of the floating timer; none while it is not shown."""
        return next((window for window in self._overlays() if self._is_floating_timer(window)), None)

    def _overlays(self):
        return [window for window in self.desktop.visible_windows("--pid", str(self.process.pid))
                if self.desktop.is_overlay(window)]

    def _is_floating_timer(self, window):
        return self.desktop.run("xdotool", "getwindowname", str(window)).startswith(FLOATING_TIMER_TITLES)

    def close_windows(self):
        """Closes each window as its user does."""
        for window in wait_until(self.windows, "there is a window to close"):
            self.desktop.bring_to_front(window)
            self.desktop.run("xdotool", "key", "alt+F4", check=True)
        wait_until(lambda: not self.windows(), "the window is closed")

    def is_in_front(self):
        return self.desktop.active_window() in self.windows()

    # Store

    @property
    def store_file(self):
        return os.path.join(self.desktop.data_home, "NorvinFocus.sqlite")

    def rows(self, query, *values):
        """What a query finds in the store, read from outside as any other program would."""
        connection = sqlite3.connect(f"file:{self.store_file}?mode=ro", uri=True, timeout=10)
        try:
            connection.row_factory = sqlite3.Row
            return connection.execute(query, values).fetchall()
        finally:
            connection.close()

    def sessions(self):
        return self.rows("SELECT * FROM Session ORDER BY startTime")

    def intervals(self):
        return self.rows("SELECT AppUsageSession.*, bundleID, appName, category FROM AppUsageSession"
                         " JOIN AppUsageSource ON AppUsageSource.id = source ORDER BY startTime")


class Follower:
    """Collects what `status --follow` prints."""

    def __init__(self, application):
        self._application = application
        self._process = application.desktop.processes.start(
            "follow", [application.program, "status", "--json", "--follow"], application.desktop.environment,
            stdout=subprocess.PIPE)
        self.reports = []
        self._reader = threading.Thread(target=self._read, daemon=True)
        self._reader.start()
        wait_until(lambda: self.reports, "the first status is printed")

    def _read(self):
        for line in self._process.stdout:
            self.reports.append(json.loads(line))

    def activities(self):
        """The applications in front as they followed one another."""
        names = []
        for report in self.reports:
            activity = (report["activity"]["kind"], report["activity"]["appName"])
            if not names or names[-1] != activity:
                names.append(activity)
        return names

    def exit_code(self):
        code = self._process.wait(15)
        self._reader.join(15)
        return code


class DesktopTestCase(unittest.TestCase):
    """A test with a desktop and the program of its own; says what all processes printed when it fails."""

    desktop_options = {}

    def setUp(self):
        self.desktop = Desktop(**self.desktop_options)
        self.addCleanup(self.desktop.close)
        self.addCleanup(self._report_failure)
        self.app = Application(self.desktop)

    def _report_failure(self):
        # The result is complete only after the cleanups, so the failure is looked up where it is kept now.
        outcome = self._outcome.result
        if any(test is self for test, _ in outcome.failures + outcome.errors):
            self.desktop.print_logs()
