"""Browsers that the extension is installed in, and the application's end towards it."""

import glob
import json
import os
import shutil
import signal
import subprocess

from support.browsers import Chromium, Firefox
from support.processes import wait_until

BUILD = os.environ.get("BUILD_UNDER_TEST", "build/dev")


class ExtensionEnd:
    """The application's side: the server that extensions connect to, and the installer."""

    def __init__(self, desktop):
        self.desktop = desktop
        self.process = None
        self._log = desktop.path("extension-driver.log")
        self.start()

    def start(self):
        with open(self._log, "ab") as log:
            self.process = subprocess.Popen([os.path.abspath(os.path.join(BUILD, "bin", "extension-driver"))],
                                            env=self.desktop.environment, stdin=subprocess.PIPE,
                                            stdout=subprocess.PIPE, stderr=log)

    def stop(self):
        """Ends it in peace."""
        self.process.stdin.close()
        self.process.wait(10)
        self.process.stdout.close()

    def kill(self):
        """Ends it as a crash would, with its socket left behind."""
        self.process.kill()
        self.stop()

    def ask(self, *words):
        """The answer to a command, with how long that took as "ms"."""
        self.process.stdin.write(" ".join(map(str, words)).encode() + b"\n")
        self.process.stdin.flush()
        return json.loads(self.process.stdout.readline())

    def page(self, browser):
        """(domain, focused) of a browser's front page; None while it is not connected or has not told."""
        answer = self.ask("page", browser.pid)
        return (answer["domain"], answer["focused"]) if "domain" in answer else None

    def wait_for_page(self, browser, domain, focused=True, timeout=30.0):
        wait_until(lambda: self.page(browser) == (domain, focused),
                   lambda: f"{domain} is in front (focused: {focused}), not {self.page(browser)}", timeout)

    def close(self, browser, domain):
        return self.ask("close", browser.pid, domain)["result"]

    def changes(self):
        """Every change of a page so far, oldest first."""
        with open(self._log, encoding="utf-8") as log:
            return [json.loads(line) for line in log if line.startswith("{")]

    def hosts(self, browser):
        """Process ids of the native hosts that a browser has started."""
        hosts = []
        for path in glob.glob(f"/proc/{browser.pid}/task/*/children"):
            with open(path, encoding="ascii") as children:
                hosts += [int(child) for child in children.read().split() if _is_host(child)]
        return hosts

    def kill_host(self, browser):
        [host] = self.hosts(browser)
        os.kill(host, signal.SIGKILL)


def _is_host(process):
    try:
        return os.path.basename(os.readlink(f"/proc/{process}/exe")) == "norvin-focus-browser-host"
    except FileNotFoundError:
        return False


class FirefoxWithExtension(Firefox):
    """Firefox that takes extensions without a signature, which it does otherwise from the system only."""

    def __init__(self, desktop, pages, preferences=None):
        super().__init__(desktop, pages, {"xpinstall.signatures.required": False,
                                          "extensions.autoDisableScopes": 0} | (preferences or {}))

    def install(self, end):
        package = end.ask("install", "firefox")["detail"]
        directory = os.path.join(self.profile, "extensions")
        os.makedirs(directory)
        shutil.copy(package, directory)


class ChromiumWithExtension(Chromium):
    """Chromium with its usual profile, where it looks for extensions that other programs offer."""

    def __init__(self, desktop, pages):
        super().__init__(desktop, pages)
        self.profile = os.path.join(desktop.environment["XDG_CONFIG_HOME"], "chromium")

    def arguments(self):
        # With this one it takes no extensions from others.
        return [argument for argument in super().arguments() if argument != "--disable-default-apps"]

    def install(self, end):
        end.ask("install", "chromium")
