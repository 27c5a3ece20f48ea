"""What the user types elsewhere is nobody's business, and what this program holds is its own."""
import os
import pathlib
import re
import signal
import stat

import accessible
from case import PROGRAM, DesktopTest
from gi.repository import Gio
from program import Program
from protocol import KeyEvents
from screen import wait_until
from session import PATIENCE
from tray import NotifierHost

CANARY = "zqxjkvwpfy"
# As any user: nobody but the superuser has more rights over processes than their owner.
AS_USER = "setpriv --bounding-set=-all --inh-caps=-all " if os.geteuid() == 0 else ""
LARGEST_PIECE = 1 << 28  # bytes
ORLAMO = "app.orlamo.Orlamo"
BUS = "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus"


def present(look):
    """What `look` finds; nothing when that is gone by now."""
    try:
        return look()
    except FileNotFoundError:
        return b""


def listening(pid):
    """The inodes of all sockets in that process's network that wait for somebody."""
    network = pathlib.Path(f"/proc/{pid}/net")
    accepts, listens = "00010000", "0A"
    unix = (line.split() for line in (network / "unix").read_text().splitlines()[1:])
    found = {words[6] for words in unix if words[3] == accepts}
    for file in ("tcp", "tcp6"):
        lines = (network / file).read_text().splitlines()[1:] if (network / file).exists() else []
        found |= {words[9] for words in map(str.split, lines) if words[3] == listens}
    return found


def memory_holds(pid, words):
    """Which of these are in what a core file would hold."""
    held = set()
    with open(f"/proc/{pid}/maps") as maps, open(f"/proc/{pid}/mem", "rb", 0) as memory:
        for line in maps:
            first, last = (int(address, 16) for address in line.split()[0].split("-"))
            if last - first > LARGEST_PIECE:
                continue  # what a sanitizer only reserves
            try:
                memory.seek(first)
                piece = memory.read(last - first)
            except (OSError, ValueError, OverflowError):
                continue  # nothing there, or the kernel's
            held |= {word for word in words if word in piece}
    return held


class Privacy(DesktopTest):
    def recorded(self):
        events = KeyEvents(self.session.environment["DISPLAY"], self.program.pid)
        self.addCleanup(events.close)
        return events

    def type_canary(self, editor):
        def typed():
            return (editor.text() or "").count(CANARY)

        before = typed()
        wait_until(editor.is_in_front, PATIENCE, "editor in front")
        self.screen.type(CANARY)
        wait_until(lambda: typed() > before, PATIENCE, "typed text")

    def test_no_key_typed_elsewhere_reaches_the_program_its_files_or_its_memory(self):
        self.start_program()
        editor = self.session.open_editor("mousepad", "")
        events = self.recorded()
        self.type_canary(editor)
        self.assertEqual([], events.names)
        for end in (lambda: self.screen.tap(self.screen.ESCAPE), self.screen.double_press):
            self.wait_out_the_double_press()
            self.program.open_panel()
            self.wait_out_the_double_press()
            end()
            self.program.wait_until_closed()
            self.type_canary(editor)
        # Keys were told since the panel had the focus first, so the record sees them; the next one, where they end.
        self.assertIn("raw KeyPress", events.names)
        events = self.recorded()
        self.session.start([PROGRAM]).wait(PATIENCE)
        self.program.wait_for_preferences()
        self.program.write_settings({**self.program.settings(), "isBlurStyle": False})
        self.screen.activate_window(self.screen.windows_of(editor.pid)[-1])
        self.type_canary(editor)
        self.program.close_preferences()
        self.type_canary(editor)
        self.assertEqual([], events.names)
        self.program.assert_alive()
        holders = [path for path in self.session.folder.rglob("*") if path != editor.file
                   and CANARY.encode() in (present(path.read_bytes) if path.is_file() else b"")]
        self.assertEqual([], holders)
        if os.geteuid() == 0:
            canaries = {CANARY.encode(encoding) for encoding in ("utf-8", "utf-16-le")}
            self.assertEqual({b"isBlurStyle"}, memory_holds(self.program.pid, {b"isBlurStyle", *canaries}))

    def told_keys(self):
        """Looks up which keys the program told assistive technologies of, in their order."""
        record = self.session.folder / "told.txt"
        address = accessible.bus_address(self.session.session_bus)
        with record.open("wb") as output:
            self.session.start(["dbus-monitor", "--address", address, "member=NotifyListenersSync"], output)
        wait_until(lambda: record.stat().st_size, PATIENCE, "record of the accessibility bus")
        told = re.compile(r'sender=(\S+) .*member=NotifyListenersSync\n(?: .*\n)*? *string "(.*)"')
        return lambda: [key for sender, key in told.findall(record.read_text())
                        if accessible.pid_of(self.session.accessibility_bus, sender) == self.program.pid]

    def test_keys_typed_into_the_panel_are_told_to_nobody(self):
        self.session.open_editor("mousepad", "")
        self.start_program()
        told = self.told_keys()
        self.program.open_panel()
        self.screen.type(CANARY)
        self.screen.tap(self.screen.ESCAPE)
        self.program.wait_until_closed()
        # Its other windows tell of theirs, as every window of a desktop does.
        self.session.start([PROGRAM]).wait(PATIENCE)
        self.program.wait_for_preferences()
        wait_until(lambda: self.screen.keyboard_pid() == self.program.pid, PATIENCE, "preferences with the keyboard")
        self.screen.tap("Tab")
        wait_until(told, PATIENCE, "key that is told")
        self.assertEqual({"Tab"}, set(told()))

    def can_read(self, pid, file):
        """Whether another program of the same user can open that file of /proc."""
        return self.session.start(["sh", "-c", f"exec {AS_USER} sh -c 'exec 3< /proc/{pid}/{file}'"]).wait(PATIENCE) == 0

    def start_as_user(self, environment):
        program = self.session.folder / "orlamo"
        program.write_text(f"#!/bin/sh\nulimit -S -c $(ulimit -H -c)\nexec {AS_USER}{PROGRAM}\n")
        program.chmod(0o700)
        self.program = Program(self.session, str(program), environment=environment)
        return self.program

    def test_no_other_program_reads_its_memory_and_no_core_file_is_left(self):
        for environment, is_readable in ({"ORLAMO_DEBUGGABLE": "1"}, True), ({}, False):
            program = self.start_as_user(environment)
            for file in ("environ", "maps", "auxv"):
                self.assertEqual(is_readable, self.can_read(program.pid, file), file)
            self.assertEqual(is_readable, bool(program.log.find("privacy: ")))
            if is_readable:
                program.stop()
        self.assertFalse(self.can_read(program.pid, "mem"))
        os.kill(program.pid, signal.SIGABRT)
        _, status = os.waitpid(program.pid, 0)
        self.assertEqual(signal.SIGABRT, os.WTERMSIG(status))
        self.assertFalse(os.WCOREDUMP(status))
        self.assertEqual([], [*self.session.folder.rglob("core*")])

    def test_no_file_of_it_is_for_others(self):
        self.session.open_editor("mousepad")
        known = {*self.session.folder.rglob("*")}
        self.start_program()
        self.program.open_panel()
        self.program.stop()
        new = {*self.session.folder.rglob("*")} - known
        self.assertIn(self.program.settings_file, new)
        # The editor's own: where its menus are read, made when they are.
        modes = {path: present(path.lstat) for path in new if "at-spi2-" not in str(path)}
        self.assertEqual([], [path for path, of in modes.items() if of and of.st_mode & (stat.S_IRWXG | stat.S_IRWXO)])

    def test_it_listens_nowhere_but_at_its_names_on_the_session_bus(self):
        host = NotifierHost(self.session).start()
        self.addCleanup(host.stop)
        program = self.start_program(environment={"ORLAMO_DEBUGGABLE": "1"})
        item = host.wait_for_item(program.pid)
        self.session.open_editor("mousepad")
        program.open_panel()
        links = [str(present(link.readlink)) for link in pathlib.Path(f"/proc/{program.pid}/fd").iterdir()]
        sockets = set(re.findall(r"socket:\[(\d+)\]", " ".join(links)))
        self.assertTrue(sockets)
        self.assertEqual(set(), sockets & listening(program.pid))

        bus = self.session.session_bus
        names, = accessible.call(bus, *BUS, "ListNames")
        mine = [name for name in names if accessible.pid_of(bus, name) == program.pid]
        self.assertEqual({ORLAMO}, {name for name in mine if not name.startswith(":")} - {item.service})
        offered = {interface for name in mine for interface in self.interfaces(name, "/")}
        self.assertEqual({"org.freedesktop.Application", "org.kde.StatusNotifierItem", "com.canonical.dbusmenu"},
                         offered)

    def interfaces(self, name, path):
        """What any program of the session finds there and below, without what every object on a bus has."""
        answer = accessible.call(self.session.session_bus, name, path, "org.freedesktop.DBus.Introspectable",
                                 "Introspect")
        if not answer:
            return
        node = Gio.DBusNodeInfo.new_for_xml(answer[0])
        yield from (each.name for each in node.interfaces if not each.name.startswith("org.freedesktop.DBus."))
        for below in node.nodes:
            yield from self.interfaces(name, f"{path.rstrip('/')}/{below.path}")
