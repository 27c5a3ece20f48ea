"""A private desktop for one test: X server, session bus, accessibility bus, window manager, home folder."""
import ctypes
import os
import pathlib
import re
import shutil
import signal
import subprocess
import tempfile
import unittest

import accessible
from screen import Screen, wait_until

PATIENCE = 20  # seconds for a program to come up on a busy machine
REPORT = re.compile(r"==\d+== ?(ERROR: )?\w+Sanitizer|^\S+:\d+:\d+: runtime error: ", re.M)  # of a sanitizer
LONGEST_REPORT = 8000  # characters

OPENBOX = """<?xml version="1.0" encoding="UTF-8"?>
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <focus><focusNew>yes</focusNew><followMouse>no</followMouse></focus>
  <keyboard>{keys}</keyboard>
  <mouse>
    <context name="Client">
      <mousebind button="Left" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
    </context>
  </mouse>
</openbox_config>
"""
# Further window managers to look at things under: their words without and, where they have one, with their compositor.
WINDOW_MANAGERS = {
    "xfwm4": (["xfwm4", "--compositor=off"], ["xfwm4", "--compositor=on"]),
    "metacity": (["metacity", "--no-composite"], ["metacity", "--composite"]),
    "marco": (["marco", "--no-composite"], ["marco", "--composite"]),
    "kwin_x11": (["env", "KWIN_COMPOSE=N", "kwin_x11"], ["env", "KWIN_COMPOSE=O2", "kwin_x11"]),
}
KEY = '<keybind key="{key}"><action name="Execute"><command>{command}</command></action></keybind>'


PR_SET_PDEATHSIG = 1
LIBC = ctypes.CDLL(None)


def end_with_the_test():
    """In a new process: it ends also with a test that is killed."""
    LIBC.prctl(PR_SET_PDEATHSIG, signal.SIGKILL)


def waiting_threads(pid):
    """The name of each thread, where in the kernel it waits, and in which system call."""
    def read(file):
        try:
            return file.read_text().strip()
        except OSError:
            return "?"

    return [" ".join(read(task / name) for name in ("comm", "wchan", "syscall"))
            for task in pathlib.Path(f"/proc/{pid}/task").iterdir()]


class DesktopSession:
    """Starts in __enter__, ends everything it started in __exit__, and nothing else. There it also fails for whatever a
    sanitizer reported, and for a process that should have ended in order and did not."""

    def __init__(self, size="1440x900x24", keys=None, server=(), config=None, shipped_keys=False,
                 window_manager=None, compositor=None):
        """`keys` maps a key in the window manager's own words ("W-d") to the shell command it runs; `server` holds
        further words of the X server's command line; `config` maps files of the configuration folder to their text.
        With `shipped_keys` the window manager has those that it comes with, instead of `keys`.
        `compositor` asks for the window manager's own one, else for picom. What of these two is not said, the
        environment says (ORLAMO_WINDOW_MANAGER, ORLAMO_COMPOSITOR), so that the same tests run under all of them."""
        self._size = size
        self._keys = keys or {}
        self._server = server
        self._config = config or {}
        self._shipped_keys = shipped_keys
        self._window_manager = window_manager or os.environ.get("ORLAMO_WINDOW_MANAGER", "openbox")
        self._compositor = bool(os.environ.get("ORLAMO_COMPOSITOR")) if compositor is None else compositor
        self._started = []
        self._end_in_order = []
        self._complaints = []
        self.screen = self.session_bus = self.accessibility_bus = None

    def __enter__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="orlamo-"))
        try:
            self._prepare_folders()
            self._start_server()
            self._start_buses()
            self._start_window_manager()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        if self.screen:
            self.screen.close()
        for process in reversed(self._started):
            self.stop(process)
        self._look_for_reports()
        shutil.rmtree(self.folder, ignore_errors=True)
        if self._complaints:
            raise AssertionError("\n".join(self._complaints))

    def _look_for_reports(self):
        for log in self.folder.glob("*.log"):
            text = log.read_text(errors="replace")
            if report := REPORT.search(text):
                self._complaints.append(text[report.start():][:LONGEST_REPORT])

    def _prepare_folders(self):
        keep = {name: os.environ[name]
                for name in ("PATH", "LD_LIBRARY_PATH", "ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS")
                if name in os.environ}
        self.environment = {**keep, "LANG": "C.UTF-8", "HOME": str(self.folder), "TMPDIR": str(self.folder),
                            "QT_QPA_PLATFORM": "xcb", "GDK_BACKEND": "x11", "GSETTINGS_BACKEND": "keyfile"}
        for name, place in (("XDG_CONFIG_HOME", "config"), ("XDG_DATA_HOME", "data"), ("XDG_CACHE_HOME", "cache"),
                            ("XDG_STATE_HOME", "state"), ("XDG_RUNTIME_DIR", "run")):
            folder = self.folder / place
            folder.mkdir(mode=0o700)
            self.environment[name] = str(folder)
        self.config = self.folder / "config"
        for name, text in self._config.items():
            (self.config / name).parent.mkdir(parents=True)
            (self.config / name).write_text(text)

    def _start_server(self):
        reading, writing = os.pipe()
        self.start(["Xvfb", "-displayfd", str(writing), "-noreset", "-nolisten", "tcp", "-screen", "0", self._size,
                    *self._server], pass_fds=(writing,))
        os.close(writing)
        with os.fdopen(reading) as number:
            self.environment["DISPLAY"] = ":" + number.readline().strip()
        self.screen = Screen(self.environment["DISPLAY"])

    def _start_buses(self):
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = f"unix:path={self.folder}/run/bus"
        self.start_session_bus()
        self.start_accessibility()

    def start_session_bus(self):
        """Also after it was stopped: a new bus under the same address, as a login has it."""
        address = self.environment["DBUS_SESSION_BUS_ADDRESS"]
        reading, writing = os.pipe()
        self.bus = self.start(["dbus-daemon", "--session", "--nofork", f"--address={address}",
                               f"--print-address={writing}"], pass_fds=(writing,))
        os.close(writing)
        with os.fdopen(reading) as listens:
            listens.readline()
        self.session_bus = accessible.connect(address)

    def start_accessibility(self):
        """Also after it was stopped: a new bus under a new address."""
        self.accessibility = self.start(["/usr/libexec/at-spi-bus-launcher", "--launch-immediately"])
        wait_until(lambda: accessible.pid_of(self.session_bus, "org.a11y.Bus") == self.accessibility.pid, PATIENCE,
                   "accessibility launcher")  # asking it for the address sooner would start a second one
        address = wait_until(lambda: accessible.bus_address(self.session_bus), PATIENCE, "accessibility bus")
        accessible.switch_on(self.session_bus)
        self.accessibility_bus = accessible.connect(address)

    def _start_window_manager(self):
        if self._window_manager in WINDOW_MANAGERS:
            if self._keys or self._shipped_keys:
                raise unittest.SkipTest(f"these keys are given to openbox, not to {self._window_manager}")
            self.start(WINDOW_MANAGERS[self._window_manager][self._compositor])
        else:
            self.start(["openbox", "--sm-disable", *self._openbox_words()])
        wait_until(self.screen.window_manager_runs, PATIENCE, "window manager")
        if self._compositor and self._window_manager not in WINDOW_MANAGERS:
            self.start_compositor()
        if self._compositor:
            wait_until(self.screen.compositor_runs, PATIENCE, "compositor")

    def _openbox_words(self):
        if self._shipped_keys:
            return []
        keys = "".join(KEY.format(key=key, command=command) for key, command in self._keys.items())
        settings = self.folder / "openbox.xml"
        settings.write_text(OPENBOX.format(keys=keys))
        return ["--config-file", str(settings)]

    def start_compositor(self):
        if self.screen.compositor_runs():
            return None
        compositor = self.start(["picom", "--config", "/dev/null", "--backend", "xrender"])
        wait_until(self.screen.compositor_runs, PATIENCE, "compositor")
        return compositor

    # Processes.
    def start(self, words, output=None, environment=None, pass_fds=(), ends_in_order=False):
        """A process in a group of its own; it ends with the session. With `ends_in_order` it must do so by itself when
        it is asked to: only then has it given back all it had, and a sanitizer looked for what it did not."""
        with open(self.folder / "others.log", "ab") as common:
            process = subprocess.Popen(words, env={**self.environment, **(environment or {})}, cwd=self.folder,
                                       stdin=subprocess.DEVNULL, stdout=output or common, stderr=subprocess.STDOUT,
                                       start_new_session=True, pass_fds=pass_fds, preexec_fn=end_with_the_test)
        self._started.append(process)
        if ends_in_order:
            self._end_in_order.append(process)
        return process

    def stop(self, process, how=signal.SIGTERM):
        """Ends the process with its group and waits for it."""
        in_order = how == signal.SIGTERM and process in self._end_in_order and process.poll() is None
        for number in (how, signal.SIGKILL):
            try:
                os.killpg(process.pid, number)
                os.killpg(process.pid, signal.SIGCONT)
            except ProcessLookupError:
                pass
            try:
                process.wait(PATIENCE if in_order else 3)
                break
            except subprocess.TimeoutExpired:
                if in_order:
                    self._complaints.append(f"{process.args} does not end; its threads: {waiting_threads(process.pid)}")
                continue
        if in_order and process.returncode != 0:
            self._complaints.append(f"{process.args} was asked to end and did so with {process.returncode}")
        if process in self._started:
            self._started.remove(process)

    def start_service(self, name):
        """What a desktop's session has running under that name on its bus."""
        accessible.start_service(self.session_bus, name)
        return self.wait_for_service(name)

    def wait_for_service(self, name):
        """The process that has that name on the bus, once there is one."""
        return wait_until(lambda: accessible.pid_of(self.session_bus, name), PATIENCE, f"service {name}")

    def open_editor(self, program, text="one two three\n"):
        """An editor in front with a file of that text, its menus readable."""
        file = self.folder / f"{program}-{len(self._started)}.txt"
        file.write_text(text)
        process = self.start([program, str(file)])
        editor = Application(self, process, file)
        editor.wait_until_in_front()
        return editor


class Application:
    """A program of the desktop that a test uses as its user would."""

    def __init__(self, session, process, file=None):
        self.session = session
        self.process = process
        self.pid = process.pid
        self.file = file

    def is_in_front(self):
        """It is the active application, and what is typed goes to it."""
        return self.session.screen.active_pid() == self.pid and self.session.screen.keyboard_pid() == self.pid

    def accessible(self):
        return accessible.AccessibleApplication(self.session.accessibility_bus, self.pid)

    def text(self):
        return self.accessible().text()

    def windows(self):
        return self.session.screen.windows_of(self.pid)

    def wait_until_in_front(self):
        wait_until(self.is_in_front, PATIENCE, f"window of process {self.pid} in front")
        wait_until(self.accessible().has_menu_bar, PATIENCE, f"menu bar of process {self.pid}")
