"""Looks for updates, answered by a real PackageKit and by a stand-in for the portal of Flatpak."""

import json
import os
import subprocess
import threading
import unittest

from support.desktop import Desktop
from support.processes import read_line, wait_until

DRIVER = os.path.join(os.environ.get("BUILD_UNDER_TEST", "build/dev"), "bin", "update-driver")
HERE = os.path.dirname(os.path.abspath(__file__))
PORTAL = "org.freedesktop.portal.Flatpak"


class Driver:
    """The program's update source, as if it had been installed in one way or another."""

    def __init__(self, desktop, flatpak_info="/nowhere", dpkg_info="/nowhere"):
        self._process = desktop.processes.start(
            "driver", [DRIVER, flatpak_info, dpkg_info, "/usr/bin/norvin-focus"], desktop.environment,
            stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        self.lines = []
        threading.Thread(target=self._read, daemon=True).start()

    def _read(self):
        for line in self._process.stdout:
            self.lines.append(json.loads(line))

    def states(self):
        return [line for line in self.lines if "canCheck" in line]

    def results(self):
        return [line for line in self.lines if "outcome" in line]

    def wait_until_ready(self):
        wait_until(lambda: self.states() and self.states()[-1]["canCheck"], lambda: f"a look can begin: {self.lines}")

    def begin(self, line=""):
        self._process.stdin.write(line.encode() + b"\n")
        self._process.stdin.flush()

    def check(self):
        """One look from beginning to end: what it found."""
        self.wait_until_ready()
        before = len(self.results())
        self.begin()
        wait_until(lambda: len(self.results()) > before, lambda: f"the look ends: {self.lines}", 60)
        return self.results()[-1]


class UpdatesTest(unittest.TestCase):
    def setUp(self):
        self.desktop = Desktop(window_manager=False, notifications=False, login=False)
        self.addCleanup(self.desktop.close)

    def start_package_service(self, installed, offered):
        directory = self.desktop.path("packages")
        os.mkdir(directory)
        service = self.desktop.processes.start(
            "packages", ["unshare", "--mount", "--pid", "--fork", "--kill-child", "--mount-proc", "/usr/bin/python3",
                         os.path.join(HERE, "support", "package_service.py"), directory, installed, offered],
            os.environ | {"LC_ALL": "C.UTF-8"}, stdout=subprocess.PIPE)
        self.assertEqual(read_line(service.stdout.fileno(), "PackageKit", 120), "ready")
        self.desktop.environment["DBUS_SYSTEM_BUS_ADDRESS"] = f"unix:path={directory}/bus"
        return f"{directory}/dpkg/info"

    def check_package(self, installed, offered):
        driver = Driver(self.desktop, dpkg_info=self.start_package_service(installed, offered))
        found = driver.check()
        self.assertFalse(all(state["canCheck"] for state in driver.states()), "no second look during the first")
        driver.wait_until_ready()
        return found

    def test_a_newer_package_is_found(self):
        found = self.check_package("0.1.0", "0.2.0-1")
        self.assertEqual((found["outcome"], found["version"]), ("available", "0.2.0-1"), found)

    def test_the_software_centre_of_the_desktop_opens_with_this_program(self):
        said = self.desktop.path("said")
        self.desktop.write("data/applications/org.example.Centre.desktop",
                           "[Desktop Entry]\nType=Application\nName=Centre\nMimeType=x-scheme-handler/appstream;\n"
                           f"Exec=sh -c 'printf %%s \"$0\" > {said}.part; mv {said}.part {said}' %u\n")
        self.desktop.write("config/mimeapps.list",
                           "[Default Applications]\nx-scheme-handler/appstream=org.example.Centre.desktop\n")
        driver = Driver(self.desktop, dpkg_info=self.start_package_service("0.1.0", "0.2.0"))
        driver.check()
        self.assertTrue(driver.states()[-1]["canOpen"])
        driver.begin("open")
        wait_until(lambda: os.path.exists(said), "the centre is opened")
        with open(said, encoding="utf-8") as file:
            self.assertEqual(file.read(), "appstream://com.norvin.Focus")

    def test_the_same_package_from_elsewhere_is_no_update(self):
        self.assertEqual(self.check_package("0.2.0", "0.2.0")["outcome"], "upToDate")

    def test_an_older_package_is_no_update(self):
        self.assertEqual(self.check_package("0.2.0", "0.1.0")["outcome"], "upToDate")

    def test_a_package_without_its_service_says_so(self):
        os.makedirs(self.desktop.path("info"))
        with open(self.desktop.path("info", "norvin-focus.list"), "w", encoding="utf-8") as file:
            file.write("/usr/bin/norvin-focus\n")
        self.desktop.start_login_service()  # a system bus on which nobody knows of packages
        driver = Driver(self.desktop, dpkg_info=self.desktop.path("info"))
        wait_until(lambda: driver.states(), "the state is told")
        self.assertEqual(driver.states()[-1], {"canCheck": False, "canOpen": False, "reason": "update_no_packagekit"})

    def test_a_build_from_source_says_so(self):
        driver = Driver(self.desktop, dpkg_info=self.desktop.path("info"))
        wait_until(lambda: driver.states(), "the state is told")
        self.assertEqual(driver.states(), [{"canCheck": False, "canOpen": False, "reason": "update_source_build"}])


class FlatpakTest(unittest.TestCase):
    def setUp(self):
        self.desktop = Desktop(window_manager=False, notifications=False, login=False)
        self.addCleanup(self.desktop.close)
        self.info = self.desktop.path("flatpak-info")
        with open(self.info, "w", encoding="utf-8") as file:
            file.write("[Application]\nname=com.norvin.Focus\n")

    def mock(self, method, *arguments, path="/org/freedesktop/portal/Flatpak"):
        self.desktop.run("gdbus", "call", "--session", "--dest", PORTAL, "--object-path", path, "--method",
                         f"org.freedesktop.DBus.Mock.{method}", *arguments, check=True)

    def start_portal(self):
        self.desktop.processes.start("portal", ["/usr/bin/python3", "-m", "dbusmock", "--session", PORTAL,
                                                "/org/freedesktop/portal/Flatpak", PORTAL], self.desktop.environment)
        wait_until(lambda: self.desktop.has_name(PORTAL), "the portal is there")
        self.mock("AddObject", "/monitor", f"{PORTAL}.UpdateMonitor", "{}", "[('Close', '', '', '')]")
        self.mock("AddMethod", PORTAL, "CreateUpdateMonitor", "a{sv}", "o", "self.made = True; ret = '/monitor'")

    def announce(self, running, local, remote):
        self.mock("EmitSignal", f"{PORTAL}.UpdateMonitor", "UpdateAvailable", "a{sv}",
                  f"[<{{'running-commit': <'{running}'>, 'local-commit': <'{local}'>, 'remote-commit': <'{remote}'>}}>]",
                  path="/monitor")

    def test_what_the_portal_announces_is_told(self):
        self.start_portal()
        driver = Driver(self.desktop, flatpak_info=self.info)
        driver.wait_until_ready()
        driver.begin()
        wait_until(lambda: not driver.states()[-1]["canCheck"], "the look begins")

        def announced():
            # The driver may not listen yet.
            self.announce("a", "a", "b")
            return driver.results()

        self.assertEqual(wait_until(announced, "the announcement arrives", interval=0.2)[0]["outcome"], "available")
        self.assertEqual(driver.check()["outcome"], "available")
        self.announce("a", "b", "b")
        wait_until(lambda: driver.results()[-1]["outcome"] == "installed", "it is told that the update is in place")

    def test_a_desktop_without_the_portal_says_so(self):
        found = Driver(self.desktop, flatpak_info=self.info).check()
        self.assertEqual((found["outcome"], found["reason"]), ("failed", "update_portal_missing"), found)


if __name__ == "__main__":
    unittest.main(verbosity=2)
