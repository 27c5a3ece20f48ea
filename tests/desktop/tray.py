"""The two kinds of panels that show status icons, as small as a test needs them: one that lists items from the session
bus, and one that embeds windows. Both can go and come back while the program runs."""
import select
import os
import threading

import accessible
from gi.repository import Gio, GLib
from screen import wait_until
from Xlib import X, Xatom, display
from Xlib.protocol import event

WATCHER = "org.kde.StatusNotifierWatcher"
WATCHER_PATH = "/StatusNotifierWatcher"
ITEM, MENU = "org.kde.StatusNotifierItem", "com.canonical.dbusmenu"
PROPERTIES = "org.freedesktop.DBus.Properties"
INTERFACE = f"""<node><interface name="{WATCHER}">
  <method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
  <method name="RegisterStatusNotifierHost"><arg type="s" direction="in"/></method>
  <property name="RegisteredStatusNotifierItems" type="as" access="read"/>
  <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
  <property name="ProtocolVersion" type="i" access="read"/>
  <signal name="StatusNotifierItemRegistered"><arg type="s"/></signal>
  <signal name="StatusNotifierItemUnregistered"><arg type="s"/></signal>
  <signal name="StatusNotifierHostRegistered"/>
  <signal name="StatusNotifierHostUnregistered"/>
</interface></node>"""


class NotifierHost:
    """A watcher and, if wanted, a host: what a panel with status items has on the session bus."""

    def __init__(self, session, has_host=True):
        self._session = session
        self._bus = session.session_bus
        self.has_host = has_host
        self.registered = []  # names, in the order of their registration
        self._loop = None

    def start(self):
        ready = threading.Event()
        self._thread = threading.Thread(target=self._run, args=(ready,), daemon=True)
        self._thread.start()
        ready.wait(5)
        wait_until(lambda: accessible.pid_of(self._bus, WATCHER), 5, "watcher of status items")
        return self

    def stop(self):
        self._loop.quit()
        self._thread.join(5)
        wait_until(lambda: accessible.pid_of(self._bus, WATCHER) is None, 5, "end of the watcher")

    def restart(self):
        self.stop()
        return self.start()

    def set_host(self, has_host):
        """A host that comes or goes while the watcher stays."""
        self.has_host = has_host
        self._emit("StatusNotifierHostRegistered" if has_host else "StatusNotifierHostUnregistered")

    def _run(self, ready):
        context = GLib.MainContext()
        context.push_thread_default()
        self.registered = []
        self._loop = GLib.MainLoop.new(context, False)
        self._connection = accessible.connect(self._session.environment["DBUS_SESSION_BUS_ADDRESS"])
        interface = Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0]
        self._connection.register_object(WATCHER_PATH, interface, self._called, self._asked, None)
        self._connection.signal_subscribe("org.freedesktop.DBus", "org.freedesktop.DBus", "NameOwnerChanged", None,
                                          None, Gio.DBusSignalFlags.NONE, self._owner_changed)
        accessible.call(self._connection, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                        "RequestName", GLib.Variant("(su)", (WATCHER, 4)))
        ready.set()
        self._loop.run()
        self._connection.close_sync(None)
        context.pop_thread_default()

    def _emit(self, signal, *texts):
        arguments = GLib.Variant("(" + "s" * len(texts) + ")", texts) if texts else None
        self._connection.emit_signal(None, WATCHER_PATH, WATCHER, signal, arguments)

    def _called(self, _connection, sender, _path, _interface, method, arguments, invocation):
        if method == "RegisterStatusNotifierItem":
            name = arguments.unpack()[0]
            if name not in self.registered:
                self.registered.append(name)
            self._emit("StatusNotifierItemRegistered", name)
        invocation.return_value(None)

    def _asked(self, _connection, _sender, _path, _interface, name):
        return {"RegisteredStatusNotifierItems": GLib.Variant("as", self.registered),
                "IsStatusNotifierHostRegistered": GLib.Variant("b", self.has_host),
                "ProtocolVersion": GLib.Variant("i", 0)}[name]

    def _owner_changed(self, _connection, _sender, _path, _interface, _signal, arguments):
        name, _before, after = arguments.unpack()
        if not after and name in self.registered:
            self.registered.remove(name)
            self._emit("StatusNotifierItemUnregistered", name)

    # What the panel shows.
    def items_of(self, pid):
        return [NotifierItem(self._bus, name) for name in list(self.registered)
                if accessible.pid_of(self._bus, name) == pid]

    def wait_for_item(self, pid, seconds=2):
        return wait_until(lambda: self.items_of(pid), seconds, f"status item of process {pid}")[0]


class NotifierItem:
    def __init__(self, bus, service, path="/StatusNotifierItem"):
        self._bus, self.service, self._path = bus, service, path

    def _call(self, path, interface, method, arguments=None):
        answer = accessible.call(self._bus, self.service, path, interface, method, arguments)
        if answer is None:
            raise AssertionError(f"{self.service} does not answer {method}")
        return answer

    def property(self, name):
        return self._call(self._path, PROPERTIES, "Get", GLib.Variant("(ss)", (ITEM, name)))[0]

    def press(self):
        """A panel that leaves the press to the program."""
        self._call(self._path, ITEM, "Activate", GLib.Variant("(ii)", (0, 0)))

    def entries(self):
        """One dictionary per entry, with its "id"."""
        arguments = GLib.Variant("(iias)", (0, -1, []))
        _revision, (_id, _properties, children) = self._call(self.property("Menu"), MENU, "GetLayout", arguments)
        return [{"id": number, **properties} for number, properties, _children in children]

    def click(self, label):
        number = next(entry["id"] for entry in self.entries() if entry.get("label") == label)
        arguments = GLib.Variant("(isvu)", (number, "clicked", GLib.Variant("s", ""), 0))
        self._call(self.property("Menu"), MENU, "Event", arguments)


class XEmbedTray:
    """A notification area of X11 in the lower right corner: a window that takes other programs' windows in."""

    SIZE = 32  # pixels, of an icon

    def __init__(self, session, background=0x202020, colors=None):
        """`colors`: what the panel tells of its own colours, each as red, green, blue of 8 bits, its foreground first."""
        self._session = session
        self._background = background
        self._colors = colors
        self._display = None

    def start(self):
        self._display = display.Display(self._session.environment["DISPLAY"])
        screen = self._display.screen()
        self._root = screen.root
        self._atoms = {name: self._display.intern_atom(name) for name in (
            "_NET_SYSTEM_TRAY_S0", "_NET_SYSTEM_TRAY_OPCODE", "_NET_SYSTEM_TRAY_COLORS", "MANAGER", "_XEMBED")}
        width = 4 * self.SIZE
        self._window = self._root.create_window(
            screen.width_in_pixels - width, screen.height_in_pixels - self.SIZE, width, self.SIZE, 0,
            X.CopyFromParent, override_redirect=True, background_pixel=self._background,
            event_mask=X.SubstructureNotifyMask)
        if self._colors:
            self._window.change_property(self._atoms["_NET_SYSTEM_TRAY_COLORS"], Xatom.CARDINAL, 32,
                                         [part * 257 for part in self._colors])
        self._window.map()
        self._icons = []
        selection = self._atoms["_NET_SYSTEM_TRAY_S0"]
        self._window.set_selection_owner(selection, X.CurrentTime)
        self._root.send_event(event.ClientMessage(window=self._root, client_type=self._atoms["MANAGER"],
                                                  data=(32, [X.CurrentTime, selection, self._window.id, 0, 0])),
                              event_mask=X.StructureNotifyMask)
        self._display.sync()
        self._wake, self._end = os.pipe()
        self._thread = threading.Thread(target=self._run, daemon=True)
        self._thread.start()
        return self

    def stop(self):
        os.close(self._end)
        self._thread.join(5)
        os.close(self._wake)
        self._display.close()

    def restart(self):
        self.stop()
        return self.start()

    def _run(self):
        while True:
            while self._display.pending_events():
                self._handle(self._display.next_event())
            if self._wake in select.select([self._display, self._wake], [], [])[0]:
                return

    def _handle(self, heard):
        if heard.type == X.ClientMessage and heard.client_type == self._atoms["_NET_SYSTEM_TRAY_OPCODE"]:
            _time, opcode, window = heard.data[1][:3]
            if opcode == 0:
                self._embed(self._display.create_resource_object("window", window))
        elif heard.type in (X.DestroyNotify, X.ReparentNotify):
            if heard.type == X.DestroyNotify or heard.parent.id != self._window.id:
                self._icons = [icon for icon in self._icons if icon.id != heard.window.id]

    def _embed(self, icon):
        icon.change_save_set(X.SetModeInsert)
        icon.reparent(self._window, len(self._icons) * self.SIZE, 0)
        icon.configure(width=self.SIZE, height=self.SIZE)
        icon.map()
        icon.send_event(event.ClientMessage(window=icon, client_type=self._atoms["_XEMBED"],
                                            data=(32, [X.CurrentTime, 0, 0, self._window.id, 0])))
        self._icons.append(icon)
        self._display.flush()

    # What the panel shows.
    def icon_areas(self, pid):
        """(x, y, width, height) on the screen of that process's icons."""
        screen = self._session.screen
        windows = [screen.display.create_resource_object("window", icon.id) for icon in list(self._icons)]
        areas = [screen.geometry_of(window) for window in windows if screen.pid_of(window) == pid]
        return [area for area in areas if area and self._is_laid_out(*area)]

    def _is_laid_out(self, x, y, width, height):
        """On the screen and more than the pixel that a window begins with."""
        screen = self._session.screen
        return width > 1 < height and 0 <= x <= screen.width - width and 0 <= y <= screen.height - height

    def wait_for_icon(self, pid, seconds=2):
        return wait_until(lambda: self.icon_areas(pid), seconds, f"status icon of process {pid}")[0]

    def click(self, area):
        x, y, width, height = area
        self._session.screen.click(x + width // 2, y + height // 2)
