"""The program as a screen reader sees it: what is shown, what it is called, and pressing it."""
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Gio, GLib  # noqa: E402
import pyatspi  # noqa: E402

from neighbours.surroundings import comes  # noqa: E402

PATIENCE = 30000  # ms: a press is answered after the prompt that it causes
LISTS = ("combo box", "list", "table", "tree", "tree table")  # what they hold is theirs to tell
DOING = ("Press", "Toggle", "ShowMenu")


def ask_for_names():
    """What a screen reader does first: from now on programs tell of their screens."""
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    for name in ("IsEnabled", "ScreenReaderEnabled"):
        bus.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set",
                      GLib.Variant("(ssv)", ("org.a11y.Status", name, GLib.Variant("b", True))), None,
                      Gio.DBusCallFlags.NONE, PATIENCE)


class Reader:
    """To be made once in a process, with the session bus in its environment."""

    def __init__(self):
        pyatspi.setTimeout(PATIENCE, PATIENCE)
        self.application = comes(self._application)
        if not self.application:
            raise RuntimeError("no program tells of its screens")
        self.focused = None
        pyatspi.Registry.registerEventListener(self._told, "object:state-changed:focused")

    @staticmethod
    def _application():
        for application in pyatspi.Registry.getDesktop(0):
            if application and application.name == "ventoria":
                return application
        return None

    def _told(self, event):
        if event.detail1:
            self.focused = event.source

    @staticmethod
    def listen(seconds):
        """Takes in what the program tells."""
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            GLib.MainContext.default().iteration(False)
            time.sleep(0.01)

    def shown(self, root=None):
        for child in root or self.application:
            if child is None or not child.getState().contains(pyatspi.STATE_SHOWING):
                continue
            yield child
            if child.getRoleName() not in LISTS:
                yield from self.shown(child)

    def window(self):
        """The names and texts of the screen."""
        return {control.name for control in self.shown() if control.name}

    def waits_for(self, text, seconds=30):
        """Whether a text is shown by then."""
        return bool(comes(lambda: text in self.window(), seconds, pause=0.5))

    def control(self, name, role=None, seconds=30):
        """The open control of that name."""
        def find():
            for control in self.shown():
                named = control.name == name and (role is None or control.getRoleName() == role)
                if named and control.getState().contains(pyatspi.STATE_SENSITIVE) and doing(control):
                    return control
            return None
        found = comes(find, seconds)
        if not found:
            raise RuntimeError(f"no control '{name}' can be pressed")
        return found

    def press(self, name, role=None, seconds=30):
        action, which = doing(self.control(name, role, seconds))
        action.doAction(which)

    def middle(self, name):
        """Where on the screen a control is."""
        place = self.control(name).queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        return place.x + place.width // 2, place.y + place.height // 2

    def nameless(self):
        """What can be reached or pressed, and has no name that can be read out, or no role."""
        for control in self.shown():
            reachable = control.getState().contains(pyatspi.STATE_FOCUSABLE) or doing(control)
            role = control.getRoleName()
            named = any(sign.isalnum() for sign in control.name)
            if reachable and (not named or role in ("", "unknown", "invalid", "filler")):
                yield f"{role} '{control.name}' in {control.parent.getRoleName()}"

    def choose(self, around, *entries):
        """From the menu that has just been opened, by the arrow keys, as they are read out: the last entry is taken."""
        self.focused = None
        for depth, entry in enumerate(entries):
            for _ in range(40):
                self.listen(0.15)
                if self.focused is not None and self.focused.name == entry:
                    break
                around.run("xdotool", "key", "Down")
            else:
                raise RuntimeError(f"no entry '{entry}' is read out")
            around.run("xdotool", "key", "Return" if depth == len(entries) - 1 else "Right")
        self.listen(0.3)


def doing(control):
    """The action that does what a control is for, and its number; None where it has none."""
    try:
        action = control.queryAction()
    except NotImplementedError:
        return None
    for which in range(action.nActions):
        if action.getName(which) in DOING:
            return action, which
    return None
