"""Combinations that the program types: what arrives, and what stays pressed. tests/typing types and looks."""
import os
import subprocess

from case import DesktopTest, ROOT, repetitions

TYPING = os.environ.get("ORLAMO_TYPING", str(ROOT / "build/release/orlamo_typing"))


class Typing(DesktopTest):
    def run_on(self, layout, *words):
        subprocess.run(["setxkbmap", "-layout", layout], env=self.session.environment, check=True)
        run = subprocess.run([TYPING, *map(str, words)], env=self.session.environment, capture_output=True, text=True)
        print(f"{layout}: {run.stdout.strip()}")
        self.assertEqual(0, run.returncode, f"{layout}: {run.stdout}{run.stderr}")

    def test_while_the_user_presses_modifiers_combinations_arrive_as_asked_or_are_refused(self):
        for layout in ("us", "de", "fr", "us,ru"):
            self.run_on(layout, "combinations", repetitions(100, 1000))

    def test_a_program_killed_while_it_types_leaves_no_key_pressed(self):
        self.run_on("us", "kills", repetitions(30, 400))
