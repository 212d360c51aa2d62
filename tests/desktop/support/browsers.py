"""Real browsers on a private desktop, each with a fresh profile and with pages from this machine only."""

import os
import signal
import tempfile

from support.processes import wait_until

LAUNCHER = "/usr/libexec/at-spi-bus-launcher"
# A browser starts slowly, more so beside other tests.
START = 60.0


class Accessibility:
    """The accessibility services of a desktop's session, which are not there before start()."""

    def __init__(self, desktop):
        self.desktop = desktop
        self.launcher = None

    def start(self, enabled=True):
        """Starts the services with their switch on or off, which browsers look at when they start."""
        # Its schemas, and a memory that ends with it: else the switch would be the one of the settings.
        self.launcher = self.desktop.processes.start(
            "at-spi-bus-launcher", [LAUNCHER, "--launch-immediately"],
            self.desktop.environment | {"XDG_DATA_DIRS": "/usr/share", "GSETTINGS_BACKEND": "memory"},
            start_new_session=True)
        wait_until(lambda: self.desktop.has_name("org.a11y.Bus"), "the accessibility services are there")
        if enabled:
            self.enable()
        return self

    def enable(self, enabled=True):
        """Turns the switch that permits programs to read others' windows."""
        self.desktop.run("gdbus", "call", "--session", "--dest", "org.a11y.Bus", "--object-path", "/org/a11y/bus",
                         "--method", "org.freedesktop.DBus.Properties.Set", "org.a11y.Status", "IsEnabled",
                         f"<{str(enabled).lower()}>", check=True)

    def is_enabled(self):
        return "true" in self.desktop.run(
            "gdbus", "call", "--session", "--dest", "org.a11y.Bus", "--object-path", "/org/a11y/bus",
            "--method", "org.freedesktop.DBus.Properties.Get", "org.a11y.Status", "IsEnabled")

    def stop(self):
        """Ends the services with everything that belongs to them."""
        _signal_group(self.launcher, signal.SIGKILL)
        self.desktop.processes.stop(self.launcher)
        self.launcher = None

    def freeze(self):
        _signal_group(self.launcher, signal.SIGSTOP)

    def thaw(self):
        _signal_group(self.launcher, signal.SIGCONT)


class Browser:
    """A browser that runs from start() to close(). Its pages are opened as from another program's link."""

    name = None  # of its process
    window_class = None

    def __init__(self, desktop, pages):
        self.desktop = desktop
        self.pages = pages
        self.process = None
        self.profile = tempfile.mkdtemp(prefix=f"{self.name}-", dir=desktop.directory)

    @classmethod
    def is_installed(cls):
        return os.access(cls.program, os.X_OK)

    # What differs between browsers

    program = None

    def arguments(self):
        """Command line that every start and every opening of a page has."""
        raise NotImplementedError

    def prepare_profile(self):
        pass

    NEW_TAB, NEW_WINDOW, PRIVATE_WINDOW = ((), (), ())

    # Life

    def start(self, url, *arguments, title=None):
        """Starts the browser with one page and waits until that is open, and in front.

        @param title of the page; its window's is checked where it is given"""
        self.prepare_profile()
        self.process = self.desktop.processes.start(self.name, [self.program, *self.arguments(), *arguments, url],
                                                    self.desktop.environment, start_new_session=True)

        def in_front():
            if self.process.poll() is not None:
                raise AssertionError(f"{self.name} ended with {self.process.returncode}")
            return url in self.pages.open() and self.is_in_front(title)

        wait_until(in_front, lambda: f"{self.name} shows {url}; open are {self.pages.open()}, "
                                     f"in front is {self.front_title()!r}", START, interval=0.1)
        return self

    def close(self):
        """Ends the browser, also a stopped one, and all of its processes."""
        if self.process:
            self.resume()
            self.desktop.processes.stop(self.process)
            _signal_group(self.process, signal.SIGKILL)
            self.process = None

    @property
    def pid(self):
        """Process id, the one of its windows and of its accessible application."""
        return self.process.pid

    def pause(self):
        """Stops all processes of the browser, which then answers nobody."""
        _signal_group(self.process, signal.SIGSTOP)

    def resume(self):
        _signal_group(self.process, signal.SIGCONT)

    # Pages

    def open(self, url, how=None, title=None):
        """Opens a page and waits until it is open and in front; `how` is NEW_TAB, NEW_WINDOW or PRIVATE_WINDOW."""
        count = self.pages.open().count(url)
        self.desktop.run(self.program, *self.arguments(), *(self.NEW_TAB if how is None else how), url)
        wait_until(lambda: self.pages.open().count(url) == count + 1 and self.is_in_front(title),
                   lambda: f"{self.name} shows {url}; open are {self.pages.open()}, "
                           f"in front is {self.front_title()!r}", START)

    def press(self, *keys):
        """Presses keys ("ctrl+Tab") as the user does: they go to the window in front."""
        self.desktop.run("xdotool", "key", "--clearmodifiers", *keys, check=True)

    def show_tab(self, number, title):
        """Switches to a tab of the window in front, counted from 1, and waits until its title is the window's."""
        self.press(f"alt+{number}")
        self.wait_for_title(title)

    def go_to(self, text, title):
        """Types an address into the address bar of the window in front and waits for that page's title."""
        self.press("ctrl+l")
        self.desktop.run("xdotool", "type", "--delay", "15", text)
        self.press("Return")
        self.wait_for_title(title)

    # Windows

    def windows(self, title=""):
        """Windows on the screen whose title begins with a page's, front or not."""
        return [window for window in self.desktop.visible_windows("--class", f"^{self.window_class}$")
                if self._title(window).startswith(title)]

    def is_in_front(self, title=None):
        return self.desktop.active_window() in self.windows(title or "")

    def front_title(self):
        """Title of the window in front, which begins with the one of the page that it shows."""
        return self.desktop.run("xdotool", "getactivewindow", "getwindowname").rstrip("\n")

    def _title(self, window):
        return self.desktop.run("xdotool", "getwindowname", str(window)).rstrip("\n")

    def wait_for_title(self, title):
        wait_until(lambda: self.is_in_front(title), lambda: f"{title!r} is in front, not {self.front_title()!r}", 30)

    def bring_to_front(self, title):
        """Brings the window whose front tab has this title to the front."""
        window = wait_until(lambda: self.windows(title), f"{self.name} has a window {title!r}", 30)[0]
        self.desktop.bring_to_front(window)


class Firefox(Browser):
    name = "firefox"
    program = "/usr/bin/firefox-esr"
    window_class = "firefox-esr"
    NEW_TAB = ("--new-tab",)
    NEW_WINDOW = ("--new-window",)
    PRIVATE_WINDOW = ("--private-window",)

    # No first-run pages and no questions, nothing from the network but through our server.
    PREFERENCES = {
        "app.normandy.enabled": False,
        "app.update.enabled": False,
        "browser.aboutwelcome.enabled": False,
        "browser.discovery.enabled": False,
        "browser.newtabpage.enabled": False,
        "browser.safebrowsing.downloads.remote.enabled": False,
        "browser.safebrowsing.malware.enabled": False,
        "browser.safebrowsing.phishing.enabled": False,
        "browser.sessionstore.resume_from_crash": False,
        "browser.shell.checkDefaultBrowser": False,
        "browser.startup.homepage_override.mstone": "ignore",
        "browser.startup.page": 0,
        "browser.tabs.warnOnClose": False,
        "browser.tabs.warnOnCloseOtherTabs": False,
        "browser.termsofuse.bypassNotification": True,
        "browser.urlbar.suggest.searches": False,
        "datareporting.healthreport.uploadEnabled": False,
        "datareporting.policy.dataSubmissionEnabled": False,
        "dom.security.https_first": False,
        "dom.security.https_only_mode": False,
        "extensions.update.enabled": False,
        "media.gmp-manager.updateEnabled": False,
        "network.captive-portal-service.enabled": False,
        "network.connectivity-service.enabled": False,
        "network.proxy.type": 1,
        "network.proxy.allow_hijacking_localhost": True,
        "network.proxy.http": "127.0.0.1",
        "network.proxy.ssl": "127.0.0.1",
        "sidebar.revamp": False,
        "sidebar.verticalTabs": False,
        "termsofuse.acceptedVersion": 999,
        "toolkit.telemetry.enabled": False,
        "trailhead.firstrun.didSeeAboutWelcome": True,
    }

    def __init__(self, desktop, pages, preferences=None):
        """@param preferences more of them, as about:config names them"""
        super().__init__(desktop, pages)
        self._preferences = preferences or {}

    def arguments(self):
        return ["--profile", self.profile]

    def prepare_profile(self):
        ports = {"network.proxy.http_port": self.pages.port, "network.proxy.ssl_port": self.pages.port}
        with open(os.path.join(self.profile, "user.js"), "w", encoding="utf-8") as file:
            for name, value in (self.PREFERENCES | ports | self._preferences).items():
                text = str(value).lower() if isinstance(value, bool) else repr(value).replace("'", '"')
                file.write(f'user_pref("{name}", {text});\n')

    def pin_first_tab(self):
        """Pins the first tab of the window in front, through the menu that a right click on it opens."""
        window = self.desktop.active_window()
        self.desktop.run("xdotool", "mousemove", "--window", str(window), "110", "22", "click", "3", check=True)
        menu = wait_until(self._menu, "the tab's menu is open", 30)

        def chosen():
            # A menu that has just opened does not listen yet.
            self.press("p")
            return menu not in self.windows()

        wait_until(chosen, "the tab's menu is closed", 30, interval=0.5)

    def _menu(self):
        for window in self.windows():
            if "POPUP_MENU" in self.desktop.run("xprop", "-id", str(window), "_NET_WM_WINDOW_TYPE"):
                return window
        return None


class Chromium(Browser):
    name = "chromium"
    program = "/usr/bin/chromium"
    window_class = "Chromium"
    NEW_TAB = ()
    NEW_WINDOW = ("--new-window",)
    PRIVATE_WINDOW = ("--incognito",)

    def arguments(self):
        return [f"--user-data-dir={self.profile}", f"--proxy-server=http://127.0.0.1:{self.pages.port}",
                "--proxy-bypass-list=<-loopback>",
                # Its sandbox needs rights that neither root nor a container has.
                "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run", "--no-default-browser-check",
                "--disable-background-networking", "--disable-component-update", "--disable-sync",
                "--disable-default-apps", "--password-store=basic", "--disable-dev-shm-usage",
                "--disable-features=HttpsUpgrades,HttpsFirstBalancedModeAutoEnable,HttpsFirstModeIncognito,"
                "HttpsFirstModeV2,HttpsFirstModeV2ForTypicallySecureUsers,Translate"]


def _signal_group(process, number):
    """Signals a process that leads a session of its own, with all of its children."""
    try:
        os.killpg(process.pid, number)
    except ProcessLookupError:
        pass
