"""Opening and closing the panel, as a user does it."""
import time

from case import DesktopTest
from program import SHOWS
from screen import wait_until


class Trigger(DesktopTest):
    def setUp(self):
        super().setUp()
        self.start_program()

    def assert_centred(self, area):
        x, y, width, height = area
        self.assertAlmostEqual(x + width / 2, self.screen.width / 2, delta=1)
        self.assertAlmostEqual(y + height / 2, self.screen.height / 2, delta=1)

    def titles(self):
        return {entry["Title"] for entry in self.program.application_shortcuts() if isinstance(entry, dict)}

    def test_double_ctrl_over_a_gtk_editor_opens_its_panel_in_the_middle(self):
        self.session.open_editor("mousepad")
        self.assert_centred(self.program.open_panel())
        self.assertIsNotNone(self.program.log.find(SHOWS))
        self.assertEqual("Mousepad", self.program.application_shortcuts()[-1])
        self.assertLessEqual({"New", "Paste", "Select All"}, self.titles())

    def test_double_ctrl_over_a_qt_editor_opens_its_panel_in_the_middle(self):
        self.session.open_editor("featherpad")
        self.assert_centred(self.program.open_panel())
        self.assertLessEqual({"New", "Paste", "Select All"}, self.titles())

    def test_escape_closes_the_panel_and_the_next_key_arrives_in_the_editor(self):
        editor = self.session.open_editor("mousepad", "one")
        self.program.open_panel()
        self.screen.tap(self.screen.ESCAPE)
        self.program.wait_until_closed()
        wait_until(editor.is_in_front, 5, "editor in front")
        self.screen.type("x")
        wait_until(lambda: editor.text() == "xone", 5, "typed letter in the editor")

    def test_an_escape_in_the_very_moment_of_the_focus_closes_the_panel(self):
        self.session.open_editor("mousepad")
        before = self.screen.display.get_input_focus().focus
        for _ in range(3):
            self.screen.double_press()
            deadline = time.monotonic() + 5
            while self.screen.display.get_input_focus().focus == before and time.monotonic() < deadline:
                pass  # no pause, and nothing else asked: the program is just drawing
            self.screen.tap(self.screen.ESCAPE)
            self.program.wait_until_closed(2)
            self.wait_out_the_double_press()

    def test_the_next_double_press_closes_the_panel_and_one_more_opens_it(self):
        editor = self.session.open_editor("featherpad")
        self.program.open_panel()
        self.wait_out_the_double_press()
        self.screen.double_press()
        self.program.wait_until_closed()
        wait_until(editor.is_in_front, 5, "editor in front")
        self.wait_out_the_double_press()
        self.program.open_panel()

    def test_a_click_in_another_window_closes_the_panel_and_leaves_that_window_in_front(self):
        first = self.session.open_editor("mousepad")
        window = self.screen.active_window()
        window.configure(x=20, y=40)  # some place the second one over it
        wait_until(lambda: self.screen.geometry_of(window)[0] < 60, 5, "editor at the left")
        first_area = self.screen.geometry_of(window)
        second = self.session.open_editor("featherpad")
        self.assertTrue(second.is_in_front())
        panel = self.program.open_panel()
        self.screen.click(*self.point_beside(first_area, panel))
        self.program.wait_until_closed()
        wait_until(first.is_in_front, 5, "clicked editor in front")
        self.wait_out_the_double_press()
        self.assertTrue(first.is_in_front())

    def test_the_super_key_triggers_once_another_program_wrote_that_setting(self):
        self.session.open_editor("mousepad")
        self.program.write_settings({**self.program.settings(), "doubleModifierKey": "Control"})
        self.screen.double_press()
        self.program.open_panel(self.screen.SUPER)
        self.assertEqual(1, sum(SHOWS in line for line in self.program.log.lines()))

    def test_the_shift_key_triggers_once_another_program_wrote_that_setting(self):
        self.session.open_editor("mousepad")
        self.program.write_settings({**self.program.settings(), "doubleModifierKey": "Shift"})
        self.screen.double_press()
        self.program.open_panel(self.screen.SHIFT)
        self.assertEqual(1, sum(SHOWS in line for line in self.program.log.lines()))

    def test_the_trigger_works_while_a_menu_holds_the_keyboard(self):
        editor = self.session.open_editor("mousepad")
        before = len(editor.windows())
        self.screen.tap(self.screen.ALT, "f")
        wait_until(lambda: len(editor.windows()) > before, 5, "open menu")
        since = self.program.log.mark()
        self.screen.double_press()
        self.program.log.wait_for(SHOWS, since)
        self.program.wait_for_panel(since)
