"""One program in a session: what a second launch does."""
import signal
import subprocess
import time

import accessible
from case import PROGRAM, DesktopTest
from gi.repository import Gio, GLib
from screen import wait_until
from session import PATIENCE

NAME, PATH, INTERFACE = "app.orlamo.Orlamo", "/app/orlamo/Orlamo", "org.freedesktop.Application"
ACTIVATION = "Activate"
ENDED = 0


class SecondLaunch(DesktopTest):
    def launch_again(self):
        return self.session.start([PROGRAM], subprocess.DEVNULL)

    def test_a_second_launch_shows_the_running_programs_preferences_and_ends(self):
        program = self.start_program()
        self.assertEqual(ENDED, self.launch_again().wait(PATIENCE))
        program.wait_for_preferences(2)
        program.close_preferences()
        self.assertEqual(ENDED, self.launch_again().wait(PATIENCE))
        program.wait_for_preferences(2)

    def test_the_user_is_told_when_the_running_program_does_not_answer(self):
        program = self.start_program()
        program.process.send_signal(signal.SIGSTOP)
        second = self.launch_again()
        window = wait_until(lambda: self.screen.managed_windows_of(second.pid), PATIENCE, "word to the user")[0]
        self.screen.close_window(window)
        self.assertNotEqual(ENDED, second.wait(PATIENCE))
        program.process.send_signal(signal.SIGCONT)
        program.assert_alive()

    def test_a_launch_after_the_running_program_was_killed_is_a_first_one(self):
        self.start_program().process.kill()
        self.program.process.wait(PATIENCE)
        self.start_program(keeps_preferences=True).wait_for_preferences()

    def test_other_programs_can_activate_this_one_and_nothing_else(self):
        program = self.start_program()
        bus = self.session.session_bus
        introspected, = accessible.call(bus, NAME, PATH, "org.freedesktop.DBus.Introspectable", "Introspect")
        interfaces = {found.name: [method.name for method in found.methods]
                      for found in Gio.DBusNodeInfo.new_for_xml(introspected).interfaces
                      if not found.name.startswith("org.freedesktop.DBus.")}
        self.assertEqual({INTERFACE: [ACTIVATION]}, interfaces)
        for method, arguments in (("Open", GLib.Variant("(asa{sv})", (["file:///etc/passwd"], {}))),
                                  ("ActivateAction", GLib.Variant("(sava{sv})", ("quit", [], {})))):
            self.assertIsNone(accessible.call(bus, NAME, PATH, INTERFACE, method, arguments), method)
        self.assertEqual((), accessible.call(bus, NAME, PATH, INTERFACE, ACTIVATION, GLib.Variant("(a{sv})", ({},))))
        program.wait_for_preferences(2)

    def test_without_a_session_bus_the_program_says_so_and_runs(self):
        nowhere = {"DBUS_SESSION_BUS_ADDRESS": f"unix:path={self.session.folder}/no-bus"}
        program = self.start_program(environment=nowhere, keeps_preferences=True)
        program.wait_for_preferences()
        self.assertIsNotNone(program.log.find("no session bus"))
        lines = program.log.mark()
        time.sleep(1)
        self.assertLess(program.log.mark() - lines, 5)
        program.assert_alive()
