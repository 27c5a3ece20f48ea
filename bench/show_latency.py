#!/usr/bin/python3
"""Time from the trigger's second release to the panel's first frame, and where it goes.

Usage: show_latency.py [RUNS [EDITOR ...]], with build/release/orlamo and build/bench/show_latency built. Brings up a
private display, buses and each editor in turn. The program's log lines are stamped as they arrive and tell the stages.
"""
import os
import pathlib
import statistics
import subprocess
import sys
import threading
import time

ROOT = pathlib.Path(__file__).resolve().parents[1]
sys.path.insert(0, str(ROOT / "tests/desktop"))
sys.dont_write_bytecode = True

from screen import wait_until  # noqa: E402
from session import DesktopSession  # noqa: E402

SLEEP = 50.0
# A stage ends with the first log line of that start, after the stage before it.
STAGES = (("trigger seen", "双击command"), ("sleep, menus read", "获取到了快捷键"), ("system catalogue", "获取系统快捷键"),
          ("pass begins", "****************  开始绘制"), ("pass ends", "系统标题的文字大小"))


def stamped_lines(pipe):
    lines = []

    def read():
        for line in pipe:
            lines.append((time.monotonic() * 1000, line.decode(errors="replace")))

    threading.Thread(target=read, daemon=True).start()
    return lines


def stage_ends(lines, released, framed):
    ends, since = [], released
    for _, start in STAGES:
        since = next(stamp for stamp, line in lines if since <= stamp <= framed + 50 and line.startswith(start))
        ends.append(since)
    return ends


def measure(editor, runs):
    with DesktopSession(size="1920x1080x24") as session:
        reading, writing = os.pipe()
        session.start([ROOT / "build/release/orlamo"], writing)
        os.close(writing)
        lines = stamped_lines(os.fdopen(reading, "rb"))
        wait_until(lambda: (session.config / "orlamo/settings.json").exists(), 20, "program")
        session.open_editor(editor)
        output = subprocess.run([ROOT / "build/bench/show_latency", str(runs + 1)], env=session.environment, check=True,
                                capture_output=True, text=True).stdout
        moments = [tuple(map(float, line.split())) for line in output.splitlines()]
        elements = max((line.count('"Title"') for _, line in lines if line.startswith("获取应用快捷键")), default=0)
        return moments[0], moments[1:], lines, elements


def main():
    runs = int(sys.argv[1]) if len(sys.argv) > 1 else 20
    for editor in sys.argv[2:] or ("mousepad", "featherpad", "geany", "kate"):
        first, moments, lines, shortcuts = measure(editor, runs)
        totals = [framed - released - SLEEP for released, _, framed in moments]
        print(f"{editor}: {shortcuts} shortcuts; first showing {first[2] - first[0] - SLEEP:.0f} ms, "
              f"then median of {runs}: {statistics.median(totals):.1f} ms "
              f"({min(totals):.1f} to {max(totals):.1f}), less the {SLEEP:.0f} ms sleep")
        spans = []
        for released, mapped, framed in moments:
            ends = [released, *stage_ends(lines, released, framed), mapped, framed]
            spans.append([b - a for a, b in zip(ends, ends[1:])])
        names = [name for name, _ in STAGES] + ["window mapped", "first frame"]
        for name, values in zip(names, zip(*spans)):
            print(f"    {name:20} {statistics.median(values):7.1f} ms")


if __name__ == "__main__":
    main()
