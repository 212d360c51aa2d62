"""A private X11 desktop: display, window manager, buses, notification daemon, login service, programs."""

import os
import re
import shutil
import subprocess
import tempfile

from support.processes import ProcessGroup, read_line, wait_until

# Programs with a window of their own: one to work in, one to be kept away from, one that nobody has listed.
# None of them says its process id on its window.
WORK = "org.example.Logo"
BLOCKED = "org.example.Calculator"
UNLISTED = "org.example.Note"
PROGRAMS = {
    WORK: ("Logo", "XLogo", ["xlogo"], "Graphics;"),
    BLOCKED: ("Calculator", "XCalc", ["xcalc"], "Utility;Calculator;"),
    UNLISTED: ("Note", "Xmessage", ["xmessage", "A note"], "Office;"),
}

BUS_CONFIGURATION = """<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>{kind}</type>
  <listen>unix:dir={directory}</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""

# Notifications that stay until they are clicked, and that cover nothing else.
DUNST_CONFIGURATION = """[global]
    idle_threshold = 0
    history_length = 20
    mouse_left_click = do_action, close_current
[urgency_low]
    timeout = 0
[urgency_normal]
    timeout = 0
[urgency_critical]
    timeout = 0
"""


class Desktop:
    """Everything is private to the instance, so that any number of them can run at once.

    Nothing of the machine's own desktop is reached: neither its buses nor its display, applications or files."""

    def __init__(self, *, window_manager=True, session_bus=True, notifications=True, login=True):
        self.directory = tempfile.mkdtemp(prefix="norvin-")
        self.processes = ProcessGroup(self.directory)
        self.environment = {
            "PATH": "/usr/local/bin:/usr/bin:/bin:/usr/games",
            "LANG": "C.UTF-8",
            "QT_QUICK_BACKEND": "software",
            # A bus that does not exist, rather than the one a library would look for or launch.
            "DBUS_SESSION_BUS_ADDRESS": f"unix:path={self.directory}/no-session-bus",
            "DBUS_SYSTEM_BUS_ADDRESS": f"unix:path={self.directory}/no-system-bus",
        }
        for name in ("ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS"):
            if name in os.environ:
                self.environment[name] = os.environ[name]
        for variable, name in (("HOME", "home"), ("XDG_DATA_HOME", "data"), ("XDG_CONFIG_HOME", "config"),
                               ("XDG_CACHE_HOME", "cache"), ("XDG_RUNTIME_DIR", "run"),
                               ("XDG_DATA_DIRS", "system-data")):
            path = os.path.join(self.directory, name)
            os.mkdir(path, 0o700)
            self.environment[variable] = path
        self.write("config/pulse/client.conf", "autospawn = no\n")
        self.write("config/dunst/dunstrc", DUNST_CONFIGURATION)
        self._write_desktop_entries()
        self.window_manager = None
        self.session_bus = None
        self.notification_daemon = None
        self.login_service = None
        try:
            self._start_display()
            if window_manager:
                self.start_window_manager()
            if session_bus:
                self.start_session_bus()
            if session_bus and notifications:
                self.start_notification_daemon()
            if login:
                self.start_login_service()
        except BaseException:
            self.print_logs()
            self.close()
            raise

    def print_logs(self):
        for name in sorted(os.listdir(self.directory)):
            if name.endswith(".log"):
                with open(self.path(name), encoding="utf-8", errors="replace") as log:
                    print(f"--- {name}\n{log.read()[-4000:]}", flush=True)

    def close(self):
        self.processes.stop_all()
        shutil.rmtree(self.directory, ignore_errors=True)

    def path(self, *parts):
        return os.path.join(self.directory, *parts)

    @property
    def data_home(self):
        return self.environment["XDG_DATA_HOME"]

    def write(self, name, text):
        """Writes a file below the directory of this desktop, "config" and "data" among others. Returns its path."""
        path = self.path(name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)
        return path

    def _write_desktop_entries(self):
        for identifier, (name, window_class, command, categories) in PROGRAMS.items():
            self.write(f"data/applications/{identifier}.desktop",
                        f"[Desktop Entry]\nType=Application\nName={name}\nExec={command[0]}\n"
                        f"StartupWMClass={window_class}\nCategories={categories}\n")

    # Servers

    def _start_display(self):
        reading, writing = os.pipe()
        with os.fdopen(reading, "rb") as answer:
            # Without -noreset the server would begin anew, and refuse connections for a moment, whenever its last
            # client leaves.
            self.processes.start("xvfb", ["Xvfb", "-displayfd", str(writing), "-noreset", "-screen", "0",
                                          "1400x900x24", "-nolisten", "tcp"],
                                 self.environment, pass_fds=(writing,))
            os.close(writing)
            self.environment["DISPLAY"] = ":" + read_line(answer.fileno(), "the display")

    def start_window_manager(self):
        self.window_manager = self.processes.start(
            "openbox", ["openbox", "--sm-disable"], self.environment | {"XDG_DATA_DIRS": "/usr/share"})  # its themes

        # It puts its marks on the root window before it listens, one that left has left its marks too, and a window
        # that is shown before it is ready is never brought to the front. Only one that does what it is asked, twice
        # and differently, is ready.
        for count in ("2", "1"):
            def obeys(wanted=count):
                self.run("xdotool", "set_num_desktops", wanted)
                return self.run("xprop", "-root", "_NET_NUMBER_OF_DESKTOPS").endswith(f"= {wanted}\n")

            wait_until(obeys, "the window manager manages the display")

    def stop_window_manager(self):
        self.processes.stop(self.window_manager)
        self.window_manager = None

    def _start_bus(self, kind):
        configuration = self.write(f"{kind}-bus.conf",
                                    BUS_CONFIGURATION.format(kind=kind, directory=self.path("run")))
        bus = self.processes.start(f"{kind}-bus",
                                   ["dbus-daemon", f"--config-file={configuration}", "--nofork", "--print-address=1"],
                                   self.environment, stdout=subprocess.PIPE)
        return bus, read_line(bus.stdout.fileno(), f"the {kind} bus")

    def start_session_bus(self):
        self.session_bus, self.environment["DBUS_SESSION_BUS_ADDRESS"] = self._start_bus("session")

    def stop_session_bus(self):
        self.processes.stop(self.session_bus)
        self.session_bus = None

    def has_name(self, name, bus="session"):
        answer = self.run("dbus-send", f"--{bus}", "--print-reply=literal", "--dest=org.freedesktop.DBus",
                          "/org/freedesktop/DBus", "org.freedesktop.DBus.NameHasOwner", f"string:{name}")
        return "true" in answer

    def start_notification_daemon(self):
        self.notification_daemon = self.processes.start("dunst", ["dunst"], self.environment)
        wait_until(lambda: self.has_name("org.freedesktop.Notifications"), "the notification daemon is there")

    def stop_notification_daemon(self):
        self.processes.stop(self.notification_daemon)
        self.notification_daemon = None

    def start_login_service(self):
        _, self.environment["DBUS_SYSTEM_BUS_ADDRESS"] = self._start_bus("system")
        self.login_service = self.processes.start(
            "login1", ["/usr/bin/python3", "-m", "dbusmock", "--system", "--template", "logind"], self.environment)
        wait_until(lambda: self.has_name("org.freedesktop.login1", "system"), "the login service is there")

    def announce_sleep(self, is_about_to_sleep):
        """What the login service says before the machine is suspended (True) and after (False)."""
        self.run("gdbus", "call", "--system", "--dest", "org.freedesktop.login1",
                 "--object-path", "/org/freedesktop/login1",
                 "--method", "org.freedesktop.DBus.Mock.EmitSignal", "org.freedesktop.login1.Manager",
                 "PrepareForSleep", "b", f"[<{str(is_about_to_sleep).lower()}>]", check=True)

    # Programs and windows

    def run(self, *arguments, check=False):
        """Runs a helper of the desktop and returns what it printed."""
        result = subprocess.run(arguments, env=self.environment, stdin=subprocess.DEVNULL, capture_output=True,
                                text=True, timeout=30, check=False)
        if check and result.returncode != 0:
            raise AssertionError(f"{arguments}: {result.stderr}")
        return result.stdout

    def open_program(self, identifier):
        """Starts one of PROGRAMS and returns its window, which may have been hidden before anybody saw it."""
        _, window_class, command, _ = PROGRAMS[identifier]
        self.processes.start(command[0], command, self.environment)
        return wait_until(lambda: self._managed_window(window_class), f"{command[0]} has a window")

    def start_program(self, identifier):
        """Starts one of PROGRAMS and returns its window, which is in front then."""
        window = self.open_program(identifier)
        wait_until(lambda: self.active_window() == window, f"{identifier} comes to the front")
        return window

    def _managed_window(self, window_class):
        for line in self.run("xdotool", "search", "--class", f"^{window_class}$").split():
            if not self.window_manager or "window state" in self.run("xprop", "-id", line, "WM_STATE"):
                return int(line)
        return None

    def visible_windows(self, *criteria):
        return [int(line) for line in self.run("xdotool", "search", "--onlyvisible", *criteria).split()]

    def is_overlay(self, window):
        """Whether the window keeps away from the window manager."""
        return "Override Redirect State: yes" in self.run("xwininfo", "-id", str(window))

    def active_window(self):
        match = re.search(r"# (0x[0-9a-f]+)", self.run("xprop", "-root", "_NET_ACTIVE_WINDOW"))
        return int(match.group(1), 16) if match else 0

    def activate(self, window):
        """Brings a window to the front as a task bar does, also out of the iconified state."""
        self.run("xdotool", "windowactivate", str(window), check=True)

    def bring_to_front(self, window):
        self.activate(window)
        wait_until(lambda: self.active_window() == window, f"window {window} is in front")

    def is_iconified(self, window):
        return "Iconic" in self.run("xprop", "-id", str(window), "WM_STATE")

    def screenshot(self, path):
        self.run("scrot", "--overwrite", path, check=True)
        return path


def log_of(process):
    with open(process.log_path, encoding="utf-8", errors="replace") as file:
        return file.read()


