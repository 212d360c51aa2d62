"""The browser alert over real windows: what it covers, and that it takes nothing from them."""

import os
import re
import struct
import subprocess
import unittest

from support.application import DesktopTestCase
from support.desktop import UNLISTED, WORK, Desktop
from support.processes import read_line, wait_until

STAGE = os.path.join(os.environ.get("BUILD_UNDER_TEST", "build/dev"), "bin", "alert-stage")
SCREEN = (1400, 900)
RED = (239, 68, 68)
CARD = (18, 18, 31)
WHITE = (255, 255, 255)
# Between the card and the frame, over what is white of the window below.
BETWEEN = (700, 150)


class Screen(Desktop):
    """A desktop that can be looked at, blended and split."""

    def __init__(self):
        super().__init__(session_bus=False, login=False)
        self.compositor = None

    def colours(self, points):
        """Colour of each of these points of the screen."""
        picture = subprocess.run(["xwd", "-root", "-silent"], env=self.environment, capture_output=True, timeout=30,
                                 check=True).stdout
        header = struct.unpack(">25I", picture[:100])
        pixels, line, size = header[0] + header[19] * 12, header[12], header[11] // 8

        def colour(x, y):
            blue, green, red = picture[pixels + y * line + x * size:][:3]
            return red, green, blue

        return [colour(*point) for point in points]

    def geometry(self, window):
        """Place and size on the screen, (x, y, width, height); empty for a window that is gone."""
        text = self.run("xwininfo", "-id", str(window))
        return tuple(int(value) for name in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")
                     for value in re.findall(rf"{name}: +(-?\d+)", text))

    def managed_windows(self):
        """All windows that the window manager, and with it every task bar, knows."""
        return [int(number, 16) for number in re.findall(r"0x[0-9a-f]+", self.run("xprop", "-root", "_NET_CLIENT_LIST"))]

    def start_compositor(self):
        self.compositor = self.processes.start("picom", ["picom", "--backend", "xrender", "--config", "/dev/null"],
                                               self.environment)

    def stop_compositor(self):
        self.processes.stop(self.compositor)

    def set_monitors(self, *places):
        """Splits the screen into monitors of these places, or makes it one again."""
        for name in re.findall(r"\d+: \+?\*?(part\d) ", self.run("xrandr", "--listmonitors")):
            self.run("xrandr", "--delmonitor", name, check=True)
        for number, (x, y, width, height) in enumerate(places if len(places) > 1 else ()):
            self.run("xrandr", "--setmonitor", f"part{number}", f"{width}/{width // 4}x{height}/{height // 4}+{x}+{y}",
                     "none" if number else "screen", check=True)


class Stage:
    """A program that raises the alert on demand."""

    def __init__(self, desktop):
        self.desktop = desktop
        self.process = desktop.processes.start("alert-stage", [os.path.abspath(STAGE)], desktop.environment,
                                               stdin=subprocess.PIPE, stdout=subprocess.PIPE)

    def tell(self, command):
        self.process.stdin.write(f"{command}\n".encode())
        self.process.stdin.flush()
        # What the program logs stands on the same output, and may come along with the answer.
        while not read_line(self.process.stdout.fileno(), f"the answer to {command!r}").endswith("done"):
            pass

    def windows(self):
        return self.desktop.visible_windows("--pid", str(self.process.pid))

    def places(self):
        """Place and size of each of its windows, from left to right."""
        return sorted(self.desktop.geometry(window) for window in self.windows())


class Alert(unittest.TestCase):
    def setUp(self):
        self.desktop = Screen()
        self.addCleanup(self.desktop.close)
        self.full_screen = self.desktop.start_program(WORK)
        self.desktop.run("wmctrl", "-i", "-r", hex(self.full_screen), "-b", "add,fullscreen", check=True)
        wait_until(lambda: self.desktop.geometry(self.full_screen) == (0, 0, *SCREEN), "the window fills the screen")
        self.stage = Stage(self.desktop)

    def show(self, *, places=((0, 0, *SCREEN),)):
        self.stage.tell("show news.example.org")
        wait_until(lambda: self.stage.places() == list(places), lambda: f"the alert is at {self.stage.places()}")

    def wait_for_colours(self, expected):
        wait_until(lambda: self.desktop.colours(expected) == list(expected.values()),
                   lambda: f"{expected} are there, not {self.desktop.colours(expected)}")

    def is_half_shaded(self):
        """Whether what is white below can still be told from what is black."""
        colour = self.desktop.colours([BETWEEN])[0]
        return 80 < min(colour) and max(colour) < 180

    def assert_leaves_the_rest_alone(self, x, y):
        """Keyboard and pointer stay with the window below, wherever the alert is."""
        self.assertEqual(self.desktop.active_window(), self.full_screen)
        self.assertNotIn(self.stage.windows()[0], self.desktop.managed_windows())
        self.desktop.run("xdotool", "mousemove", str(x), str(y))
        under = self.desktop.run("xdotool", "getmouselocation", "--shell")
        self.assertNotIn(int(re.search(r"WINDOW=(\d+)", under).group(1)), self.stage.windows())

    def test_over_a_full_screen_window(self):
        # The same with and without anything that blends windows, but for what lies between card and frame.
        for blended in (False, True):
            with self.subTest(blended=blended):
                if blended:
                    self.desktop.start_compositor()
                self.wait_for_colours({BETWEEN: WHITE})
                self.show()
                self.wait_for_colours({(2, 450): RED, (1397, 450): RED, (700, 2): RED, (700, 897): RED,
                                       (480, 450): CARD})
                if blended:
                    wait_until(self.is_half_shaded, lambda: f"white in a half shade: {self.desktop.colours([BETWEEN])}")
                else:
                    self.wait_for_colours({BETWEEN: WHITE})
                for x, y in ((700, 450), (2, 450), BETWEEN):
                    self.assert_leaves_the_rest_alone(x, y)
                self.stage.tell("dismiss")
                wait_until(lambda: not self.stage.windows(), "the alert is gone")
                self.wait_for_colours({(2, 450): WHITE, (480, 450): WHITE, BETWEEN: WHITE})
                self.assertEqual(self.desktop.active_window(), self.full_screen)

    def test_clicks_reach_the_window_below(self):
        for blended in (False, True):
            with self.subTest(blended=blended):
                if blended:
                    self.desktop.start_compositor()
                note = self.desktop.start_program(UNLISTED)
                _, _, width, height = self.desktop.geometry(note)
                x, y = (SCREEN[0] - width) // 2, (SCREEN[1] - height) // 2
                self.desktop.run("xdotool", "windowmove", "--sync", str(note), str(x), str(y))
                self.show()
                # Its only button is in its lower left corner, below the card.
                x, y, _, height = self.desktop.geometry(note)
                self.assertTrue(460 < x < 900 and 350 < y < 550, f"the note is in the middle, not at {x}, {y}")
                self.desktop.run("xdotool", "mousemove", str(x + 20), str(y + height - 12), "click", "1")
                wait_until(lambda: note not in self.desktop.visible_windows("--class", "Xmessage"),
                           "the note was pressed away")
                self.assertTrue(self.stage.windows())
                self.stage.tell("dismiss")

    def test_each_monitor_has_its_own(self):
        left, right = (0, 0, 800, 900), (800, 0, 600, 900)
        self.show()
        self.desktop.set_monitors(left, right)
        wait_until(lambda: self.stage.places() == [left, right], lambda: f"both are covered: {self.stage.places()}")
        self.wait_for_colours({(2, 450): RED, (797, 450): RED, (802, 450): RED, (1397, 450): RED,
                               (180, 450): CARD, (880, 450): CARD})
        self.desktop.set_monitors((0, 0, *SCREEN))
        wait_until(lambda: self.stage.places() == [(0, 0, *SCREEN)], lambda: f"one is covered: {self.stage.places()}")

    def test_follows_a_compositor_that_leaves(self):
        self.desktop.start_compositor()
        self.wait_for_colours({BETWEEN: WHITE})
        self.show()
        wait_until(self.is_half_shaded, "the alert shades what is below")
        self.desktop.stop_compositor()
        self.wait_for_colours({BETWEEN: WHITE, (2, 450): RED, (480, 450): CARD})


class CoachBubble(DesktopTestCase):
    """What the coach says while another program is in front."""

    def setUp(self):
        super().setUp()
        self.app.launch()
        self.app.do("start")
        self.own = wait_until(self.app.windows, "the window is open")
        self.work = self.desktop.start_program(WORK)
        self.desktop.bring_to_front(self.work)

    def test_a_click_takes_it_away_and_nothing_else(self):
        self.app.do("pause")
        bubble, = wait_until(self.app.overlays, "the bubble is shown")
        self.assertEqual((self.desktop.active_window(), self.app.windows()), (self.work, self.own))
        self.desktop.run("xdotool", "mousemove", "--window", str(bubble), "30", "30", "click", "1")
        wait_until(lambda: not self.app.overlays(), "the bubble is gone", timeout=5)
        self.assertEqual(self.desktop.active_window(), self.work)

    def test_it_makes_room_for_the_window(self):
        self.app.do("stop")
        wait_until(self.app.overlays, "the bubble is shown")
        self.desktop.bring_to_front(self.own[0])
        wait_until(lambda: not self.app.overlays(), "the bubble is gone", timeout=5)


if __name__ == "__main__":
    unittest.main(verbosity=2)
