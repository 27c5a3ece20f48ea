"""Combinations that the program types: what arrives, and what stays pressed. tests/typing types."""
import contextlib
import os
import pathlib
import random
import subprocess
import tempfile
import threading
import time

from case import DesktopTest, PROGRAM, repetitions
from keyboards import Keyboard, Legend, MODIFIER_KEYS, PhysicalKeyboard, Recorder
from screen import Timeout, wait_until
from Xlib import X

TYPING = os.environ.get("ORLAMO_TYPING", str(pathlib.Path(PROGRAM).with_name("orlamo_typing")))
# Each modifier as it is asked for and as an event tells it.
ROLES = ((1 << 17, X.ShiftMask), (1 << 20, X.ControlMask), (1 << 19, X.Mod1Mask), (1 << 18, X.Mod4Mask))
ALL_ROLES = sum(state for _, state in ROLES)
STUCK_AFTER = 0.5  # seconds


class Typist:
    """A program that types. It has begun."""

    def __init__(self, environment, lines=subprocess.PIPE):
        """`lines` may be a file of them."""
        self.process = subprocess.Popen([TYPING], env=environment, stdin=lines, stdout=subprocess.PIPE, text=True)
        rows = [[int(word) for word in line.split()] for line in self.answer()]
        self.rows = {code: keysyms for code, *keysyms in rows}
        if not self.rows:
            raise AssertionError("it does not begin")

    def answer(self):
        return list(iter(lambda: self.process.stdout.readline().strip(), ""))

    def say(self, lines):
        self.process.stdin.write(lines)
        self.process.stdin.flush()
        return self.answer()

    def type(self, code, flags):
        """The line that says why it is not typed; None when there is none."""
        return next((line for line in self.say(f"{code} {flags} 1\n{code} {flags} 0\n\n") if " is not posted: " in line),
                    None)

    def end(self):
        """In order; its exit status."""
        self.process.stdin.close()
        return self.process.wait(10)

    def kill(self):
        self.process.kill()
        self.process.wait()
        for pipe in filter(None, (self.process.stdin, self.process.stdout)):
            pipe.close()


class Fiddler:
    """A user who fiddles with the modifiers all the time. While `lock` is another's, the user does nothing."""

    def __init__(self, name):
        self.keyboard, self.lock, self.actions = PhysicalKeyboard(name), threading.Lock(), 0
        self._random, self._ends = random.Random(2), False
        self._thread = threading.Thread(target=self._run)

    def __enter__(self):
        self._thread.start()
        return self

    def __exit__(self, *_):
        self._ends = True
        self._thread.join()
        for key in list(self.keyboard.held):
            self.keyboard.let_go(key)
        self.keyboard.close()

    def _run(self):
        while not self._ends:
            with self.lock:
                self._act()
            time.sleep(self._random.randrange(200) / 1e6)

    def _act(self):
        held = sorted(self.keyboard.held)
        # Mostly nothing or one is held: else nearly everything would be refused.
        if len(held) > 1 or held and self._random.randrange(2):
            self.keyboard.let_go(self._random.choice(held))
        elif self._random.randrange(3) == 0 and (key := self._random.choice(MODIFIER_KEYS)) not in held:
            self.keyboard.press(key)
        else:
            return
        self.actions += 1


class Typing(DesktopTest):
    def setUp(self):
        super().setUp()
        self.name = self.session.environment["DISPLAY"]
        self.keyboard = self.enterContext(contextlib.closing(Keyboard(self.name)))
        self.random = random.Random(1)

    def start_typist(self, **arguments):
        typist = Typist(self.session.environment, **arguments)
        self.addCleanup(typist.kill)
        return typist

    def any_combination(self, rows):
        """A key's code, its modifiers as they are asked for, and as events tell them."""
        roles = [role for role in ROLES if self.random.randrange(2)]
        return self.random.choice(sorted(rows)), sum(flag for flag, _ in roles), sum(state for _, state in roles)

    def test_while_the_user_presses_modifiers_combinations_arrive_as_asked_or_are_refused(self):
        for layout in ("us", "de", "fr", "us,ru"):
            with self.subTest(layout):
                subprocess.run(["setxkbmap", "-layout", layout], env=self.session.environment, check=True)
                self.type_combinations(layout, repetitions(100, 1000))

    def type_combinations(self, layout, count):
        typist = self.start_typist()
        legend = Legend(self.keyboard, typist.rows)
        arrived = refused = 0
        with contextlib.closing(Recorder(self.name)) as recorder, Fiddler(self.name) as fiddler:
            while arrived + refused < count:
                code, flags, state = self.any_combination(typist.rows)
                if legend.is_for_server(code, state):
                    continue
                refusal, came = typist.type(code, flags), recorder.take()
                if refusal:
                    self.assertEqual([], came, refusal)
                    refused += 1
                else:
                    key = came[0][0] if came else None
                    self.assertEqual([(key, True, state), (key, False, state)],
                                     [(key, is_press, held & ALL_ROLES) for key, is_press, held in came], code)
                    self.assertTrue(legend.types(key, code), f"{key} for {code}")
                    arrived += 1
                with fiddler.lock:
                    self.assertEqual(fiddler.keyboard.held, self.keyboard.down())
        self.assertEqual(0, typist.end())
        self.assertEqual((set(), 0), (self.keyboard.down(), self.keyboard.modifiers()))
        print(f"{layout}: {count} combinations: {arrived} arrived, {refused} refused; "
              f"the user pressed or released {fiddler.actions} times meanwhile")
        self.assertGreater(min(arrived, fiddler.actions), count / 10, "too little was tried")

    def test_a_program_killed_while_it_types_leaves_no_key_pressed(self):
        rows = self.start_typist().rows
        longest = 0
        count = repetitions(30, 400)
        for _ in range(count // 2):
            for kill in (self.kill_within_a_combination, self.kill_at_any_time):
                kill(rows)
                start = time.monotonic()
                try:
                    wait_until(lambda: not self.keyboard.down(), STUCK_AFTER, "end of all keys")
                except Timeout:
                    self.keyboard.release(self.keyboard.down())
                    raise
                longest = max(longest, time.monotonic() - start)
        print(f"{count} kills: all keys were up {1000 * longest:.1f} ms after the longest")

    def kill_within_a_combination(self, rows):
        code, flags, _ = self.any_combination(rows)
        typist = self.start_typist()
        typist.say(f"{code} {flags} 1\n\n")
        typist.kill()

    def kill_at_any_time(self, rows):
        with tempfile.TemporaryFile("w+") as lines:
            for _ in range(2000):
                code, flags, _ = self.any_combination(rows)
                lines.write(f"{code} {flags} 1\n{code} {flags} 0\n")
            lines.seek(0)
            typist = self.start_typist(lines=lines)
            time.sleep(self.random.random() * 0.03)
            self.assertIsNone(typist.process.poll(), "it ended before")
            typist.kill()
