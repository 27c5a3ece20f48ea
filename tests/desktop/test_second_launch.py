"""One program in a session: what a second launch does."""
import signal
import subprocess
import time
from contextlib import closing

import accessible
from case import PROGRAM, DesktopTest
from gi.repository import Gio, GLib
from screen import wait_until
from session import PATIENCE
from Xlib import X, display

NAME, PATH, INTERFACE = "app.orlamo.Orlamo", "/app/orlamo/Orlamo", "org.freedesktop.Application"
ACTIVATION, ACTION = "Activate", "ActivateAction"
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
        self.assertEqual({INTERFACE: [ACTIVATION, "Open", "ActivateAction"]}, interfaces)
        one = [GLib.Variant("s", "one")]
        for method, kinds, arguments, complaint in (
                ("Open", "(asa{sv})", (["file:///etc/passwd"], {}), "activation: no files are opened"),
                (ACTION, "(sava{sv})", ("quit", [], {}), "activation: no action quit"),
                (ACTION, "(sava{sv})", ("preferences", one, {}), "activation: the action preferences takes no")):
            since = program.log.mark()
            self.assertIsNone(accessible.call(bus, NAME, PATH, INTERFACE, method, GLib.Variant(kinds, arguments)))
            program.log.wait_for(complaint, since)
        self.assertIsNone(program.preferences())
        for method, kinds, arguments in ((ACTIVATION, "(a{sv})", ({"any": GLib.Variant("ai", [1])},)),
                                         (ACTION, "(sava{sv})", ("preferences", [], {}))):
            self.assertEqual((), accessible.call(bus, NAME, PATH, INTERFACE, method, GLib.Variant(kinds, arguments)))
            program.wait_for_preferences(2)
            program.close_preferences()

    def test_a_launcher_hears_that_what_it_launched_again_is_there(self):
        program = self.start_program()
        with closing(display.Display(self.session.environment["DISPLAY"])) as launcher:
            launcher.screen().root.change_attributes(event_mask=X.PropertyChangeMask)
            launcher.sync()
            self.session.start([PROGRAM], environment={"DESKTOP_STARTUP_ID": "launcher-1-of-this-test_TIME7"})
            program.wait_for_preferences(PATIENCE)
            heard = bytearray()

            def is_over():
                while launcher.pending_events():
                    event = launcher.next_event()
                    if event.type & 0x7F == X.ClientMessage and event.data[0] == 8:
                        heard.extend(event.data[1])
                return b'remove: ID="launcher-1-of-this-test_TIME7"\0' in heard

            wait_until(is_over, PATIENCE, "end of the start")

    def test_without_a_session_bus_the_program_says_so_and_runs(self):
        nowhere = {"DBUS_SESSION_BUS_ADDRESS": f"unix:path={self.session.folder}/no-bus"}
        program = self.start_program(environment=nowhere, keeps_preferences=True)
        program.wait_for_preferences()
        self.assertIsNotNone(program.log.find("no session bus"))
        lines = program.log.mark()
        time.sleep(1)
        self.assertLess(program.log.mark() - lines, 5)
        program.assert_alive()
