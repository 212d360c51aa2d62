"""What somebody who listens to a window gets of it, over the accessibility bus."""

import os

from support.browsers import Accessibility
from support.processes import wait_until

# What is only read, and never asked to have the keyboard.
TEXTS = {"label", "heading", "scroll bar", "frame", "panel", "alert", "dialog", "progress bar", "page tab list"}


class Element:
    """What one accessible was when it was looked at."""

    def __init__(self, accessible, atspi, parent=None):
        states = accessible.get_state_set()
        self.path = accessible.path
        self.parent = parent
        self.name = accessible.get_name() or ""
        self.description = accessible.get_description() or ""
        self.role = accessible.get_role_name()
        self.is_in_use = states.contains(atspi.StateType.ACTIVE)
        self.is_focusable = states.contains(atspi.StateType.FOCUSABLE) and self.role not in TEXTS
        place = accessible.get_extents(atspi.CoordType.SCREEN)
        self.left, self.top, self.right, self.bottom = place.x, place.y, place.x + place.width, place.y + place.height

    def ancestors(self):
        element = self.parent
        while element is not None:
            yield element
            element = element.parent

    def stop(self):
        """The path of the whole that Tab goes to: the list of a row."""
        return ([self] + [above for above in self.ancestors() if above.is_focusable])[-1].path

    def comes_before(self, other):
        """Whether it is read before the other: in a line above, or in the same line or another column to the left."""
        if self.right <= other.left:
            return True
        if other.right <= self.left:
            return self.bottom <= other.top
        return self.top <= other.top

    def __repr__(self):
        return f"{self.role} “{self.name}” ({self.left},{self.top})"


class ScreenReader:
    """Follows the keyboard through the windows of one program. One for each process: the library that it listens
    with keeps to the first bus that it finds."""

    def __init__(self, desktop):
        self._desktop = desktop
        self._services = Accessibility(desktop).start()
        os.environ.update({name: desktop.environment[name] for name in ("DISPLAY", "DBUS_SESSION_BUS_ADDRESS")})
        import gi
        gi.require_version("Atspi", "2.0")
        from gi.repository import Atspi, GLib
        self._atspi = Atspi
        self._loop = GLib.MainContext.default()
        self._heard = []
        Atspi.init()
        self._listener = Atspi.EventListener.new(self._heard.append)
        for event in ("object:state-changed:focused", "object:property-change:accessible-name"):
            self._listener.register(event)

    def close(self):
        self._services.stop()

    def application(self, name="norvin-focus"):
        root = self._atspi.get_desktop(0)
        for index in range(root.get_child_count()):
            child = root.get_child_at_index(index)
            if child is not None and child.get_name() == name:
                child.set_cache_mask(self._atspi.Cache.NONE)
                return child
        return None

    def elements(self):
        """All that can be seen or scrolled to, each after its parent."""
        found = []
        self._collect(self.application(), None, found)
        return found

    def _collect(self, accessible, parent, found):
        for index in range(accessible.get_child_count()):
            child = accessible.get_child_at_index(index)
            if child is None or not child.get_state_set().contains(self._atspi.StateType.VISIBLE):
                continue
            found.append(Element(child, self._atspi, parent))
            self._collect(child, found[-1], found)

    def _events(self, kind):
        while self._loop.iteration(False):
            pass
        return [event for event in self._heard if event.type == kind]

    def press(self, keys):
        """Presses keys and returns the path of what the keyboard comes to; None where nobody says within a while."""
        self._events("")
        self._heard.clear()
        self._desktop.run("xdotool", "key", keys, check=True)
        try:
            return wait_until(self._focused, "the keyboard arrives", 3)
        except AssertionError:
            return None

    def _focused(self):
        arrived = [event.source for event in self._events("object:state-changed:focused") if event.detail1]
        return arrived[-1].path if arrived else None

    def renamed(self):
        """The paths of those whose names have changed since the last key was pressed."""
        return [event.source.path for event in self._events("object:property-change:accessible-name")]
