"""What an installation brings: complete, valid, at one with itself, and working wherever it lies."""
import configparser
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(os.environ.get("ORLAMO_BUILD", ROOT / "build/release"))
sys.path.insert(0, str(ROOT / "tests/desktop"))

import accessible  # noqa: E402
from case import DesktopTest  # noqa: E402
from program import Log  # noqa: E402
from screen import wait_until  # noqa: E402
from session import PATIENCE  # noqa: E402
from texts import texts  # noqa: E402

ID = "app.orlamo.Orlamo"
LANGUAGES = ("de", "fr", "ja", "zh_CN")
ICONS = (*(f"{size}x{size}/apps/{ID}.png" for size in (16, 22, 24, 32, 48, 64, 128, 256, 512)),
         f"scalable/apps/{ID}.svg", f"symbolic/apps/{ID}-symbolic.svg")
FILES = {"bin/orlamo", f"share/applications/{ID}.desktop", f"share/dbus-1/services/{ID}.service",
         f"share/metainfo/{ID}.metainfo.xml", "share/man/man1/orlamo.1", "share/doc/orlamo/copyright",
         *(f"share/icons/hicolor/{icon}" for icon in ICONS)}


def setUpModule():
    """One installation for all tests, at a place that nothing was told when it was built."""
    global USR
    folder = unittest.enterModuleContext(tempfile.TemporaryDirectory(prefix="orlamo-"))
    subprocess.run(["cmake", "--install", BUILD], env={**os.environ, "DESTDIR": folder}, check=True,
                   stdout=subprocess.DEVNULL)
    program, = pathlib.Path(folder).glob("**/bin/orlamo")
    USR = program.parents[1]


def group(path, name):
    file = configparser.ConfigParser(delimiters="=", interpolation=None, strict=True)
    file.optionxform = str
    file.read(USR / path, encoding="utf-8")
    return file[name]


def output(words, **arguments):
    return subprocess.run(words, capture_output=True, text=True, timeout=PATIENCE, **arguments)


class Installation(unittest.TestCase):
    def test_every_file_is_where_the_desktop_looks_for_it(self):
        built = {path.name for path in (BUILD / "resources").iterdir()}
        self.assertIn("Localizable_en.qm", built)
        self.assertEqual(FILES | {f"share/orlamo/{name}" for name in built},
                         {str(path.relative_to(USR)) for path in USR.rglob("*") if not path.is_dir()})

    def test_what_describes_it_to_the_desktop_is_valid(self):
        for words in (["desktop-file-validate", USR / f"share/applications/{ID}.desktop"],
                      ["appstreamcli", "validate", "--no-net", "--strict", USR / f"share/metainfo/{ID}.metainfo.xml"]):
            judged = output(words)
            self.assertEqual((0, ""), (judged.returncode, judged.stdout if judged.returncode else judged.stderr))

    def test_the_same_names_stand_everywhere(self):
        entry = group(f"share/applications/{ID}.desktop", "Desktop Entry")
        self.assertEqual((ID, ID, "true"), (entry["Icon"], entry["StartupWMClass"], entry["DBusActivatable"]))
        for language in LANGUAGES:
            for key in ("GenericName", "Comment", "Keywords"):
                self.assertNotEqual(entry[key], entry[f"{key}[{language}]"])
        service = group(f"share/dbus-1/services/{ID}.service", "D-BUS Service")
        self.assertEqual((ID, True), (service["Name"], str(USR / "bin/orlamo").endswith(service["Exec"])))
        metainfo = xml.etree.ElementTree.parse(USR / f"share/metainfo/{ID}.metainfo.xml")
        self.assertEqual((ID, f"{ID}.desktop"), (metainfo.findtext("id"), metainfo.findtext("launchable")))

    def test_the_same_version_stands_everywhere(self):
        version = output([USR / "bin/orlamo", "--version"]).stdout.removeprefix("orlamo ").strip()
        metainfo = xml.etree.ElementTree.parse(USR / f"share/metainfo/{ID}.metainfo.xml")
        self.assertEqual(version, metainfo.find("releases/release").get("version"))
        self.assertIn(f"Orlamo {version}", (USR / "share/man/man1/orlamo.1").read_text())
        self.assertTrue((ROOT / "packaging/changelog").read_text().startswith(f"orlamo ({version}-"))

    def test_the_command_line_is_answered_without_a_display(self):
        for words, status, said, complaint in (
                (["--help"], 0, "Usage: orlamo", ""), (["--version"], 0, "orlamo ", ""),
                (["--bogus"], 2, "", "'--bogus'"), (["--version", "x"], 2, "", "'x'"), (["/etc/passwd"], 2, "", "see"),
                ([], 1, "no X display", "")):
            environment = {name: value for name, value in os.environ.items() if name != "DISPLAY"}
            ended = output([USR / "bin/orlamo", *words], env=environment)
            self.assertEqual(status, ended.returncode, ended)
            self.assertTrue(ended.stdout.startswith(said) and complaint in ended.stderr, ended)


class Launcher(DesktopTest):
    def launch(self, how):
        """As a desktop's menu does it, in a process of its own: what the entry says is its library's to read."""
        # The library sends in the background; a process that ends at once may take the message with it.
        script = (f"from gi.repository import Gio; Gio.DesktopAppInfo.new('{ID}.desktop').{how}; "
                  "Gio.bus_get_sync(Gio.BusType.SESSION).flush_sync()")
        words = ["/usr/bin/python3", "-c", script]
        environment = {"XDG_DATA_DIRS": f"{USR}/share", "PATH": f"{USR}/bin:{os.environ['PATH']}"}
        self.assertEqual(0, self.session.start(words, environment=environment).wait(PATIENCE))

    def test_a_launcher_starts_it_over_the_bus_and_its_preferences_appear_once(self):
        log = Log(self.session.folder / "service.log")
        services = self.session.folder / "data/dbus-1/services"
        services.mkdir(parents=True)
        service = (USR / f"share/dbus-1/services/{ID}.service").read_text()
        # The tree lies elsewhere than it was configured for, the log is wanted, a language, and a look at the process.
        command = f"/bin/sh -c 'LANGUAGE=zh_CN ORLAMO_DEBUGGABLE=1 exec {USR}/bin/orlamo > {log.path}'"
        (services / f"{ID}.service").write_text(service[:service.index("Exec=")] + f"Exec={command}\n")
        bus = self.session.session_bus
        accessible.call(bus, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "ReloadConfig")
        self.launch("launch([], None)")
        pid = wait_until(lambda: accessible.pid_of(bus, ID), PATIENCE, "program on the bus")
        self.addCleanup(lambda: os.kill(pid, 9))

        def windows():
            return self.screen.managed_windows_of(pid)

        window, = wait_until(windows, PATIENCE, "preferences")
        shown = accessible.AccessibleApplication(self.session.accessibility_bus, pid)
        wait_until(lambda: shown.element(texts("zh_CN")["settings.trigger"]), PATIENCE, "text in Chinese")
        self.settle()
        self.assertEqual([window.id], [each.id for each in windows()])
        self.assertEqual(1, sum("SettingsController 即将加入窗口时" in line for line in log.lines()), log.lines())
        self.assertIsNone(log.find("bundle: "))
        self.assertTrue(os.readlink(f"/proc/{pid}/exe").startswith(str(USR)))
        self.screen.close_window(window)
        wait_until(lambda: not windows(), PATIENCE, "end of the preferences")
        self.launch("launch_action('preferences', None)")
        wait_until(windows, PATIENCE, "preferences of the action")


if __name__ == "__main__":
    unittest.main()
