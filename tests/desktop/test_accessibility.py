"""The window as a screen reader and a keyboard meet it."""

import sqlite3
import time
import unittest
import uuid

from support.application import DesktopTestCase
from support.processes import wait_until
from support.screen_reader import ScreenReader

PAGES = ("Ready to focus", "Daily agenda", "Projects", "Statistics", "Block lists", "Tracking health", "Preferences")
CONTROLS = {"push button", "check box", "radio button", "page tab", "list item", "text", "combo box", "slider", "list",
            "chart", "menu item"}
# What cannot be pressed before something is chosen or typed. The toolkit tells nobody.
NOT_YET = {"Add what is chosen", "Add", "Phase", "Create project", "Start working"}


class AccessibilityTest(DesktopTestCase):
    desktop_options = {"notifications": False, "login": False}

    def setUp(self):
        super().setUp()
        self.reader = ScreenReader(self.desktop)
        self.addCleanup(self.reader.close)
        self.app.write_preferences(app_language="en")
        self.app.launch("--hidden")
        self.app.do("add", "Write", "--date", "today")
        self.app.process.terminate()
        self.app.process.wait(15)
        with sqlite3.connect(self.app.store_file) as store:
            store.execute("INSERT INTO Session VALUES (?,?,?,?,?,?,?,?,?,?,?)",
                          (uuid.uuid4().bytes, int(time.time()) * 1000, 25, True, None, 7.5, 1, 0, 0, 0, 0))
        store.close()
        self.app.launch()
        wait_until(self.app.is_in_front, "the window is in front")
        wait_until(self.reader.application, "the program is on the accessibility bus")

    def wait_for(self, name, role=None):
        def is_shown():
            return [e for e in self.reader.elements() if e.name == name and role in (None, e.role)]

        return wait_until(is_shown, lambda: f"“{name}” among {self.reader.elements()}")

    def check_names(self, where, elements):
        for element in elements:
            if element.is_focusable:
                self.assertTrue(element.name.strip(), f"{where}: {element} has no name, in {element.parent}")
                self.assertIn(element.role, CONTROLS, f"{where}: {element}")
            if element.role == "label" and element.name:
                for above in element.ancestors():
                    if above.role in CONTROLS - {"list"}:
                        self.assertNotIn(element.name, above.name, f"{where}: {above} says {element} already")
        controls = [(e.role, e.name) for e in elements if e.is_focusable and e.role in ("push button", "text")]
        twice = {control for control in controls if controls.count(control) > 1}
        self.assertFalse(twice, f"{where}: one cannot be told from the other")

    def shown(self):
        """What can be gone through: the window that is in use, or the dialog in it while there is one."""
        elements = self.reader.elements()
        dialog = next((e for e in elements if e.role == "dialog"), None)
        if dialog is None:
            windows = [e for e in elements if e.parent is None]
            dialog = next((e for e in windows if e.is_in_use), windows[0])
        return [e for e in elements if dialog in e.ancestors()]

    def check_order(self, where, first=None):
        """Goes once through everything by Tab, and nowhere else. @param first what is read first; where none is
        named, what stands highest"""
        elements = self.shown()
        self.check_names(where, elements)
        by_path = {element.path: element for element in elements}
        visited = []
        while True:
            path = self.reader.press("Tab")
            self.assertIsNotNone(path, f"{where}: the keyboard is lost after {visited[-1:]}")
            if path not in by_path:  # made while it was scrolled to
                by_path.update((e.path, e) for e in self.shown())
            self.assertIn(path, by_path, f"{where}: nobody sees where the keyboard is after {visited[-1:]}")
            if any(element.path == path for element in visited):
                break
            visited.append(by_path[path])
            self.assertLess(len(visited), 60, f"{where}: it never comes round: {visited}")
        # A list may have been left at another of its rows than the one where it is entered again.
        self.assertEqual(by_path[path].stop(), visited[0].stop(), f"{where}: it comes round elsewhere: {visited}")

        reached = {element.path for element in visited}
        reached |= {above.path for element in visited for above in element.ancestors()}
        wanted = [e for e in elements if e.is_focusable and e.role in CONTROLS and e.name not in NOT_YET
                  and not any(above.is_focusable for above in e.ancestors())]
        missed = [element for element in wanted if element.path not in reached]
        self.assertFalse(missed, f"{where}: Tab does not reach them; it went to {visited}")

        start = min(range(len(visited)),
                    key=lambda at: (visited[at].name != first, visited[at].top, visited[at].left))
        visited = visited[start:] + visited[:start]
        jumps = [(a, b) for a, b in zip(visited, visited[1:]) if not a.comes_before(b)]
        self.assertFalse(jumps, f"{where}: against the order of reading")
        return visited

    def show_page(self, number):
        self.desktop.run("xdotool", "key", f"ctrl+{number}", check=True)
        self.wait_for(PAGES[number - 1], "heading")

    def test_everything_is_reached_and_named(self):
        self.go_through_pages()
        self.go_through_sheets()
        self.go_through_welcome()
        self.go_through_panel()
        self.listen_to_a_session()

    def go_through_pages(self):
        for number, page in enumerate(PAGES, 1):
            self.show_page(number)
            visited = self.check_order(page, first="Menu")
            self.assertEqual([e.role for e in visited[1:8]], ["page tab"] * 7)

    def go_through_sheets(self):
        for page, keys in ((1, "ctrl+t"), (1, "ctrl+m"), (2, "ctrl+n"), (3, "Return")):
            self.show_page(page)
            self.reader.press(keys)
            self.wait_for_dialog(f"{keys} opens a sheet")
            self.check_order(f"{PAGES[page - 1]}, {keys}")
            self.close_dialog()
        self.show_page(4)
        self.press_button("Sessions")
        self.wait_for_dialog("the figure is explained")
        self.check_order("figure")
        self.close_dialog()
        self.choose("Write")
        self.wait_for_dialog("the task is opened")
        self.check_order("task")
        self.close_dialog()

    def go_through_welcome(self):
        self.choose("Show the welcome")
        for step in range(1, 6):
            self.wait_for(f"Step {step} of 5")
            self.check_order(f"welcome, step {step}")
            if step < 5:
                self.press_button("Next")
        self.close_dialog()

    def go_through_panel(self):
        self.choose("Open the timer panel")
        wait_until(lambda: any(e.is_in_use and e.name == "Timer panel" for e in self.reader.elements()),
                   "the panel has the keyboard")
        self.check_order("panel")
        self.desktop.run("xdotool", "key", "Escape", check=True)
        wait_until(self.app.is_in_front, "the window is in front again")

    def wait_for_dialog(self, what):
        wait_until(lambda: any(e.role == "dialog" for e in self.reader.elements()), what)

    def close_dialog(self):
        self.desktop.run("xdotool", "key", "Escape", check=True)
        wait_until(lambda: all(e.role != "dialog" for e in self.reader.elements()), "the sheet closes")

    def press_button(self, name):
        """Goes to the button whose name begins so, and presses it."""
        for _ in range(60):
            path = self.reader.press("Tab")
            if any(e.path == path and e.name.startswith(name) for e in self.shown()):
                self.desktop.run("xdotool", "key", "Return", check=True)
                return
        self.fail(f"“{name}” is not reached")

    def choose(self, title):
        """Does what the command palette offers by that name."""
        self.reader.press("ctrl+k")
        self.wait_for_dialog("the palette opens")
        self.check_names("palette", self.shown())
        self.desktop.run("xdotool", "type", title, check=True)
        heard = wait_until(lambda: [e for e in self.shown() if e.is_focusable and e.description.startswith(title)],
                           "what is chosen is heard where the keyboard is")
        self.assertEqual(heard[0].role, "text")
        self.desktop.run("xdotool", "key", "Return", check=True)
        wait_until(lambda: not any(e.path == heard[0].path for e in self.reader.elements()), "the palette closes")

    def listen_to_a_session(self):
        """The time is told by the minute, and quitting is asked about."""
        self.show_page(1)
        self.app.do("start", "--task", "Write")
        self.wait_for("Work phase", "heading")
        ring = next(e for e in self.reader.elements() if e.role == "progress bar")
        self.assertEqual(ring.name, "left, 25\u202fmin")
        self.check_order("session", first="Menu")
        remaining = self.app.status()["timeRemaining"]
        self.app.wait_for(lambda s: s["timeRemaining"] < remaining - 1, "seconds pass")
        renamed = wait_until(self.reader.renamed, "names change")
        self.assertNotIn(ring.path, renamed)
        self.read_floating_timer()
        self.desktop.run("xdotool", "key", "ctrl+q", check=True)
        wait_until(lambda: any(e.role == "dialog" for e in self.reader.elements()), "quitting is asked about")
        self.check_order("question")

    def read_floating_timer(self):
        """The small window takes no keyboard; what it shows is told all the same."""
        window = self.desktop.active_window()
        self.desktop.start_program("org.example.Note")
        wait_until(self.app.floating_timer, "the floating timer is shown")
        pane = self.wait_for("Floating timer", "panel")[0]
        inside = wait_until(lambda: [e for e in self.reader.elements() if pane.path in [a.path for a in e.ancestors()]],
                            "there is something in it")
        self.check_names("floating timer", inside)
        self.assertEqual({e.name for e in inside if e.role == "push button"}, {"Pause", "Switch the floating timer off"})
        self.assertIn("25\u202fmin", [e.name for e in inside])
        self.desktop.bring_to_front(window)


if __name__ == "__main__":
    unittest.main(verbosity=2)
