"""The program keeps off the network: it runs without one, and asks for a connection only to send what it was told to."""

import os
import re
import unittest

from support.application import DesktopTestCase
from support.desktop import WORK
from support.processes import wait_until

LOCAL = {"AF_UNIX", "AF_NETLINK"}


class NetworkTest(DesktopTestCase):
    def setUp(self):
        super().setUp()
        self.trace = self.desktop.path("trace")
        self.wrapper = self.desktop.path("in-a-world-without-network")
        # The tracer stands aside, so that the program is the process that was started.
        with open(self.wrapper, "w", encoding="utf-8") as file:
            file.write(f"#!/bin/sh\nexec unshare --net strace -D -f -qq --seccomp-bpf -e trace=socket,connect"
                       f" -o {self.trace} {self.app.program} \"$@\"\n")
        os.chmod(self.wrapper, 0o755)

    def launch_traced(self):
        program, self.app.program = self.app.program, self.wrapper
        try:
            self.app.process = self.desktop.processes.start("norvin-focus", [self.wrapper], self.desktop.environment)
        finally:
            self.app.program = program
        wait_until(self.app.answers, lambda: f"the program answers; it printed: {self.app.log()}", 60)
        self.desktop.bring_to_front(wait_until(self.app.windows, "the window is shown", 30)[0])

    def families(self):
        """The kinds of address that sockets were made for or connected to."""
        with open(self.trace, encoding="utf-8") as file:
            return set(re.findall(r"\b(?:AF|PF)_[A-Z0-9]+", file.read()))

    def press(self, *keys):
        self.desktop.run("xdotool", "key", *keys, check=True)

    def test_only_feedback_that_is_sent_asks_for_a_connection(self):
        self.app.write_preferences(app_language="en", feedback_base_url="https://127.0.0.1:9/")
        self.launch_traced()
        window = self.app.windows()[0]
        self.app.do("allow", "--app", WORK)
        self.desktop.start_program(WORK)
        self.app.do("start", "--minutes", "1", "--task", "Write")
        self.app.wait_for(lambda s: s["legitimateSeconds"] >= 2, "work is counted")
        self.desktop.bring_to_front(window)
        for page in range(1, 8):
            self.press(f"ctrl+{page}")
            # It answers once the page is there.
            self.app.status()
        self.app.do("stop")
        self.assertLessEqual(self.families(), LOCAL)
        self.assertIn("AF_UNIX", self.families(), "the trace sees what is there")

        self.press("ctrl+k")
        self.desktop.run("xdotool", "type", "improvement", check=True)
        self.press("Return")
        self.desktop.run("xdotool", "type", "More rain", check=True)
        wait_until(lambda: self.preference("feedback_draft") == "More rain", "the form takes the text")
        self.assertLessEqual(self.families(), LOCAL)
        self.press("ctrl+Return")
        wait_until(lambda: "AF_INET" in self.families(), "what is sent asks for a connection")
        wait_until(lambda: "FeedbackForm: Not sent" in self.app.log(), "there is no network to send over")
        self.assertEqual(self.preference("feedback_draft"), "More rain")
        self.assertIsNone(self.app.process.poll())

    def preference(self, key):
        path = os.path.join(self.desktop.environment["XDG_CONFIG_HOME"], "norvin-focus", "preferences.ini")
        with open(path, encoding="utf-8") as file:
            found = re.search(rf"^{key}=(.*)$", file.read(), re.MULTILINE)
        return found.group(1) if found else None


if __name__ == "__main__":
    unittest.main(verbosity=2)
