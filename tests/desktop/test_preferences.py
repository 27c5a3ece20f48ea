"""The preferences, used as a person without a mouse or with a screen reader uses them."""
from accessible import BUTTON, CHECK_BOX, CHECKED, COMBO_BOX, SENSITIVE, SLIDER, AccessibleApplication
from case import DesktopTest
from screen import near, wait_until
from texts import texts

TEXTS = texts()
LIT = (58, 59, 62)  # a card that is chosen; the others are darker
# The check boxes by the keys of their texts, and the settings they write.
BOXES = (("settings.login", "isLaunchAtLoginEnabled"), ("settings.hide_icon", "isHiddenStatusBar"),
         ("settings.taskbar", "dockIcon"), ("settings.blur", "isBlurStyle"),
         ("settings.check_updates", "isEnableAutomaticCheckUpdate"))


class Preferences(DesktopTest):
    settings = {"isFirstLaunch": True, "isBlurStyle": True, "doubleModifierKey": "Shift",
                "LastUpdateCheckDate": "2026-01-01T00:00:00+0000"}

    def setUp(self):
        super().setUp()
        program = self.start_program(keeps_preferences=True)
        self.window = program.wait_for_preferences()
        wait_until(lambda: self.screen.active_pid() == program.pid, 5, "focus for the preferences")
        self.reader = AccessibleApplication(self.session.accessibility_bus, program.pid)

    def find(self, key):
        return self.find_text(TEXTS[key])

    def find_text(self, text):
        return wait_until(lambda: self.reader.element(text), 5, f"{text!r} on the screen")

    def control(self, kind, text):
        """One that may have to be scrolled to."""
        return wait_until(lambda: next((element for role, name, element in self.reader.elements()
                                        if role == kind and name == text), None), 5, f"control {text}")

    def box(self, key):
        return self.control(CHECK_BOX, TEXTS[key])

    def wait_for_setting(self, key, value):
        wait_until(lambda: self.program.settings().get(key) == value, 5, f"{key} = {value}")

    def tab_to(self, name):
        """Presses Tab until that has the keyboard."""
        for _ in range(30):
            before = self.reader.focused()
            if before == name:
                return
            self.screen.tap("Tab")
            wait_until(lambda: self.reader.focused() != before, 5, "next control")
        self.fail(f"no way to {name!r} with the Tab key")

    def test_each_check_box_shows_its_setting_and_writes_it(self):
        for key, setting in BOXES:
            with self.subTest(setting):
                box = self.box(key)
                before = self.reader.has_state(box, CHECKED)
                self.assertEqual(self.program.settings().get(setting, False), before)
                self.reader.press(box)
                self.wait_for_setting(setting, not before)
                self.assertEqual(not before, self.reader.has_state(box, CHECKED))
        self.assertFalse(self.reader.has_state(self.box("settings.session_menu"), SENSITIVE), "no desktop, no menu")
        entry = self.session.config / "autostart" / "app.orlamo.OrlamoHelper.desktop"
        self.assertIn("\nExec=", entry.read_text())
        self.reader.press(self.box("settings.login"))
        self.wait_for_setting("isLaunchAtLoginEnabled", False)
        self.assertFalse(entry.exists())

    def test_the_windows_are_listed_in_the_taskbar_only_while_the_setting_is_on(self):
        def listed():
            return "_NET_WM_STATE_SKIP_TASKBAR" not in self.screen.states_of(self.program.preferences())

        self.assertFalse(listed())
        self.reader.press(self.box("settings.taskbar"))
        wait_until(listed, 5, "window in the taskbar")
        self.reader.press(self.box("settings.taskbar"))
        wait_until(lambda: not listed(), 5, "window out of the taskbar")
        self.assertEqual(self.program.pid, self.screen.active_pid())

    def test_the_tabs_and_a_new_trigger_are_chosen_with_the_keyboard_alone(self):
        self.tab_to(TEXTS["tab.types.settings"])
        for key in ("tutorial.lead", "freeapps.lead", "about.lead"):
            self.screen.tap("Down")
            self.find(key)
        for _ in range(3):
            self.screen.tap("Up")
        self.find("settings.general")
        self.tab_to("Shift")
        self.screen.tap("Up")
        self.wait_for_setting("doubleModifierKey", "Control")
        self.screen.close_window(self.program.preferences())
        self.session.open_editor("mousepad")
        self.program.open_panel(self.screen.SUPER)

    def test_the_slider_shows_and_stores_the_corner_radius(self):
        self.tab_to(TEXTS["settings.radius"])
        self.screen.tap("Right")
        wait_until(lambda: "CornerRadius" in self.program.settings(), 5, "corner radius")
        radius = self.program.settings()["CornerRadius"]
        self.assertIsNotNone(self.program.log.find(f"滑动的圆角半径： {radius}"))
        wait_until(lambda: self.reader.element(str(radius)), 5, "number beside the slider")

    def test_the_wheel_scrolls_the_page_and_changes_no_control(self):
        radius = self.control(SLIDER, TEXTS["settings.radius"])
        _, top, _, height = self.screen.geometry_of(self.window)
        self.turn_wheel_over(self.control(COMBO_BOX, "Shift"))
        while self.reader.area_of(radius)[1] > top + height * 3 // 4:
            self.turn_wheel_over(radius, top + height // 2)
        self.turn_wheel_over(radius)
        self.assertNotIn("CornerRadius", self.program.settings())
        self.assertEqual("Shift", self.program.settings()["doubleModifierKey"])

    def turn_wheel_over(self, element, row=None):
        """And waits until the page follows. In another row: in the middle of that element's column."""
        before = x, y, width, height = self.reader.area_of(element)
        self.screen.move_pointer(x + width // 2, row or y + height // 2)
        self.screen.wheel_down()
        wait_until(lambda: self.reader.area_of(element) != before, 5, "scrolled page")

    def test_an_application_of_the_publisher_is_chosen_by_key_and_press(self):
        self.tab_to(TEXTS["tab.types.settings"])
        self.screen.tap("Down")
        self.screen.tap("Down")
        self.tab_to(TEXTS["freeapps.more"])
        self.tab_to(TEXTS["tab.types.free_apps"])
        self.screen.tap("Down")
        wait_until(lambda: self.chosen_cards() == ["Orlamo"], 5, "first card")
        self.screen.tap("Down")
        wait_until(lambda: self.chosen_cards() == ["Tavlumi"], 5, "second card")
        self.screen.click(*self.reader.area_of(self.find_text("Brenquo"))[:2])
        wait_until(lambda: self.chosen_cards() == ["Brenquo"], 5, "third card")
        self.screen.tap("space")
        wait_until(lambda: not self.chosen_cards(), 5, "no card")
        self.screen.tap("End")
        wait_until(lambda: self.chosen_cards() == ["Yarpeno"], 5, "last card")

    def chosen_cards(self):
        """The names of those that are lit, as seen a little above the name."""
        self.screen.move_pointer(0, 0)
        shown = filter(None, map(self.reader.element, ("Orlamo", "Tavlumi", "Brenquo", "Yarpeno")))
        places = {self.reader.name_of(card): self.reader.area_of(card) for card in shown}
        return [name for name, (x, y, _, _) in places.items() if near(self.screen.pixel(x, y - 2), LIT, 5)]

    def test_the_preferences_have_the_keyboard_again_after_the_color_was_chosen_or_not(self):
        button = self.control(BUTTON, TEXTS["settings.color"])
        for key in self.screen.ESCAPE, "Return":
            with self.subTest(key):
                self.reader.press(button)
                wait_until(lambda: self.screen.active_window() not in (None, self.window), 5, "focus for the colors")
                self.screen.tap(key)
                wait_until(lambda: self.screen.active_window() == self.window, 5, "focus for the preferences")
                wait_until(lambda: self.screen.keyboard_pid() == self.program.pid, 5, "keyboard in the preferences")

    def test_the_help_opens_beside_its_button_and_closes_with_escape_or_a_click_elsewhere(self):
        self.tab_to(TEXTS["settings.help"])
        for close in (lambda: self.screen.tap(self.screen.ESCAPE), self.click_beside_the_help):
            self.screen.tap("space")
            shown, = wait_until(lambda: self.screen.unmanaged_windows_of(self.program.pid), 5, "help")
            self.help = self.screen.geometry_of(shown)
            close()
            wait_until(lambda: not self.screen.unmanaged_windows_of(self.program.pid), 5, "end of the help")
            wait_until(lambda: self.screen.keyboard_pid() == self.program.pid, 5, "keyboard in the preferences")
        self.assertIsNotNone(self.program.preferences())

    def click_beside_the_help(self):
        """Inside it nothing happens."""
        x, y, width, height = self.help
        self.screen.click(x + width // 2, y + height // 2)
        self.settle()
        self.assertTrue(self.screen.unmanaged_windows_of(self.program.pid))
        self.screen.click(x + width + 20, y + height // 2)
