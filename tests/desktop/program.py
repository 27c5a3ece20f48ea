"""The real program in a test's desktop: its log, its settings, its panel."""
import ast
import json
import pathlib
import re
import tempfile

from screen import Timeout, wait_until
from session import PATIENCE

SHOWS = "------------ 双击显示窗口 --------------"
BUILDS = "获取到了快捷键，就设置UI"
CLOSES = "关闭快捷键窗口"
LAUNCHED = "launch: settings observers"
APPLICATION_LIST = "获取应用快捷键=====  "
SYSTEM_LIST = "获取系统快捷键=====  "
CELL = re.compile(r"文字: (.*)---- 尺寸: \((-?[\d.]+), (-?[\d.]+), (-?[\d.]+), (-?[\d.]+)\)")


class Log:
    """The program's standard output, read while it grows."""

    def __init__(self, path):
        self.path = path
        self._read = 0  # bytes, up to the end of a line
        self._lines = []

    def lines(self, since=0):
        with self.path.open("rb") as file:
            file.seek(self._read)
            new = file.read()
        new = new[:new.rfind(b"\n") + 1]
        self._read += len(new)
        self._lines += new.decode("utf-8", "replace").split("\n")[:-1]
        return self._lines[since:]

    def forget(self):
        """Gives the disk back what was written so far; the program goes on writing where it is."""
        self.lines()
        self._lines.clear()
        with self.path.open("r+b") as file:
            file.truncate(0)

    def mark(self):
        """Where the log ends now, for `since`."""
        return len(self.lines())

    def find(self, text, since=0):
        return next((line for line in self.lines(since) if text in line), None)

    def wait_for(self, text, since=0, seconds=5):
        return wait_until(lambda: self.find(text, since), seconds, f"log line with {text!r}")


class Program:
    """Orlamo, started in a session. Settings are written into its file before it starts. The preferences, which every
    launch shows, are closed unless `keeps_preferences`: a user who goes on to work does the same."""

    def __init__(self, session, path, settings=None, environment=None, keeps_preferences=False):
        self.session = session
        self.path = path
        self.settings_file = session.config / "orlamo" / "settings.json"
        if settings is not None:
            self.write_settings(settings)
        self.start(environment, keeps_preferences)

    def start(self, environment=None, keeps_preferences=False):
        with tempfile.NamedTemporaryFile(dir=self.session.folder, suffix=".log", delete=False) as output:
            self.log = Log(self.session.folder / output.name)
            self.process = self.session.start([self.path], output, environment, ends_in_order=True)
        self.pid = self.process.pid
        wait_until(self.is_ready, PATIENCE, "start of the program")
        if not keeps_preferences:
            self.close_preferences()

    def is_ready(self):
        """It has done the last step of its launch."""
        self.assert_alive()
        return self.log.find(LAUNCHED)

    def assert_alive(self):
        if self.process.poll() is not None:
            raise Timeout("the program ended:\n" + "\n".join(self.log.lines()[-20:]))

    def wake_ups(self):
        """How often its main thread has slept and gone on."""
        status = pathlib.Path(f"/proc/{self.pid}/status").read_text()
        return int(re.search(r"^voluntary_ctxt_switches:\s+(\d+)", status, re.M)[1])

    def stop(self):
        self.session.stop(self.process)

    # Settings: as an outside tool would read and write them.
    def settings(self):
        try:
            return json.loads(self.settings_file.read_text())
        except (OSError, ValueError):
            return {}

    def write_settings(self, settings):
        self.settings_file.parent.mkdir(parents=True, exist_ok=True)
        new = self.settings_file.with_suffix(".new")
        new.write_text(json.dumps(settings))
        new.chmod(0o600)
        new.replace(self.settings_file)

    # The windows around the panel.
    def preferences(self):
        """The preferences' window; None while it is closed."""
        return self.window("InitialViewController")

    def permission_window(self):
        return self.window("PrivilegeController")

    def window(self, content):
        """The window that the window manager has of the program with that content in it, by its role."""
        self.assert_alive()
        return next((window for window in self.session.screen.managed_windows_of(self.pid)
                     if self.session.screen.role_of(window) == content), None)

    def wait_for_preferences(self, seconds=PATIENCE):
        return wait_until(self.preferences, seconds, "preferences window")

    def close_preferences(self):
        self.session.screen.close_window(self.wait_for_preferences())
        wait_until(lambda: self.preferences() is None, PATIENCE, "end of the preferences window")

    # The panel.
    def panel(self):
        """The panel's window; None while there is none."""
        self.assert_alive()
        windows = self.session.screen.unmanaged_windows_of(self.pid)
        return windows[-1] if windows else None

    def panel_area(self):
        """(x, y, width, height) in pixels; None while there is none."""
        window = self.panel()
        return self.session.screen.geometry_of(window) if window else None

    def wait_for_panel(self, since=0, seconds=5):
        """Waits until the panel is seen and its last drawing pass is on the screen; returns its area."""
        self.log.wait_for(BUILDS, since, seconds)
        wait_until(self.panel, seconds, "panel")
        return self.wait_until_still(seconds)

    def wait_until_still(self, seconds=5):
        """Waits until two looks in a row at the panel are equal; returns its area."""
        def look():
            area = self.panel_area()
            return area and (area, self.session.screen.picture(area).tobytes())

        before = [None, 0]

        def still():
            now = look()
            before[1] = before[1] + 1 if now and now == before[0] else 0
            before[0] = now
            return before[1] >= 5 and now[0]

        return wait_until(still, seconds, "panel that stands still")

    def open_panel(self, key=None, seconds=5):
        since = self.log.mark()
        self.session.screen.double_press(*([key] if key else []))
        return self.wait_for_panel(since, seconds)

    def wait_until_closed(self, seconds=5):
        wait_until(lambda: self.panel() is None, seconds, "end of the panel")

    # What the panel lists.
    def _list(self, start):
        line = next((line for line in reversed(self.log.lines()) if line.startswith(start)), None)
        return ast.literal_eval(line[len(start):]) if line else []

    def application_shortcuts(self):
        return self._list(APPLICATION_LIST)

    def system_shortcuts(self):
        return self._list(SYSTEM_LIST)

    def hover(self, title):
        """Moves the pointer over the panel until the log names that cell; returns the pointer's position."""
        since = self.log.mark()
        x, y, width, height = self.panel_area()
        for column in range(max(x, 0) + 60, min(x + width, self.session.screen.width), 90):
            for row in range(max(y, 0) + 40, min(y + height, self.session.screen.height), 12):
                if self._title_at(column, row) == title:
                    return column, row
        seen = {match[1] for match in map(CELL.search, self.log.lines(since)) if match}
        raise Timeout(f"no cell {title!r} under the pointer; seen: {sorted(seen)}")

    def _title_at(self, x, y):
        """The title of the cell there, as the log names it; None between the cells and beside the list."""
        since = self.log.mark()
        self.session.screen.move_pointer(x, y)
        try:
            self.log.wait_for("Mouse Position: ", since, 0.5)
        except Timeout:
            return None
        self.log.wait_for("开始绘制", since)
        match = next(filter(None, map(CELL.search, self.log.lines(since))), None)
        return match and match[1]
