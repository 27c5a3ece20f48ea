"""The panel comes and goes under a window manager that treats the focus unlike openbox."""
from case import DesktopTest
from screen import wait_until


class Xfwm4(DesktopTest):
    session_arguments = {"window_manager": "xfwm4"}

    def test_escape_gives_the_keyboard_back_under_xfwm4(self):
        """It tells nobody how its windows are stacked until that changes."""
        self.start_program()
        editor = self.session.open_editor("mousepad", "one")
        self.program.open_panel()
        self.screen.tap(self.screen.ESCAPE)
        self.program.wait_until_closed()
        wait_until(editor.is_in_front, 5, "editor in front")
        self.screen.type("x")
        wait_until(lambda: editor.text() == "xone", 5, "typed letter in the editor")
