"""The item in the tray of a real panel, what it opens, and the floating timer."""

import os
import subprocess
import unittest

from support.application import DesktopTestCase
from support.processes import wait_until

BAR = """[General]
panels=panel1

[panel1]
plugins=statusnotifier
position=Bottom
panelSize=32
iconSize=22

[statusnotifier]
type=statusnotifier
"""


class Tray(DesktopTestCase):
    def start_bar(self):
        directory = os.path.join(self.desktop.environment["XDG_CONFIG_HOME"], "lxqt")
        os.makedirs(directory, exist_ok=True)
        with open(os.path.join(directory, "panel.conf"), "w", encoding="utf-8") as file:
            file.write(BAR)
        return self.desktop.processes.start("bar", ["lxqt-panel"],
                                            self.desktop.environment | {"XDG_DATA_DIRS": "/usr/share"})

    def item(self):
        """Where the item is: the middle of what has its colour at the bottom of the screen; none where it is not."""
        picture = subprocess.run(["xwd", "-root", "-silent"], env=self.desktop.environment, capture_output=True,
                                 timeout=30, check=True).stdout
        header = [int.from_bytes(picture[i:i + 4], "big") for i in range(0, 100, 4)]
        pixels, line, size = header[0] + header[19] * 12, header[12], header[11] // 8
        found = []
        for y in range(866, 900):
            for x in range(0, 1400):
                blue, green, red = picture[pixels + y * line + x * size:][:3]
                if abs(red - 0x8b) + abs(green - 0x5c) + abs(blue - 0xf6) < 60:
                    found.append((x, y))
        if len(found) < 10:
            return None
        return sum(x for x, _ in found) // len(found), sum(y for _, y in found) // len(found)

    def click(self, place, button=1):
        self.desktop.run("xdotool", "mousemove", str(place[0]), str(place[1]), "click", str(button), check=True)

    def geometry(self, window):
        lines = self.desktop.run("xdotool", "getwindowgeometry", "--shell", str(window), check=True).split()
        values = dict(line.split("=") for line in lines)
        return tuple(int(values[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))

    def panels(self):
        return [window for window in self.app.windows() if self.geometry(window)[2] == 360]

    def tray_row(self):
        lines = self.app.command("doctor")[1].splitlines()
        return next(line.split()[0] for line in lines if "tray" in line and not line.startswith(" "))

    def drag(self, window, right, down):
        x, y, _, height = self.geometry(window)
        self.desktop.run("xdotool", "mousemove", str(x + 6), str(y + height // 2), "mousedown", "1",
                         "mousemove_relative", "--", str(right // 2), str(down // 2),
                         "mousemove_relative", "--", str(right - right // 2), str(down - down // 2),
                         "mouseup", "1", check=True)

    def test_the_item_opens_the_panel_and_its_menu(self):
        self.app.launch("--hidden")
        wait_until(lambda: self.tray_row() == "absent", "there is no tray yet")
        bar = self.start_bar()
        item = wait_until(self.item, "a tray that comes later shows the item")
        wait_until(lambda: self.tray_row() == "ok", "the doctor sees the tray")

        self.click(item)
        panel, = wait_until(self.panels, "the click opens the panel")
        wait_until(lambda: self.desktop.active_window() == panel, "the panel has the keyboard")
        x, y, width, height = self.geometry(panel)
        self.assertTrue(x >= 0 and x + width <= 1400 and x - 16 <= item[0] <= x + width + 16, (x, width, item))
        self.assertTrue(item[1] - 60 <= y + height < item[1], (y, height, item))
        self.assertGreater(height, 600)  # the window manager lets it grow with what is in it
        self.click(item)
        wait_until(lambda: not self.panels(), "another click closes it")
        self.click(item)
        wait_until(lambda: self.desktop.active_window() in self.panels(), "and the next opens it")
        self.desktop.run("xdotool", "key", "Return", check=True)
        self.app.wait_for(lambda s: s["state"] == "running", "Return starts a phase")
        self.desktop.run("xdotool", "key", "Escape", check=True)
        wait_until(lambda: not self.panels(), "Escape closes it")

        self.desktop.processes.stop(bar)
        wait_until(lambda: self.tray_row() == "absent", "the tray is gone")
        self.start_bar()
        item = wait_until(self.item, "the item is in the next tray")
        self.click(item, 3)
        wait_until(lambda: self.desktop.visible_windows("--class", "^lxqt-panel$")[1:], "the menu is open")
        self.desktop.run("xdotool", "key", "Down", "Return", check=True)
        self.app.wait_for(lambda s: s["state"] == "paused", "the menu pauses the phase")

    def test_the_floating_timer_is_dragged_and_comes_back_to_its_place(self):
        note = self.desktop.start_program("org.example.Note")
        self.app.launch("--hidden")
        self.app.do("start")
        timer = wait_until(self.app.floating_timer, "the floating timer is shown")
        self.assertEqual(self.desktop.active_window(), note)
        x, y, width, height = self.geometry(timer)
        self.drag(timer, -300, -200)
        wait_until(lambda: self.geometry(timer)[:2] == (x - 300, y - 200), lambda: self.geometry(timer))
        self.desktop.run("xdotool", "mousemove", str(x - 300 + width - 60), str(y - 200 + height // 2),
                         "click", "1", check=True)
        self.app.wait_for(lambda s: s["state"] == "paused", "its button pauses")
        self.assertEqual(self.desktop.active_window(), note)

        self.app.do("stop")
        wait_until(lambda: not self.app.floating_timer(), "it goes with the session")
        self.app.kill()
        self.app.launch("--hidden")
        self.app.do("start")
        timer = wait_until(self.app.floating_timer, "the floating timer is shown again")
        self.assertEqual(self.geometry(timer), (x - 300, y - 200, width, height))
        self.assertEqual(self.app.command()[0], 0)
        wait_until(self.app.is_in_front, "the window is in front")
        wait_until(lambda: not self.app.floating_timer(), "the window takes its place")


if __name__ == "__main__":
    unittest.main(verbosity=2)
