"""The menu of the session, on desktops whose services are played."""
import os
import signal
import time

import accessible
import services
from accessible import CHECK_BOX, SENSITIVE, AccessibleApplication
from case import SLOWNESS, DesktopTest
from gi.repository import Gio, GLib
from screen import wait_until
from services import NonsenseService
from texts import texts

TEXTS = texts()
LOGO = "\uf8ff"
MENU_ENTRIES = 5

XFCONF = "org.xfce.Xfconf"
CHANNEL = "xfce4-keyboard-shortcuts"
XFCE_KEYS = {"/commands/custom/<Primary><Alt>l": "xflock4",
             "/commands/custom/<Primary><Alt>Delete": "xfce4-session-logout",
             "/commands/custom/<Primary>Escape": "xfdesktop --menu",
             "/xfwm4/custom/<Primary><Alt>d": "show_desktop_key",
             "/commands/custom/<Super>e": "thunar"}
SAVER, LOCK = "org.xfce.ScreenSaver", ("/org/xfce/ScreenSaver", "org.xfce.ScreenSaver", "Lock")
MANAGER, LOG_OUT = "org.xfce.SessionManager", ("/org/xfce/SessionManager", "org.xfce.Session.Manager", "Logout bb")
CTRL, ALT, META, DELETE = 0x04000000, 0x08000000, 0x10000000, 0x01000007  # Qt's numbers
DONE = GLib.Variant("()", ())


class SessionMenu(DesktopTest):
    def open_over_editor(self, **arguments):
        self.start_program(**arguments)
        self.session.open_editor("mousepad")
        self.program.open_panel()
        return self.program.application_shortcuts()

    def click(self, key):
        self.screen.click(*self.program.hover(TEXTS[key]))
        self.program.wait_until_closed()
        self.wait_out_the_double_press()

    def wait_for_call(self, service, call):
        wait_until(lambda: call in service.calls, 5, f"call {call}")

    def assert_menu(self, keys, entries):
        """Its heading, and its items' keys by those of their titles."""
        self.assertEqual(LOGO, entries[0])
        self.assertEqual([(TEXTS[title], key) for title, key in keys.items()],
                         [(entry["Title"], entry["Modifier"] + entry["MenuItemCmdChar"])
                          for entry in entries[1:MENU_ENTRIES]])
        self.assertNotIn(LOGO, entries[MENU_ENTRIES:])


class Gnome(SessionMenu):
    program_environment = {"XDG_CURRENT_DESKTOP": "GNOME"}

    def test_gnome_has_it_with_the_keys_that_it_comes_with(self):
        manager, shell = [NonsenseService(self.session, f"org.gnome.{name}", {(f"/org/gnome/{name}", interface, method): DONE})
                          for name, interface, method in (
                              ("SessionManager", "org.gnome.SessionManager", "Logout u"),
                              ("Shell", "org.freedesktop.DBus.Properties", "Set ssv"))]
        NonsenseService(self.session, "org.gnome.ScreenSaver", {})
        self.assert_menu({"session.lock": "⌃L", "session.log_out": "⌥⌘DELETE", "session.overview": "⌃S",
                          "session.minimize": "⌃H"}, self.open_over_editor())
        self.click("session.log_out")
        self.wait_for_call(manager, ("Logout", 0))
        self.program.open_panel()
        self.click("session.overview")
        self.wait_for_call(shell, ("Set", "org.gnome.Shell", "OverviewActive", True))
        self.program.open_panel()
        self.click("session.minimize")
        wait_until(lambda: self.screen.active_window() is None, 5, "end of the editor's window")


class Kde(SessionMenu):
    program_environment = {"XDG_CURRENT_DESKTOP": "KDE"}

    def test_kde_has_its_service_for_shortcuts_do_it(self):
        self.session.start(["kglobalaccel5"])
        self.session.wait_for_service(services.KGLOBALACCEL)
        for component, action, key in (("ksmserver", "Lock Session", META | ord("L")),
                                       ("ksmserver", "Log Out", CTRL | ALT | DELETE),
                                       ("kwin", "Overview", META | ord("W")), ("kwin", "Show Desktop", META | ord("D"))):
            services.set_global_shortcuts(self.session.session_bus, component, {action: [key]})
        pressed = []
        self.session.session_bus.signal_subscribe(
            services.KGLOBALACCEL, services.KDE_COMPONENT, "globalShortcutPressed", "/component/ksmserver", None,
            Gio.DBusSignalFlags.NONE, lambda *told: pressed.append(told[5].unpack()[:2]))
        self.assert_menu({"session.lock": "⌃L", "session.log_out": "⌥⌘DELETE", "session.overview": "⌃W",
                          "session.show_desktop": "⌃D"}, self.open_over_editor())
        self.click("session.lock")
        wait_until(lambda: pressed or GLib.MainContext.default().iteration(False) and None, 5, "lock")
        self.assertEqual([("ksmserver", "Lock Session")], pressed)


class Xfce(SessionMenu):
    program_environment = {"XDG_CURRENT_DESKTOP": "XFCE"}

    def setUp(self):
        super().setUp()
        # What the file manager's key runs; it leaves a mark.
        self.mark = self.session.folder / "files-shown"
        folder = self.session.folder / "bin"
        folder.mkdir()
        program = folder / "thunar"
        program.write_text(f"#!/bin/sh\necho $#$QT_QPA_PLATFORM > {self.mark}\n")
        program.chmod(0o755)
        self.session.environment["PATH"] = f"{folder}:{self.session.environment['PATH']}"
        del self.session.environment["QT_QPA_PLATFORM"]  # the program finds the right one by itself
        self.session.start_service(XFCONF)
        # The user's own keys, so that those that are shipped do not count.
        for path, value in {"/commands/custom/override": True, "/xfwm4/custom/override": True, **XFCE_KEYS}.items():
            self.bind(path, value)

    def bind(self, path, value):
        kind = "b" if value is True else "s"
        self.xfconf("SetProperty", GLib.Variant("(ssv)", (CHANNEL, path, GLib.Variant(kind, value))))

    def unbind(self, path):
        self.xfconf("ResetProperty", GLib.Variant("(ssb)", (CHANNEL, path, False)))

    def xfconf(self, method, arguments):
        self.assertIsNotNone(accessible.call(self.session.session_bus, XFCONF, "/org/xfce/Xfconf", XFCONF, method,
                                             arguments), method)

    def play(self, lock=DONE):
        """The desktop's services; one answers to `lock` like that."""
        self.saver = NonsenseService(self.session, SAVER, {LOCK: lock})
        self.manager = NonsenseService(self.session, MANAGER, {LOG_OUT: DONE})

    def test_each_of_its_four_cells_does_what_it_says(self):
        self.play()
        self.assert_menu({"session.lock": "⌥⌘L", "session.log_out": "⌥⌘DELETE", "session.show_desktop": "⌥⌘D",
                          "session.files": "⌃E"}, self.open_over_editor())
        self.click("session.lock")
        self.wait_for_call(self.saver, ("Lock",))
        self.program.open_panel()
        self.click("session.log_out")
        self.wait_for_call(self.manager, ("Logout", True, True))
        self.program.open_panel()
        self.click("session.files")
        wait_until(lambda: self.mark.exists() and self.mark.read_text(), 5, "file manager")
        self.assertEqual("0\n", self.mark.read_text(), "neither words nor a platform of the toolkit that it did not ask for")
        self.program.open_panel()
        self.click("session.show_desktop")
        wait_until(lambda: self.screen.shows_desktop(), 5, "desktop")

    def test_it_is_one_heading_and_four_items_that_go_with_the_setting_and_follow_the_keys(self):
        self.play()
        self.unbind("/commands/custom/<Primary><Alt>Delete")
        self.bind("/commands/custom/<Super>q", "xfce4-session-logout")
        whole = self.open_over_editor()
        self.screen.tap(self.screen.ESCAPE)
        self.program.wait_until_closed()
        self.program.write_settings({**self.program.settings(), "isContainsAppleMenu": False})
        self.wait_out_the_double_press()
        self.program.open_panel()
        own = self.program.application_shortcuts()
        self.assertEqual(whole[MENU_ENTRIES:], own)
        self.screen.tap(self.screen.ESCAPE)
        self.program.wait_until_closed()
        self.unbind("/commands/custom/<Super>e")
        self.wait_out_the_double_press()
        self.program.open_panel()
        self.assertEqual(own, self.program.application_shortcuts(), "nothing of the editor's is taken off instead")

    def test_the_settings_say_why_there_is_none_and_follow_the_desktop(self):
        self.start_program(keeps_preferences=True)
        self.assertEqual("settings.session_menu.no_service", self.settings_page())
        self.unbind("/commands/custom/<Super>e")
        self.assertEqual("settings.session_menu.not_bound", self.settings_page(again=True))
        self.bind("/commands/custom/<Super>e", "thunar")
        self.play()
        self.assertEqual("settings.session_menu.description", self.settings_page(again=True))

    def settings_page(self, again=False):
        """The key of the text below the box; the page is turned away and back before, when it is read `again`."""
        program = self.program
        window = program.wait_for_preferences()
        wait_until(lambda: self.screen.active_pid() == program.pid, 5, "focus for the preferences")
        reader = AccessibleApplication(self.session.accessibility_bus, program.pid)
        if again:
            wait_until(lambda: reader.focused() == TEXTS["tab.types.settings"] or self.screen.tap("Tab"), 5, "tabs")
            self.screen.tap("Down")
            wait_until(lambda: reader.element(TEXTS["tutorial.lead"]), 5, "other page")
            self.screen.tap("Up")
        wait_until(lambda: reader.element(TEXTS["settings.general"]), 5, "settings")
        self.assertIsNotNone(window)
        names = {}
        for role, name, element in reader.elements():
            names.setdefault(name, (role, element))
        role, box = names[TEXTS["settings.session_menu"]]
        self.assertEqual(CHECK_BOX, role)
        found = [key for key in TEXTS if key.startswith("settings.session_menu.") and TEXTS[key] in names]
        self.assertEqual(1, len(found), found)
        self.assertEqual(found == ["settings.session_menu.description"], reader.has_state(box, SENSITIVE))
        return found[0]

    def test_services_that_hang_or_are_gone_cost_nothing_but_the_menu(self):
        self.play(lock=None)
        whole = self.open_over_editor()
        x, y = self.program.hover(TEXTS["session.lock"])
        before = time.monotonic()
        self.screen.click(x, y)
        self.program.wait_until_closed()
        self.assertLess(time.monotonic() - before, 2 * SLOWNESS)
        self.wait_for_call(self.saver, ("Lock",))
        self.wait_out_the_double_press()
        self.program.open_panel()
        self.manager.stop()
        self.click("session.log_out")
        self.program.log.wait_for("org.xfce.SessionManager Logout: ")
        stopped = accessible.pid_of(self.session.session_bus, XFCONF)
        self.addCleanup(os.kill, stopped, signal.SIGKILL)
        os.kill(stopped, signal.SIGSTOP)
        self.program.open_panel()
        self.assertEqual(whole[-1], self.program.application_shortcuts()[-1])
        self.assertNotIn(LOGO, self.program.application_shortcuts())
