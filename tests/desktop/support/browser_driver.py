"""The program's reading and closing of browsers' tabs, driven from outside."""

import json
import os
import subprocess

from support.processes import wait_until

PROGRAM = os.path.join(os.environ.get("BUILD_UNDER_TEST", "build/dev"), "bin", "browser-driver")


class BrowserDriver:
    """One reader on a desktop, which has to be closed."""

    def __init__(self, desktop, program=PROGRAM):
        self._process = subprocess.Popen([os.path.abspath(program)], env=desktop.environment, stdin=subprocess.PIPE,
                                         stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)

    def close(self):
        self._process.kill()
        self._process.communicate()

    def ask(self, *words):
        """What the driver answers to a command: a dictionary, with the milliseconds that it took."""
        self._process.stdin.write((" ".join(map(str, words)) + "\n").encode())
        self._process.stdin.flush()
        return json.loads(self._process.stdout.readline())

    def read(self, browser):
        """State and address of what the window in front shows."""
        answer = self.ask("read", browser.pid, browser.front_title())
        return answer["state"], answer["url"]

    def wait_for(self, browser, state, url="", timeout=30):
        last = None

        def met():
            nonlocal last
            last = self.read(browser)
            return last == (state, url)

        wait_until(met, lambda: f"{state} {url} is read, not {last}", timeout, interval=0.1)

    def close_tab(self, browser, url):
        """What closing the tab in front came to, if its address begins with the given one."""
        return self.ask("close", browser.pid, url, browser.front_title())["result"]

    def walk(self, browser):
        """What is found by going through the window in front as a tree of elements."""
        return self.ask("walk", browser.pid, browser.front_title())
