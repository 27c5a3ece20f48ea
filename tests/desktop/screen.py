"""One X display as a user has it: keys, pointer, windows, what is seen. Positions are pixels from the top left."""
import time

from PIL import Image, ImageChops
from Xlib import X, XK, Xatom, display, error
from Xlib.ext import xtest
from Xlib.protocol import event as events

STEP = 0.01  # seconds between two looks at a condition


class Timeout(AssertionError):
    """What was waited for did not come."""


def wait_until(condition, seconds, what):
    """Returns the first true answer of `condition`; raises Timeout naming `what`."""
    deadline = time.monotonic() + seconds
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() > deadline:
            raise Timeout(f"no {what} within {seconds} s")
        time.sleep(STEP)


class Screen:
    CTRL, ALT, SHIFT, SUPER, ESCAPE = "Control_L", "Alt_L", "Shift_L", "Super_L", "Escape"
    BACKSPACE = "BackSpace"

    def __init__(self, name):
        self.display = display.Display(name)
        self.root = self.display.screen().root
        self.width = self.display.screen().width_in_pixels
        self.height = self.display.screen().height_in_pixels

    def close(self):
        self.display.close()

    # Keys and pointer, through the test extension: every program sees them as the user's own.
    # A number is a keycode: the place of a key, whatever the layout makes of it.
    def _key(self, name, event):
        code = name if isinstance(name, int) else self.display.keysym_to_keycode(XK.string_to_keysym(name))
        xtest.fake_input(self.display, event, code)
        self.display.sync()

    def press(self, *names):
        for name in names:
            self._key(name, X.KeyPress)

    def release(self, *names):
        for name in reversed(names):
            self._key(name, X.KeyRelease)

    def tap(self, *names):
        """A combination: held modifiers first, the key last."""
        self.press(*names)
        self.release(*names)

    def double_press(self, name=CTRL):
        self.tap(name)
        self.tap(name)

    def type(self, letters):
        for letter in letters:
            self.tap(letter)

    def move_pointer(self, x, y):
        xtest.fake_input(self.display, X.MotionNotify, x=int(x), y=int(y))
        self.display.sync()

    def click(self, x, y):
        self.move_pointer(x, y)
        xtest.fake_input(self.display, X.ButtonPress, 1)
        xtest.fake_input(self.display, X.ButtonRelease, 1)
        self.display.sync()

    def wheel_down(self):
        xtest.fake_input(self.display, X.ButtonPress, 5)
        xtest.fake_input(self.display, X.ButtonRelease, 5)
        self.display.sync()

    def held_buttons(self):
        return self.root.query_pointer().mask & (X.Button1Mask | X.Button2Mask | X.Button3Mask)

    # Windows.
    def _property(self, window, name, kind):
        try:
            found = window.get_full_property(self.display.intern_atom(name), kind)
        except (error.BadWindow, error.BadDrawable):
            return None
        return found.value if found is not None and len(found.value) else None

    def pid_of(self, window):
        found = self._property(window, "_NET_WM_PID", Xatom.CARDINAL)
        return found[0] if found is not None else None

    def title_of(self, window):
        found = self._property(window, "_NET_WM_NAME", self.display.intern_atom("UTF8_STRING"))
        if found is None:
            found = self._property(window, "WM_NAME", X.AnyPropertyType)
        return found.decode("utf-8", "replace") if isinstance(found, bytes) else (found or "")

    def workspace(self):
        """The one that is shown, from 0."""
        found = self._property(self.root, "_NET_CURRENT_DESKTOP", Xatom.CARDINAL)
        return found[0] if found is not None else None

    def shows_desktop(self):
        """Whether all windows are put away."""
        found = self._property(self.root, "_NET_SHOWING_DESKTOP", Xatom.CARDINAL)
        return bool(found is not None and found[0])

    def active_window(self):
        found = self._property(self.root, "_NET_ACTIVE_WINDOW", Xatom.WINDOW)
        return self.display.create_resource_object("window", found[0]) if found is not None and found[0] else None

    def active_pid(self):
        window = self.active_window()
        return self.pid_of(window) if window else None

    def keyboard_pid(self):
        """The process whose window gets the keys."""
        window = self.display.get_input_focus().focus
        while not isinstance(window, int) and window.id != self.root.id:
            pid = self.pid_of(window)
            if pid:
                return pid
            try:
                window = window.query_tree().parent
            except (error.BadWindow, error.BadDrawable):
                return None
        return None

    def window_manager(self):
        """The window by which the running one is known; None without one."""
        found = self._property(self.root, "_NET_SUPPORTING_WM_CHECK", Xatom.WINDOW)
        return found[0] if found is not None else None

    def window_manager_runs(self):
        return self.window_manager() is not None

    def compositor_runs(self):
        return self.display.get_selection_owner(self.display.intern_atom("_NET_WM_CM_S0")) != X.NONE

    def geometry_of(self, window):
        """(x, y, width, height) on the screen; None when the window is gone."""
        try:
            size = window.get_geometry()
            place = window.translate_coords(self.root, 0, 0)
        except (error.BadWindow, error.BadDrawable, error.BadMatch):
            return None
        return (-place.x, -place.y, size.width, size.height)

    def windows_of(self, pid):
        """The windows of that process that can be seen, the topmost last."""
        return [window for window in self._seen(self.root) if self.pid_of(window) == pid]

    def managed_windows_of(self, pid):
        """Those of them that the window manager knows."""
        found = self._property(self.root, "_NET_CLIENT_LIST", Xatom.WINDOW)
        managed = set(found) if found is not None else set()
        return [window for window in self.windows_of(pid) if window.id in managed]

    def unmanaged_windows_of(self, pid):
        """Those of them that place themselves."""
        return [window for window in self.windows_of(pid) if self._places_itself(window)]

    @staticmethod
    def _places_itself(window):
        try:
            return window.get_attributes().override_redirect
        except (error.BadWindow, error.BadDrawable):
            return False

    def role_of(self, window):
        found = self._property(window, "WM_WINDOW_ROLE", Xatom.STRING)
        return found.decode() if isinstance(found, bytes) else found

    def states_of(self, window):
        """The names of its _NET_WM_STATE."""
        found = self._property(window, "_NET_WM_STATE", Xatom.ATOM)
        return {self.display.get_atom_name(atom) for atom in found} if found is not None else set()

    def close_window(self, window):
        """As its close button does."""
        self._ask_window_manager(window, "_NET_CLOSE_WINDOW", (X.CurrentTime, 2, 0, 0, 0))

    def activate_window(self, window):
        """As a taskbar does."""
        self._ask_window_manager(window, "_NET_ACTIVE_WINDOW", (2, X.CurrentTime, 0, 0, 0))

    def resize_window(self, window, width, height):
        window.configure(width=width, height=height)
        self.display.sync()

    def maximize_window(self, window):
        states = [self.display.intern_atom(f"_NET_WM_STATE_MAXIMIZED_{way}") for way in ("VERT", "HORZ")]
        self._ask_window_manager(window, "_NET_WM_STATE", (1, *states, 2, 0))

    def _ask_window_manager(self, window, message, words):
        event = events.ClientMessage(window=window, client_type=self.display.intern_atom(message),
                                             data=(32, words))
        self.root.send_event(event, event_mask=X.SubstructureRedirectMask | X.SubstructureNotifyMask)
        self.display.sync()

    def _seen(self, parent):
        try:
            children = parent.query_tree().children
        except (error.BadWindow, error.BadDrawable):
            return
        for child in children:
            try:
                attributes = child.get_attributes()
                if attributes.map_state == X.IsViewable and attributes.win_class != X.InputOnly:
                    yield child
            except (error.BadWindow, error.BadDrawable):
                continue
            yield from self._seen(child)

    # What is seen.
    def picture(self, area=None):
        x, y, width, height = area or (0, 0, self.width, self.height)
        left, top = max(x, 0), max(y, 0)
        right, bottom = min(x + width, self.width), min(y + height, self.height)
        raw = self.root.get_image(left, top, right - left, bottom - top, X.ZPixmap, 0xFFFFFFFF)
        return Image.frombytes("RGB", (right - left, bottom - top), raw.data, "raw", "BGRX")

    def pixel(self, x, y):
        return self.picture((x, y, 1, 1)).getpixel((0, 0))

    def cover_root(self, red, green, blue):
        """One colour behind all windows, so that a test knows what a clear corner shows."""
        self.set_wallpaper(Image.new("RGB", (self.width, self.height), (red, green, blue)))

    def set_wallpaper(self, picture):
        """Behind all windows, with a compositor and without; a picture in RGB, as large as the screen."""
        depth = self.display.screen().root_depth
        wallpaper = self.root.create_pixmap(self.width, self.height, depth)
        context = wallpaper.create_gc()
        raw = picture.convert("RGBX").tobytes("raw", "BGRX")
        rows = 65000 // self.width  # at a time: a request holds 256 KiB
        for top in range(0, self.height, rows):
            part = raw[4 * self.width * top:4 * self.width * (top + rows)]
            wallpaper.put_image(context, 0, top, self.width, len(part) // (4 * self.width), X.ZPixmap, depth, 0, part)
        self.root.change_attributes(background_pixmap=wallpaper)
        self.root.clear_area()
        self.root.change_property(self.display.intern_atom("_XROOTPMAP_ID"), Xatom.PIXMAP, 32, [wallpaper.id])
        self.display.sync()


def near(colour, wanted, tolerance=12):
    return all(abs(a - b) <= tolerance for a, b in zip(colour, wanted))


def count_near(picture, wanted, tolerance=12):
    """How many pixels have about that colour."""
    return sum(count for count, colour in picture.getcolors(1 << 24) if near(colour, wanted, tolerance))


def box_near(picture, wanted, tolerance=12):
    """(left, top, right, bottom) of the smallest box around all pixels of about that colour; None without any."""
    found = None
    for band, value in zip(picture.split(), wanted):
        part = band.point(lambda seen, value=value: 255 * (abs(seen - value) <= tolerance))
        found = ImageChops.multiply(found, part) if found else part
    return found.getbbox()
