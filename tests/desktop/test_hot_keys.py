"""The desktop's own keys, read from the real schemas and services with what they come with, and what a user changes."""
import contextlib
import os
import signal
import subprocess
import time

import services
from case import PEER, SLOWNESS, DesktopTest
from gi.repository import GLib
from program import SYSTEM_LIST
from screen import wait_until
from session import PATIENCE, Application

# Rows by the name that they have in the panel, with modifiers and key as the program counts them: ⌘ is Ctrl, ⌥ is Alt,
# ⌃ is Super, F13 is Print.
GNOME = {
    "Show Launchpad": "⌃A", "Mission Contrl": "⌃S", "Show Notification Center": "⌃V", "Application Windows": "⌃`",
    "Move left a space": "⌃PGUP", "Move right a space": "⌃PGDN", "Switch to Desktop 1": "⌃HOME",
    "Move focus to the Dock": "⌥⌘⇥", "Move focus to active or next window": "⌥⎋", "Move focus to next window": "⌥F6",
    "Select the previous input source": "⌃⇧SPACE", "Select next source in the Input Menu": "⌃SPACE",
    "Save picture of screen as file": "⇧F13", "Save picture of selected area as file": "F13",
    "Turn zoom on or off": "⌃⌥8", "Zoom out": "⌃⌥-", "Zoom in": "⌃⌥=", "Turn VoiceOver on or off": "⌃⌥S",
    "Show Help Menu": "⌃F1"}
MATE = {
    "Show Launchpad": "⌥F1", "Application Windows": "⌥`", "Show Desktop": "⌥⌘D", "Move left a space": "⌥⌘←",
    "Move right a space": "⌥⌘→", "Move focus to the Dock": "⌥⌘⇥", "Move focus to active or next window": "⌥⇥",
    "Move focus to next window": "⌥F6", "Save picture of screen as file": "F13"}
CINNAMON = {
    "Mission Contrl": "⌥⌘↓", "Application Windows": "⌥`", "Show Desktop": "⌃D", "Show Dashboard": "⌃S",
    "Move left a space": "⌥⌘←", "Move right a space": "⌥⌘→", "Move focus to the Dock": "⌥⌘⇥",
    "Move focus to active or next window": "⌥⇥", "Save picture of screen as file": "F13",
    "Copy picture of screen to the clipboard": "⌘F13", "Save picture of selected area as file": "⇧F13",
    "Copy picture of selected area to clipboard": "⇧⌘F13", "Zoom out": "⌃⌥-", "Zoom in": "⌃⌥=",
    "Turn VoiceOver on or off": "⌃⌥S"}
XFCE_COMMANDS = {
    "Show Launchpad": "⌥F3", "Save picture of screen as file": "F13", "Save picture of selected area as file": "⇧F13",
    "Turn VoiceOver on or off": "⌃⌥S"}
XFCE = XFCE_COMMANDS | {
    "Application Windows": "⌃⇥", "Show Desktop": "⌥⌘D", "Move left a space": "⌥⌘←", "Move right a space": "⌥⌘→",
    "Switch to Desktop 1": "⌘F1", "Switch to Desktop 2": "⌘F2", "Switch to Desktop 3": "⌘F3",
    "Switch to Desktop 4": "⌘F4", "Move focus to active or next window": "⌥⇥"}

GNOME_WM, GNOME_SHELL = "org.gnome.desktop.wm.keybindings", "org.gnome.shell.keybindings"
GNOME_KEYS = "org.gnome.settings-daemon.plugins.media-keys"
MARCO, MATE_KEYS = "org.mate.Marco.global-keybindings", "org.mate.SettingsDaemon.plugins.media-keys"
CINNAMON_WM, CINNAMON_KEYS = "org.cinnamon.desktop.keybindings.wm", "org.cinnamon.desktop.keybindings.media-keys"

# Desktop, where its settings are stored, its rows, and (schema, key, new value, {row: its keys, None for no row}).
GSETTINGS_DESKTOPS = [
    ("GNOME", "dconf", GNOME, [
        (GNOME_WM, "show-desktop", "['<Super>d', '<Super>F12']", {"Show Desktop": "⌃D"}),
        (GNOME_WM, "switch-to-workspace-left", "[]", {"Move left a space": None}),
        (GNOME_WM, "switch-to-workspace-2", "['XF86Launch1', '<Primary><Mod4>Page_Down']",
         {"Switch to Desktop 2": "⌃⌘PGDN"}),
        (GNOME_WM, "switch-group", "['<Alt>Above_Tab']", {"Application Windows": "⌥`"}),
        (GNOME_WM, "switch-windows", "['<Alt>Tab']", {"Move focus to active or next window": "⌥⇥"}),
        (GNOME_SHELL, "toggle-overview", "['Super_L']", {"Mission Contrl": None}),
        (GNOME_SHELL, "screenshot", "['disabled']", {"Save picture of screen as file": None}),
        (GNOME_KEYS, "search-static", "['XF86Search', '<Super>f']",
         {"Show Spotlight search": "⌃F", "Show Finder search window": "⌃F"}),
        (GNOME_KEYS, "screenreader", "['']", {"Turn VoiceOver on or off": None})]),
    ("MATE", "keyfile", MATE, [
        (MARCO, "switch-windows", "disabled", {"Move focus to active or next window": "⌥⎋"}),
        (MARCO, "panel-main-menu", "Super_L", {"Show Launchpad": None}),
        (MARCO, "show-desktop", "", {"Show Desktop": None}),
        (MARCO, "switch-to-workspace-1", "<Mod4>1", {"Switch to Desktop 1": "⌃1"}),
        (MARCO, "switch-group", "<Alt>Above_Tab", {"Application Windows": "⌥`"}),
        (MATE_KEYS, "magnifier", "<Primary><Alt>KP_Add", {"Turn zoom on or off": "⌥⌘+"})]),
    ("X-Cinnamon", "keyfile", CINNAMON, [
        (CINNAMON_WM, "switch-to-workspace-down", "['']", {"Mission Contrl": "⌥⌘↑"}),
        (CINNAMON_WM, "show-desktop", "@as []", {"Show Desktop": None}),
        (CINNAMON_WM, "switch-to-workspace-3", "['<Super>3', '<Super>KP_3']", {"Switch to Desktop 3": "⌃3"}),
        (CINNAMON_KEYS, "search", "['XF86Search', '<Shift><Super>space']",
         {"Show Spotlight search": "⌃⇧SPACE", "Show Finder search window": "⌃⇧SPACE"}),
        (CINNAMON_KEYS, "screenshot", "['XF86Launch1']", {"Save picture of screen as file": None})])]

XFCONF = "org.xfce.Xfconf"
XFCE_CHANNEL = ("xfconf-query", "-c", "xfce4-keyboard-shortcuts", "-p")
META, ALT, TAB, SEARCH = 0x10000000, 0x08000000, 0x01000001, 0x01000092  # Qt's numbers


class HotKeys(DesktopTest):
    # Other window managers have services of their desktop started, which these tests start and stop themselves.
    session_arguments = {"window_manager": "openbox"}
    program = None

    def setUp(self):
        super().setUp()
        self.editor = self.session.open_editor("mousepad")

    def start_in(self, desktop, **environment):
        if self.program:
            self.program.stop()
        self.start_program(environment={"XDG_CURRENT_DESKTOP": desktop, **environment})

    def run_tool(self, *words, **environment):
        """A tool of the desktop, with what a user would type."""
        subprocess.run(words, env={**self.session.environment, **environment}, check=True, stdout=subprocess.DEVNULL,
                       timeout=20)

    def rows(self):
        """What a new panel has in the desktop's column, and in `self.opening` the log lines and seconds until then."""
        program, screen = self.program, self.screen
        since, start = program.log.mark(), time.monotonic()
        screen.double_press()
        program.log.wait_for(SYSTEM_LIST, since)
        self.opening = program.log.lines(since), (time.monotonic() - start) / SLOWNESS
        program.wait_for_panel(since)
        screen.tap(screen.ESCAPE)
        program.wait_until_closed()
        time.sleep(max(0, start + 0.55 - time.monotonic()))  # the next press counts as a first one
        return {row["Title"].split("//")[-1]: row["Modifier"] + row["key"]
                for row in program.system_shortcuts() if isinstance(row, dict)}

    def assert_rows_are_lost(self, *lines, rows=()):
        """All but those, in time, and these lines of the log and no others say why."""
        self.assertEqual(dict(rows), self.rows())
        opening, seconds = self.opening
        why = [line for line in opening if line.startswith(("org.", "The schema"))]
        self.assertEqual([True] * len(lines), [part in line for part, line in zip(lines, why, strict=True)], why)
        self.assertLess(seconds, 1)


def changed(rows, changes):
    return {name: keys for name, keys in {**rows, **changes}.items() if keys}


@contextlib.contextmanager
def stopped(pid):
    """A process that answers nothing meanwhile."""
    os.kill(pid, signal.SIGSTOP)
    try:
        yield
    finally:
        os.kill(pid, signal.SIGCONT)


class Settings(HotKeys):
    def test_gnome_mate_and_cinnamon_show_the_keys_they_come_with_and_what_is_changed(self):
        for desktop, backend, rows, changes in GSETTINGS_DESKTOPS:
            with self.subTest(desktop):
                self.start_in(desktop, GSETTINGS_BACKEND=backend)
                self.assertEqual(rows, self.rows())
                for schema, key, value, new in changes:
                    self.run_tool("gsettings", "set", schema, key, value, GSETTINGS_BACKEND=backend)
                    rows = changed(rows, new)
                self.assertEqual(rows, self.rows())


class Xfce(HotKeys):
    def test_xfce_shows_the_keys_it_comes_with_and_those_of_each_overridden_half(self):
        self.start_in("XFCE")
        self.assert_rows_are_lost(XFCONF + " GetAllProperties: ")
        service = self.session.start_service(XFCONF)
        with stopped(service):
            self.assert_rows_are_lost(XFCONF + " GetAllProperties: ")
        self.assertEqual(XFCE, self.rows())
        for path, kind, value in (("/xfwm4/custom/override", "bool", "true"),
                                  ("/xfwm4/custom/<Super>d", "string", "show_desktop_key"),
                                  ("/xfwm4/custom/<Super>KP_2", "string", "workspace_2_key"),
                                  ("/xfwm4/custom/XF86Launch1", "string", "cycle_windows_key"),
                                  ("/commands/custom/<Super>F3", "string", "xfce4-appfinder")):
            self.run_tool(*XFCE_CHANNEL, path, "-n", "-t", kind, "-s", value)
        self.assertEqual({**XFCE_COMMANDS, "Show Desktop": "⌃D", "Switch to Desktop 2": "⌃2"}, self.rows())
        self.run_tool(*XFCE_CHANNEL, "/commands/custom/override", "-n", "-t", "bool", "-s", "true")
        self.run_tool(*XFCE_CHANNEL, "/xfwm4/custom/<Super>d", "-r")
        self.assertEqual({"Show Launchpad": "⌃F3", "Switch to Desktop 2": "⌃2"}, self.rows())


class Kde(HotKeys):
    def start_service(self, shortcuts):
        self.service = self.session.start(["kglobalaccel5"])
        self.session.wait_for_service(services.KGLOBALACCEL)
        for component, actions in shortcuts.items():
            services.set_global_shortcuts(self.session.session_bus, component, actions)

    def test_kde_shows_what_its_service_has_before_and_after_it_starts_anew(self):
        self.start_service({
            "kwin": {"Show Desktop": [META | 0x44], "Overview": [], "ExposeAll": [0x05000039, SEARCH],
                     "Walk Through Windows": [SEARCH, ALT | TAB], "view_zoom_in": [META | 0x2b, META | 0x3d],
                     "Invert": [0], "Switch to Desktop 1": [SEARCH]},
            "plasmashell": {"activate widget 3": [ALT | 0x01000030]},
            "KDE Keyboard Layout Switcher": {"Switch to Next Keyboard Layout": [META | ALT | 0x4b]}})
        (self.session.config / "plasma-org.kde.plasma.desktop-appletsrc").write_text(
            "[Containments][2][Applets][3]\nplugin=org.kde.plasma.kickoff\n")
        self.start_in("KDE")
        rows = {"Show Launchpad": "⌥F1", "Show Desktop": "⌃D", "Mission Contrl": "⌘F10",
                "Move focus to active or next window": "⌥⇥", "Zoom in": "⌃=",
                "Select next source in the Input Menu": "⌃⌥K"}
        self.assertEqual(rows, self.rows())
        services.set_global_shortcuts(self.session.session_bus, "kwin", {
            "Show Desktop": [], "Invert": [META | 0x49], "Switch to Desktop 1": [META | 0x31]})
        rows = changed(rows, {"Show Desktop": None, "Invert colors": "⌃I", "Switch to Desktop 1": "⌃1"})
        self.assertEqual(rows, self.rows())

        with stopped(self.service.pid):
            self.assert_rows_are_lost(services.KGLOBALACCEL + " allComponents: ")
        self.session.stop(self.service)
        self.assert_rows_are_lost(services.KGLOBALACCEL + " allComponents: ")
        self.start_service({"kwin": {"Show Desktop": [META | 0x01000035]}})
        self.assertEqual({**rows, "Show Desktop": "⌃F6"}, self.rows())


class Faults(HotKeys):
    def test_a_schema_that_is_missing_costs_its_rows(self):
        schemas = self.session.folder / "glib-2.0" / "schemas"
        schemas.mkdir(parents=True)
        for name in (GNOME_WM, GNOME_KEYS):
            (schemas / f"{name}.gschema.xml").symlink_to(f"/usr/share/glib-2.0/schemas/{name}.gschema.xml")
        self.run_tool("glib-compile-schemas", str(schemas))
        data = {"XDG_DATA_DIRS": str(self.session.folder)}
        of_shell = ("Show Launchpad", "Mission Contrl", "Show Notification Center", "Save picture of screen as file",
                    "Save picture of selected area as file")
        self.start_in("GNOME", **data)
        self.assert_rows_are_lost("The schema org.gnome.shell.keybindings is not installed",
                                  rows={name: keys for name, keys in GNOME.items() if name not in of_shell})
        self.start_in("MATE", **data)
        self.assert_rows_are_lost(*(f"The schema org.mate.{name} is not installed" for name in (
            "SettingsDaemon.plugins.media-keys", "Marco.global-keybindings", "Marco.window-keybindings")))

    def test_a_session_bus_that_hangs_costs_the_rows_that_come_over_it(self):
        for desktop, rows in (("XFCE", {}), ("GNOME", GNOME)):
            with self.subTest(desktop):
                self.start_in(desktop, GSETTINGS_BACKEND="dconf")
                with stopped(self.session.bus.pid):
                    self.assertEqual(rows, self.rows())
                    self.assertLess(self.opening[1], 1)

    def test_services_that_hang_take_of_the_time_of_a_program_that_stalls_and_add_none(self):
        hostile = Application(self.session, self.session.start([PEER, "has items without end"]))
        wait_until(hostile.is_in_front, PATIENCE, "hostile window in front")
        for desktop in ("XFCE", "KDE"):
            with self.subTest(desktop):
                self.start_in(desktop)
                with stopped(self.session.bus.pid):
                    self.assertEqual({}, self.rows())
                    self.assertLess(self.opening[1], 1)

    def test_a_service_that_answers_nonsense_or_in_part_costs_its_rows(self):
        for desktop, name, cases in (("XFCE", XFCONF, self.of_xfce()), ("KDE", services.KGLOBALACCEL, self.of_kde())):
            self.start_in(desktop)
            for answers, lines, rows in cases:
                with self.subTest(desktop=desktop, lines=lines):
                    service = services.NonsenseService(self.session, name, answers)
                    self.assert_rows_are_lost(*lines, rows=rows)
                    service.stop()

    @staticmethod
    def of_xfce():
        def text(value):
            return GLib.Variant("s", value)

        asked = ("/org/xfce/Xfconf", XFCONF, "GetAllProperties ss")
        values = {"/xfwm4/default/<Super>d": GLib.Variant("i", 7), "/xfwm4/default/": text("show_desktop_key"),
                  "/xfwm4/custom/override": text("no"), "/xfwm4/default/<": text("workspace_1_key"),
                  "/commands/default/Print": text("xfce4-screenshooter '"),
                  "/commands/default/<Super>F1": text("xfhelp4")}
        return [({asked: answer_of("(s)", "no")}, ["GetAllProperties: an answer of the type (s)"], {}),
                ({asked: answer_of("(a{ss})", {"/xfwm4/custom/override": "true"})},
                 ["GetAllProperties: an answer of the type (a{ss})"], {}),
                ({asked: answer_of("(a{sv})", values)}, [], {"Show Help Menu": "⌃F1"})]

    @staticmethod
    def of_kde():
        asked = (services.KDE_OBJECT, services.KDE_INTERFACE, "allComponents")
        kwin, plasma, gone = [(path, services.KDE_COMPONENT, "allShortcutInfos")
                              for path in ("/component/kwin", "/component/plasmashell", "/component/kaccess")]
        components = answer_of("(ao)", [kwin[0], plasma[0], gone[0]])
        shortcuts = answer_of("(a(ssssssaiai))", [("Show Desktop", *"abcde", [META | 0x44], [])])
        texts = answer_of("(as)", [kwin[0]])
        return [({asked: texts}, ["allComponents: an answer of the type (as)"], {}),
                ({asked: components, kwin: texts, plasma: shortcuts},
                 ["Infos: an answer of the type (as)", "Infos: "], {}),
                ({asked: components, kwin: shortcuts, plasma: None}, ["Infos: Timeout"], {"Show Desktop": "⌃D"})]


def answer_of(kind, value):
    return GLib.Variant(kind, (value,))
