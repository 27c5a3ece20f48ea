"""Services of the desktop that are killed and come back while the program runs: it lives on, and works again soon."""
import signal
import subprocess
import time

from case import PEER, PROGRAM, SLOWNESS, DesktopTest, repetitions
from program import CLOSES, SHOWS
from screen import wait_until
from session import PATIENCE, Application
from tray import NotifierHost, XEmbedTray

SOON = 2  # seconds after the return
ENDED = 0


class Recovery(DesktopTest):
    def assert_panel_opens_soon(self, returned):
        """Over an application that was started after the return: a small one, as its start takes of the time, too."""
        application = Application(self.session, self.session.start([PEER, "is honest"]))
        wait_until(application.is_in_front, PATIENCE, "application in front")
        self.program.open_panel()
        self.assertLess(time.monotonic() - returned, SOON * SLOWNESS)
        self.screen.tap(self.screen.ESCAPE)
        self.program.wait_until_closed()
        self.session.stop(application.process, signal.SIGKILL)

    def test_a_killed_accessibility_bus_that_returns_is_read_again(self):
        self.start_program()
        for _ in range(repetitions(1, 20)):
            self.wait_out_the_double_press()
            self.session.stop(self.session.accessibility, signal.SIGKILL)
            self.session.start_accessibility()
            self.assert_panel_opens_soon(returned=time.monotonic())

    def test_a_killed_session_bus_that_returns_finds_panel_icon_and_second_launch_again(self):
        self.start_program()
        for _ in range(repetitions(1, 20)):
            self.wait_out_the_double_press()
            self.session.stop(self.session.bus, signal.SIGKILL)
            self.session.stop(self.session.accessibility, signal.SIGKILL)
            self.program.assert_alive()
            self.session.start_session_bus()
            self.session.start_accessibility()
            self.assert_panel_opens_soon(returned=time.monotonic())
            host = NotifierHost(self.session).start()
            self.assertEqual("Active", host.wait_for_item(self.program.pid, SOON).property("Status"))
            self.assertEqual(ENDED, self.session.start([PROGRAM], subprocess.DEVNULL).wait(PATIENCE))
            self.program.wait_for_preferences(SOON)
            self.program.close_preferences()
            host.stop()

    def test_a_session_bus_that_never_returns_costs_two_looks_a_second_and_the_panel(self):
        program = self.start_program()
        self.session.open_editor("featherpad")
        self.session.stop(self.session.bus, signal.SIGKILL)
        self.session.stop(self.session.accessibility, signal.SIGKILL)  # it goes with that bus
        program.log.wait_for("the session bus is gone")
        self.settle()
        before, lines = program.wake_ups(), program.log.mark()
        time.sleep(3)
        self.assertLess(program.wake_ups() - before, 15)
        self.assertLess(program.log.mark() - lines, 3)
        self.screen.double_press()
        program.log.wait_for(SHOWS, lines)
        self.screen.click(2, 2)
        program.log.wait_for(CLOSES, lines)

    def test_a_tray_host_that_returns_has_the_icon_again(self):
        program = self.start_program()
        for kind, find in ((NotifierHost, "wait_for_item"), (XEmbedTray, "wait_for_icon")):
            host = kind(self.session).start()
            for _ in range(repetitions(2, 20)):
                getattr(host, find)(program.pid, SOON)
                host.restart()
            getattr(host, find)(program.pid, SOON)
            host.stop()

    def assert_closes_and_opens(self, editor):
        """After something was replaced under the open panel."""
        self.program.assert_alive()
        self.wait_out_the_double_press()
        self.screen.double_press()
        self.program.wait_until_closed()
        self.screen.activate_window(editor.windows()[-1])
        editor.wait_until_in_front()
        self.wait_out_the_double_press()
        self.program.open_panel(seconds=SOON)

    def test_a_compositor_that_comes_and_goes_under_the_open_panel_leaves_it_usable(self):
        self.start_program()
        editor = self.session.open_editor("mousepad")
        self.program.open_panel()
        for _ in range(repetitions(1, 20)):
            compositor = self.session.start_compositor()
            self.assert_closes_and_opens(editor)
            self.session.stop(compositor, signal.SIGKILL)
            wait_until(lambda: not self.screen.compositor_runs(), PATIENCE, "end of the compositor")
            self.assert_closes_and_opens(editor)

    def test_a_window_manager_that_is_replaced_under_the_open_panel_leaves_it_usable(self):
        self.start_program()
        editor = self.session.open_editor("mousepad")
        self.program.open_panel()
        for _ in range(repetitions(1, 20)):
            for words in (["xfwm4", "--replace", "--compositor=off"], ["openbox", "--replace", "--sm-disable"]):
                before = self.screen.window_manager()
                self.session.start(words)
                wait_until(lambda before=before: self.screen.window_manager() not in (None, before), PATIENCE, words[0])
                self.assert_closes_and_opens(editor)
