"""Services of the desktops' sessions, real ones and ones that answer nonsense."""
import threading

import accessible
from gi.repository import Gio, GLib
from screen import wait_until

KGLOBALACCEL, KDE_OBJECT, KDE_INTERFACE = "org.kde.kglobalaccel", "/kglobalaccel", "org.kde.KGlobalAccel"
KDE_COMPONENT = "org.kde.kglobalaccel.Component"
SET_PRESENT, NO_AUTOLOADING = 2, 4  # flags of setShortcut


def set_global_shortcuts(bus, component, shortcuts):
    """Registers a component's actions as a program of KDE does, each with its Qt keys."""
    for action, keys in shortcuts.items():
        name = [component, action, component, action]
        for method, arguments in (("doRegister", GLib.Variant("(as)", (name,))),
                                  ("setShortcut", GLib.Variant("(asaiu)", (name, keys, SET_PRESENT | NO_AUTOLOADING)))):
            if accessible.call(bus, KGLOBALACCEL, KDE_OBJECT, KDE_INTERFACE, method, arguments) is None:
                raise AssertionError(f"no answer to {method} of {name}")


class NonsenseService:
    """Has a name on the session bus and answers methods with whatever it is told: {(path, interface, method with the
    types that it takes): answer}. An answer of None never comes. `calls` holds each method and what it was given."""

    def __init__(self, session, name, answers):
        self._session, self._name, self._answers = session, name, answers
        self._late = []
        self.calls = []
        ready = threading.Event()
        self._thread = threading.Thread(target=self._run, args=(ready,), daemon=True)
        self._thread.start()
        ready.wait(5)
        wait_until(lambda: accessible.pid_of(session.session_bus, name), 5, f"service {name}")

    def stop(self):
        self._loop.quit()
        self._thread.join(5)
        wait_until(lambda: accessible.pid_of(self._session.session_bus, self._name) is None, 5, f"end of {self._name}")

    def _run(self, ready):
        context = GLib.MainContext()
        context.push_thread_default()
        self._loop = GLib.MainLoop.new(context, False)
        connection = accessible.connect(self._session.environment["DBUS_SESSION_BUS_ADDRESS"])
        for (path, interface, method), answer in self._answers.items():
            name, takes = method.split(" ") if " " in method else (method, "")
            gives = [answer.get_child_value(i).get_type_string() for i in range(answer.n_children())] if answer else []
            words = [f'<arg type="{each}" direction="in"/>' for each in takes]
            words += [f'<arg type="{each}" direction="out"/>' for each in gives]
            method_of = f'<method name="{name}">{"".join(words)}</method>'
            node = Gio.DBusNodeInfo.new_for_xml(f'<node><interface name="{interface}">{method_of}</interface></node>')
            connection.register_object(path, node.interfaces[0],
                                       lambda *called, answer=answer: self._answer(*called[-3:], answer), None, None)
        accessible.call(connection, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                        "RequestName", GLib.Variant("(su)", (self._name, 4)))
        ready.set()
        self._loop.run()
        connection.close_sync(None)
        context.pop_thread_default()

    def _answer(self, method, given, invocation, answer):
        self.calls.append((method, *given.unpack()))
        if answer is None:
            self._late.append(invocation)
        else:
            invocation.return_value(answer)
