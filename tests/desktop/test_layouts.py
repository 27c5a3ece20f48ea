"""What the keyboard's layout changes, and what it must not: one layout after the other, while the program runs."""
import subprocess

from Xlib import X, error

from case import DesktopTest
from program import BUILDS
from screen import count_near, wait_until

TEAL = (106, 196, 220)
# Places of keys, whatever they type.
CTRL, SHIFT, ALT, CAPS, NUM, RIGHT_ALT, LEFT_SUPER = 37, 50, 64, 66, 77, 108, 133
CONTROL_AND_ALT, SUPER = X.ControlMask | X.Mod1Mask, X.Mod4Mask
SWITCH = "grp:caps_toggle"

DESKTOP, FIRST, SECOND = "Show desktop", "Go to workspace 1", "Go to workspace 2"
# The window manager's word for the key of a cell.
KEYS = {DESKTOP: "W-z", FIRST: "W-1", SECOND: "C-A-Left"}
SETTINGS = """[org/gnome/desktop/wm/keybindings]
show-desktop=['<Super>z']
switch-to-workspace-1=['<Super>1']
switch-to-workspace-2=['<Primary><Alt>Left']
"""
SELECT_ALL = '(gtk_accel_path "<Actions>/win.edit.select-all" "<Primary>slash")\n'


class Layouts(DesktopTest):
    session_arguments = {"keys": {key: f"touch {key}" for key in KEYS.values()},
                         "config": {"glib-2.0/settings/keyfile": SETTINGS, "Mousepad/accels.scm": SELECT_ALL}}
    program_environment = {"XDG_CURRENT_DESKTOP": "GNOME"}

    def setUp(self):
        super().setUp()
        self.start_program()
        self.editor = self.session.open_editor("mousepad", "one")

    def set_layout(self, words, *options):
        options = [word for option in options for word in ("-option", option)]
        subprocess.run(["setxkbmap", "-option", "", "-layout", *words.split(), *options],
                       env=self.session.environment, check=True)

    def is_taken(self, key, modifiers):
        """Whether the window manager has asked for that combination: the server then refuses it to others."""
        display, root = self.screen.display, self.screen.root
        refused = error.CatchError(error.BadAccess)
        display.grab_server()  # the window manager must not ask at this very moment
        root.grab_key(key, modifiers, False, X.GrabModeAsync, X.GrabModeAsync, onerror=refused)
        root.ungrab_key(key, modifiers)
        display.ungrab_server()
        display.sync()
        return refused.get_error()

    def open_panel(self, trigger=CTRL):
        self.wait_out_the_double_press()
        self.program.wait_until_closed()
        since = self.program.log.mark()
        self.screen.double_press(trigger)
        self.program.log.wait_for(BUILDS, since)
        wait_until(self.program.panel, 5, "panel")

    def find_cells(self, *titles):
        """Where they are: on every layout in the same places."""
        self.program.open_panel()
        places = {title: self.program.hover(title) for title in titles}
        self.screen.tap(self.screen.ESCAPE)
        return places

    def click(self, place):
        since = self.program.log.mark()
        self.screen.click(*place)
        return since

    def assert_arrives(self, title, words):
        file = self.session.folder / KEYS[title]
        wait_until(file.exists, 5, f"{title} with {words}")
        file.unlink()

    def select_all(self):
        return next((entry["Modifier"], entry["MenuItemCmdChar"]) for entry in self.program.application_shortcuts()
                    if isinstance(entry, dict) and entry["Title"] == "Select All")

    def test_each_layout_types_the_desktops_keys_where_the_desktop_took_them_or_refuses(self):
        places = self.find_cells("Select All", DESKTOP, FIRST, SECOND)
        # The layout, keys to tap before, the cell, its key as the window manager took it, and "Ctrl+/" in the panel.
        rows = (
            (("de",), (), DESKTOP, (29, SUPER), ("⇧⌘", "7")),
            (("fr",), (), FIRST, (10, SUPER), ("⇧⌘", "/")),
            (("us -variant dvorak",), (), DESKTOP, (61, SUPER), ("⌘", "/")),
            (("us,ru", SWITCH), (CAPS,), DESKTOP, (52, SUPER), ("⌘", "/")),
            (("us,de", SWITCH), (CAPS,), DESKTOP, (52, SUPER), ("⇧⌘", "7")),
            (("us",), (CAPS, NUM), SECOND, (113, CONTROL_AND_ALT), ("⌘", "/")),
            (("us", "ctrl:swapcaps"), (CTRL,), SECOND, (113, CONTROL_AND_ALT), ("⌘", "/")),
            (("us", "altwin:swap_alt_win"), (NUM,), DESKTOP, (52, SUPER), ("⌘", "/")),
        )
        for words, taps, title, taken, letters in rows:
            self.set_layout(*words)
            for key in taps:
                self.screen.tap(key)
            wait_until(lambda taken=taken: self.is_taken(*taken), 5, f"window manager's keys with {words}")
            self.open_panel(CAPS if "ctrl:swapcaps" in words else CTRL)
            self.click(places[title])
            self.assert_arrives(title, words)
            self.assertEqual(letters, self.select_all(), words)
            for key in taps:
                self.screen.tap(key)

        self.set_layout("ru")  # it lacks the key, and the menus do not mind
        self.open_panel()
        since = self.click(places[DESKTOP])
        self.program.log.wait_for("is not posted: no layout of this keyboard types that key", since)
        self.open_panel()
        self.click(places["Select All"])
        wait_until(self.editor.is_in_front, 5, "editor in front")
        wait_until(self.editor.accessible().has_selection, 5, "selected text")
        self.screen.tap(self.screen.BACKSPACE)
        wait_until(lambda: self.editor.text() == "", 5, "end of the selected text")

    def test_a_change_of_layout_counts_while_the_panel_is_open(self):
        places = self.find_cells(DESKTOP)
        self.open_panel()
        self.screen.move_pointer(0, 0)
        area = self.program.wait_until_still()
        quiet = self.screen.picture(area).tobytes()
        self.wait_out_the_double_press()
        self.screen.press(RIGHT_ALT)
        wait_until(lambda: count_near(self.screen.picture(area), TEAL), 5, "teal cell for the right Alt")
        self.screen.release(RIGHT_ALT)
        self.set_layout("de")
        wait_until(lambda: self.is_taken(29, SUPER), 5, "window manager's keys")
        self.screen.press(RIGHT_ALT)
        self.program.wait_until_still()
        self.assertEqual(quiet, self.screen.picture(area).tobytes(), "AltGr is no Alt")
        self.screen.release(RIGHT_ALT)
        self.screen.press(LEFT_SUPER)
        wait_until(lambda: count_near(self.screen.picture(area), TEAL), 5, "teal cell for Super")
        self.screen.release(LEFT_SUPER)
        self.click(places[DESKTOP])
        self.assert_arrives(DESKTOP, "de")
