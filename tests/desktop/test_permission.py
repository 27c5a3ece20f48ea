"""The accessibility permission: asked for while it is missing, granted in the window or elsewhere."""
import time

import accessible
from case import DesktopTest
from screen import wait_until

BEHIND = (200, 40, 120)
OFF, ON = "没有开启辅助功能", "已开启辅助功能"


class Permission(DesktopTest):
    def setUp(self):
        super().setUp()
        accessible.switch_on(self.session.session_bus, False)
        wait_until(lambda: not accessible.is_on(self.session.session_bus), 5, "bus that is switched off")

    def wait_for_window(self):
        return wait_until(self.program.permission_window, 5, "permission window")

    def assert_round_and_of_one_size(self, window):
        x, y, width, height = self.screen.geometry_of(window)
        picture = self.screen.picture((x, y, width, height))
        for corner in ((3, 3), (width - 4, 3), (3, height - 4), (width - 4, height - 4)):
            self.assertEqual(BEHIND, picture.getpixel(corner))
        self.assertNotEqual(BEHIND, picture.getpixel((width // 2, 3)))
        hints = window.get_wm_normal_hints()
        self.assertEqual(2 * [(width, height)],
                         [(hints.min_width, hints.min_height), (hints.max_width, hints.max_height)])

    def assert_granted(self):
        """The window has closed itself, and the panel works without a restart."""
        wait_until(lambda: self.program.permission_window() is None, 3, "end of the permission window")
        self.program.log.wait_for(ON, seconds=7)
        since = self.program.log.mark()
        self.session.open_editor("mousepad")
        self.program.open_panel()
        self.assertGreater(len(self.program.application_shortcuts()), 10)
        self.assertFalse([line for line in self.program.log.lines(since) if OFF in line or ON in line])

    def test_granted_after_twelve_seconds_it_is_asked_for_three_times(self):
        begin = time.monotonic()
        program = self.start_program()
        self.wait_for_window()
        self.assertGreater(time.monotonic() - begin, 2)
        wait_until(lambda: sum(OFF in line for line in program.log.lines()) == 3, 15, "third look")
        self.assertIsNotNone(program.permission_window())
        accessible.switch_on(self.session.session_bus)
        self.assert_granted()
        self.assertEqual(3, sum(OFF in line for line in program.log.lines()))

    def test_authorising_in_the_window_switches_the_bus_on(self):
        self.start_program()
        window = self.wait_for_window()
        self.screen.activate_window(window)
        wait_until(lambda: self.screen.keyboard_pid() == self.program.pid, 5, "focus for the permission window")
        self.screen.tap("space")  # meant for another program
        self.settle()
        self.assertFalse(accessible.is_on(self.session.session_bus))
        self.assert_round_and_of_one_size(window)
        self.screen.tap("Tab")  # the check box, which would do the same
        self.screen.tap("Tab")
        self.screen.tap("space")
        self.program.log.wait_for("授权----辅助功能")
        wait_until(lambda: accessible.is_on(self.session.session_bus), 3, "bus that is switched on")
        self.assertEqual(0, self.screen.held_buttons())
        self.assert_granted()
