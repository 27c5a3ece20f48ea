"""What an application offers on the accessibility bus, as far as the tests must know it: is its menu bar there, what
does its text hold."""
import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

REGISTRY = "org.a11y.atspi.Registry"
ROOT = "/org/a11y/atspi/accessible/root"
ACCESSIBLE = "org.a11y.atspi.Accessible"
MENU_BAR, TEXT, CHECK_BOX, COMBO_BOX, SLIDER = 34, 61, 7, 11, 51  # AtspiRole
ACTIVE, CHECKED, FOCUSED, SENSITIVE, SHOWING = 1, 4, 12, 24, 25  # AtspiStateType
BUTTON = 43  # AtspiRole


def connect(address):
    flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
    connection = Gio.DBusConnection.new_for_address_sync(address, flags, None, None)
    connection.set_exit_on_close(False)
    return connection


def call(connection, name, path, interface, method, arguments=None, milliseconds=2000):
    """The answer's values; None when there is no answer."""
    try:
        answer = connection.call_sync(name, path, interface, method, arguments, None, Gio.DBusCallFlags.NONE,
                                      milliseconds, None)
    except GLib.Error:
        return None
    return answer.unpack()


def switch_on(session_bus, on=True):
    call(session_bus, "org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set",
         GLib.Variant("(ssv)", ("org.a11y.Status", "IsEnabled", GLib.Variant("b", on))))


def is_on(session_bus):
    answer = call(session_bus, "org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Get",
                  GLib.Variant("(ss)", ("org.a11y.Status", "IsEnabled")))
    return bool(answer and answer[0])


def bus_address(session_bus):
    answer = call(session_bus, "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress")
    return answer[0] if answer else None


def pid_of(connection, name):
    """The process that owns a name on the bus; None when nobody does."""
    answer = call(connection, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                  "GetConnectionUnixProcessID", GLib.Variant("(s)", (name,)))
    return answer[0] if answer else None


def start_service(connection, name):
    call(connection, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "StartServiceByName",
         GLib.Variant("(su)", (name, 0)))


class AccessibleApplication:
    """One process on the accessibility bus."""

    def __init__(self, bus, pid):
        self.bus = bus
        self.pid = pid

    def _root(self):
        found = call(self.bus, REGISTRY, ROOT, ACCESSIBLE, "GetChildren")
        for name, path in (found or ([],))[0]:
            if pid_of(self.bus, name) == self.pid:
                return name, path
        return None

    def _children(self, element):
        found = call(self.bus, *element, ACCESSIBLE, "GetChildren")
        return [tuple(child) for child in found[0]] if found else []

    def _role(self, element):
        found = call(self.bus, *element, ACCESSIBLE, "GetRole")
        return found[0] if found else None

    def _is_active(self, element):
        found = call(self.bus, *element, ACCESSIBLE, "GetState")
        return bool(found and found[0][0] >> ACTIVE & 1)

    def _find(self, role, depth):
        root = self._root()
        level = [window for window in self._children(root) if self._is_active(window)] if root else []
        for _ in range(depth):
            for element in level:
                if self._role(element) == role:
                    return element
            level = [child for element in level for child in self._children(element)]
        return None

    def name_of(self, element):
        found = call(self.bus, *element, "org.freedesktop.DBus.Properties", "Get",
                     GLib.Variant("(ss)", (ACCESSIBLE, "Name")))
        return found[0] if found else ""

    def has_state(self, element, state):
        found = call(self.bus, *element, ACCESSIBLE, "GetState")
        return bool(found and found[0][state // 32] >> state % 32 & 1)

    def elements(self, depth=14):
        """Everything in its active windows, as (role, name, element), outer elements first."""
        root = self._root()
        level = [window for window in self._children(root) if self._is_active(window)] if root else []
        for _ in range(depth):
            yield from ((self._role(element), self.name_of(element), element) for element in level)
            level = [child for element in level for child in self._children(element)]

    def element(self, name):
        """What is shown under that name; None when nothing is."""
        return next((element for _, named, element in self.elements()
                     if named == name and self.has_state(element, SHOWING)), None)

    def area_of(self, element):
        """(x, y, width, height) on the screen, also of what is scrolled away."""
        return call(self.bus, *element, "org.a11y.atspi.Component", "GetExtents", GLib.Variant("(u)", (0,)))[0]

    def press(self, element):
        """As a screen reader presses it."""
        call(self.bus, *element, "org.a11y.atspi.Action", "DoAction", GLib.Variant("(i)", (0,)))

    def focused(self):
        """The name of what has the keyboard; None when nothing has. A list's item keeps its own mark: the innermost
        element counts."""
        found = [name for _, name, element in self.elements() if self.has_state(element, FOCUSED)]
        return found[-1] if found else None

    def has_menu_bar(self):
        """Whether its active window holds a menu bar with at least three menus."""
        found = self._find(MENU_BAR, 6)
        return found is not None and len(self._children(found)) >= 3

    def text(self):
        """The text of the first text field of its active window; None when there is none."""
        found = self._find(TEXT, 14)
        answer = found and call(self.bus, *found, "org.a11y.atspi.Text", "GetText", GLib.Variant("(ii)", (0, -1)))
        return answer[0] if answer else None

    def has_selection(self):
        """Whether something is selected in that field."""
        found = self._find(TEXT, 14)
        answer = found and call(self.bus, *found, "org.a11y.atspi.Text", "GetNSelections")
        return bool(answer and answer[0])
