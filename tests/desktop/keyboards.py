"""The keyboard of a display, below what a user sees of it: what is down, what arrives, what a key has printed on it."""
from Xlib import X, display
from Xlib.ext import xinput, xtest
from Xlib.protocol import rq

# Keycodes of Shift, Ctrl, Alt and Super, left and right, and of AltGr.
MODIFIER_KEYS = (37, 50, 62, 64, 105, 108, 133, 134)
LOCKS = X.LockMask | X.Mod2Mask
FIRST_KEY, KEYS = 8, 248


class DeviceInput(rq.Request):
    """What the test extension takes for a key of one device, and the library's own request cannot say."""
    _request = rq.Struct(rq.Card8("opcode"), rq.Opcode(2), rq.RequestLength(), rq.Card8("event_type"),
                         rq.Card8("detail"), rq.Pad(29), rq.Card8("device"))


class Keyboard:
    """The core keyboard, whoever presses its keys."""

    def __init__(self, name):
        self.display = display.Display(name)
        self.root = self.display.screen().root

    def close(self):
        self.display.close()

    def down(self):
        """The keycodes that are down once the server has done what was asked before."""
        return {8 * byte + bit for byte, bits in enumerate(self.display.query_keymap()) for bit in range(8)
                if bits >> bit & 1}

    def modifiers(self):
        """Those that are held, latched or locked, but for the locks."""
        return self.root.query_pointer().mask & 0xff & ~LOCKS

    def release(self, keys):
        """Through the test extension's own keyboard, as every program may."""
        for key in keys:
            xtest.fake_input(self.display, X.KeyRelease, key)
        self.display.sync()


class PhysicalKeyboard(Keyboard):
    """The user's own: a device beside the one on which programs type."""

    def __init__(self, name):
        super().__init__(name)
        self.held = set()
        self._opcode = self.display.display.get_extension_major(xtest.extname)
        self._events = self.display.query_extension(xinput.extname).first_event
        devices = self.display.xinput_query_device(xinput.AllDevices).devices
        self._device, = (device.deviceid for device in devices
                         if device.use == xinput.SlaveKeyboard and "XTEST" not in device.name)

    def press(self, key):
        self.held.add(key)
        self._send(key, 1)

    def let_go(self, key):
        self.held.remove(key)
        self._send(key, 2)

    def _send(self, key, event):
        DeviceInput(display=self.display.display, opcode=self._opcode, event_type=self._events + event, detail=key,
                    device=self._device)
        self.display.sync()


class Recorder(Keyboard):
    """Takes every key of the display to itself, as no focus and no window manager then can, and keeps it."""

    def __init__(self, name):
        super().__init__(name)
        status = self.root.grab_keyboard(False, X.GrabModeAsync, X.GrabModeAsync, X.CurrentTime)
        if status != X.GrabSuccess:
            raise AssertionError("the keyboard is another program's")

    def take(self):
        """(keycode, whether it is a press, the modifiers before it) of what has come since, modifiers left out."""
        self.display.sync()
        events = [self.display.next_event() for _ in range(self.display.pending_events())]
        return [(event.detail, event.type == X.KeyPress, event.state) for event in events
                if event.type in (X.KeyPress, X.KeyRelease) and event.detail not in MODIFIER_KEYS]


class Legend:
    """What the keys type, asked of the server without a line of the program's own reading of layouts. `rows` has the
    program's keys: the keysyms of each by its code."""
    GRAVE, BESIDE_ONE = 50, 49  # that key types a grave accent or counts as the one that does, on every layout

    def __init__(self, keyboard, rows):
        self._rows = rows
        self._symbols = dict(enumerate(keyboard.display.get_keyboard_mapping(FIRST_KEY, KEYS), FIRST_KEY))

    def types(self, key, code):
        """Whether the key types that with nothing held, on the first or the second layout."""
        symbols = self._symbols[key]
        return (code, key) == (self.GRAVE, self.BESIDE_ONE) or not {symbols[0], symbols[2]}.isdisjoint(
            set(self._rows[code]) - {0})

    def is_for_server(self, code, state):
        """Whether the server keeps it to itself, as Ctrl+Alt+F1, which switches the console: no program hears of it."""
        both = X.ControlMask | X.Mod1Mask
        return state & (both | X.ShiftMask) == both and any(
            symbol >> 8 == 0x1008fe for key, symbols in self._symbols.items() if self.types(key, code)
            for symbol in symbols)
