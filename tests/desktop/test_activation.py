"""A click on a cell does what the cell says."""
from case import DesktopTest
from screen import wait_until

GNOME_SETTINGS = """[org/gnome/desktop/wm/keybindings]
show-desktop=['<Super>d']
"""


class ApplicationCells(DesktopTest):
    def setUp(self):
        super().setUp()
        self.start_program()

    def click(self, title):
        self.program.open_panel()
        self.screen.click(*self.program.hover(title))
        self.program.wait_until_closed()

    def test_a_click_on_a_cell_chooses_that_menu_item_of_a_gtk_editor(self):
        editor = self.session.open_editor("mousepad", "one two three")
        self.click("Select All")
        wait_until(editor.is_in_front, 5, "editor in front")
        self.screen.type("x")
        wait_until(lambda: editor.text() == "x", 5, "letter in place of the selected text")

    def test_a_click_on_a_cell_chooses_that_menu_item_of_a_qt_editor(self):
        editor = self.session.open_editor("featherpad", "one two three")
        self.click("Select All")
        wait_until(editor.is_in_front, 5, "editor in front")
        self.screen.type("x")
        self.screen.tap(self.screen.CTRL, "s")
        wait_until(lambda: editor.file.read_text().strip() == "x", 5, "letter in place of the selected text")

    def test_a_click_between_the_cells_leaves_the_panel_open(self):
        self.session.open_editor("mousepad")
        x, y, width, height = self.program.open_panel()
        since = self.program.log.mark()
        self.screen.click(x + width // 2, y + height - 6)
        self.program.log.wait_for("Mouse Clicked at: ", since)
        self.program.wait_until_still()
        self.assertIsNone(self.program.log.find("是这个点", since))


class Gnome(DesktopTest):
    """The window manager stands for the desktop: it has the same key and runs a command for it."""

    session_arguments = {"keys": {"W-d": "touch desktop-shown"},
                         "config": {"glib-2.0/settings/keyfile": GNOME_SETTINGS}}
    program_environment = {"XDG_CURRENT_DESKTOP": "GNOME"}

    def test_a_click_on_a_system_cell_makes_gnome_do_it(self):
        self.start_program()
        self.session.open_editor("mousepad")
        self.program.open_panel()
        self.screen.click(*self.program.hover("Show desktop"))
        wait_until((self.session.folder / "desktop-shown").exists, 5, "window manager's own key binding run")
        self.program.wait_until_closed()


class Xfce(DesktopTest):
    """Xfce's own window manager with the keys that it comes with."""

    session_arguments = {"window_manager": "xfwm4"}
    program_environment = {"XDG_CURRENT_DESKTOP": "XFCE"}

    def test_a_click_on_a_system_cell_makes_xfce_do_it(self):
        self.start_program()
        editor = self.session.open_editor("mousepad")
        self.program.open_panel()
        self.screen.click(*self.program.hover("Show desktop"))
        wait_until(lambda: not editor.windows(), 5, "cleared desktop")
        self.program.wait_until_closed()


class Openbox(DesktopTest):
    """A window manager without a desktop: its own keys, and what they really do."""

    session_arguments = {"shipped_keys": True}

    def setUp(self):
        super().setUp()
        self.start_program()
        self.editor = self.session.open_editor("mousepad")

    def click(self, title):
        self.program.open_panel()
        self.screen.click(*self.program.hover(title))
        self.program.wait_until_closed()

    def test_the_desktop_that_a_click_showed_stays_shown(self):
        self.click("Show desktop")
        wait_until(lambda: not self.editor.windows(), 5, "cleared desktop")
        self.settle()
        self.assertEqual([], self.editor.windows())

    def test_the_workspace_that_a_click_went_to_stays(self):
        self.click("Go to workspace 2")
        wait_until(lambda: self.screen.workspace() == 1, 5, "second workspace")
        self.settle()
        self.assertEqual(1, self.screen.workspace())


class NoDesktop(DesktopTest):
    def test_without_a_known_desktop_there_are_no_system_rows(self):
        self.start_program()
        self.session.open_editor("mousepad")
        self.program.open_panel()
        self.assertEqual([], self.program.system_shortcuts())
        self.assertNotEqual([], self.program.application_shortcuts())
