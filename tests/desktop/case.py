"""What every desktop test has: a private desktop, the program in it, and evidence when it fails."""
import os
import pathlib
import shutil
import time
import unittest

from program import Program
from session import DesktopSession

ROOT = pathlib.Path(__file__).resolve().parents[2]
PROGRAM = os.environ.get("ORLAMO_PROGRAM", str(ROOT / "build/release/orlamo"))
PEER = os.environ.get("ORLAMO_HOSTILE_PEER", str(pathlib.Path(PROGRAM).with_name("orlamo_hostile_peer")))
SLOWNESS = 8 if "ASAN_OPTIONS" in os.environ else 1  # what a sanitizer costs where a test asks for a time
EVIDENCE = pathlib.Path(os.environ.get("ORLAMO_EVIDENCE", ROOT / "build/desktop-tests"))


def repetitions(few, many):
    """How often a test tries. ORLAMO_ENDURANCE, which `make endurance` sets to 1, says how many times `many`."""
    return many * int(os.environ.get("ORLAMO_ENDURANCE") or 0) or few


class DesktopTest(unittest.TestCase):
    """A test may set the session's arguments, and settings and environment of the program, in its class."""

    session_arguments = {}
    settings = None
    program_environment = None

    def setUp(self):
        self.session = self.enterContext(DesktopSession(**self.session_arguments))
        self.addCleanup(self._keep_evidence)
        self.screen = self.session.screen
        self.screen.cover_root(200, 40, 120)

    def start_program(self, **arguments):
        arguments.setdefault("settings", self.settings)
        arguments.setdefault("environment", self.program_environment)
        self.program = Program(self.session, PROGRAM, **arguments)
        return self.program

    @staticmethod
    def wait_out_the_double_press():
        """Until the next press counts as a first one. This time is the user's, not the program's."""
        time.sleep(0.55)

    @staticmethod
    def settle():
        """Long enough for whatever the program might still do about the focus, before a test says that it did not."""
        time.sleep(1)

    @staticmethod
    def point_beside(area, other):
        """A point of `area` that does not lie in `other`."""
        x, y, width, height = area
        left, top, across, down = other
        for px in range(x + 5, x + width, 10):
            for py in range(y + 5, y + height, 10):
                if not (left - 2 <= px <= left + across + 2 and top - 2 <= py <= top + down + 2):
                    return px, py
        raise AssertionError(f"{other} covers {area}")

    def _keep_evidence(self):
        result = self._outcome.result
        if self not in [getattr(test, "test_case", test) for test, _ in result.failures + result.errors]:
            return
        folder = EVIDENCE / self._testMethodName
        folder.mkdir(parents=True, exist_ok=True)
        self.screen.picture().save(folder / "screen.png")
        for log in self.session.folder.glob("*.log"):
            shutil.copy(log, folder)
        print(f"evidence in {folder}")
