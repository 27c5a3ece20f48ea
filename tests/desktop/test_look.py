"""What the panel looks like on the screen."""
from math import hypot

from case import DesktopTest
from PIL import Image
from screen import box_near, count_near, near, wait_until
from Xlib import Xatom

RADIUS = 30
BEHIND = (200, 40, 120)
LIGHTEST = 70  # of the panel, where white is to be read on it, also on a bar that lies over it
TEAL = (106, 196, 220)
BLUE = (10, 132, 255)


class Look(DesktopTest):
    def setUp(self):
        super().setUp()
        self.start_program()

    def assert_clean_and_dark(self, area):
        x, y, width, height = area
        self.assertGreaterEqual(min(x, y), 0)
        self.assertLessEqual((x + width, y + height), (self.screen.width, self.screen.height))
        right, bottom = x + width - 1, y + height - 1
        for corner in ((x, y), (right, y), (x, bottom), (right, bottom)):
            self.assertEqual(BEHIND, self.screen.pixel(*corner), corner)
        # Just inside the curve, and in the middle of each edge: the panel itself.
        inside = [(x + 12, y + 12), (right - 12, y + 12), (x + 12, bottom - 12), (right - 12, bottom - 12),
                  (x + width // 2, y + 3), (x + width // 2, bottom - 3), (x + 3, y + height // 2)]
        for point in inside:
            self.assertFalse(near(self.screen.pixel(*point), BEHIND), point)
        self.assertLess(self.mean_light(area), 110)
        self.assertLessEqual(max(self.strip(area)), LIGHTEST)

    def strip(self, area):
        """The light of a row of pixels in which the panel has nothing but its background, from edge to edge."""
        x, y, width, height = area
        return self.screen.picture((x + 30, y + height - 8, width - 60, 1)).convert("L").tobytes()

    def mean_light(self, area):
        histogram = self.screen.picture(area).convert("L").histogram()
        return sum(value * count for value, count in enumerate(histogram)) / sum(histogram)

    def open_beside_the_editor(self):
        """The editor's window is moved away, so that all four corners lie over the root window."""
        self.session.open_editor("mousepad")
        self.screen.active_window().configure(x=500, y=300, width=300, height=200)
        self.screen.display.sync()
        return self.program.open_panel()

    def test_the_panel_is_dark_with_clean_round_corners(self):
        self.assert_clean_and_dark(self.open_beside_the_editor())

    def test_the_panel_is_dark_with_clean_round_corners_under_a_compositor(self):
        self.session.start_compositor()
        self.assert_clean_and_dark(self.open_beside_the_editor())

    def test_the_panel_is_dark_with_clean_round_corners_without_blur(self):
        self.program.write_settings({**self.program.settings(), "isBlurStyle": False})
        self.assert_clean_and_dark(self.open_beside_the_editor())

    def strip_over_black_and_white(self):
        """The screen is black to the left of the panel's middle and white to the right."""
        wallpaper = Image.new("L", (self.screen.width, self.screen.height))
        wallpaper.paste(255, (self.screen.width // 2, 0, self.screen.width, self.screen.height))
        self.screen.set_wallpaper(wallpaper)
        strip = self.strip(self.open_beside_the_editor())
        middle = len(strip) // 2
        dark, light = strip[0], strip[-1]
        self.assertEqual(sorted(strip), list(strip))
        self.assertLess(dark + 20, light)
        self.assertLessEqual(light, LIGHTEST)
        self.assertEqual(({dark}, {light}), (set(strip[:15]), set(strip[-15:])))
        self.assertAlmostEqual(dark + light, strip[middle - 1] + strip[middle], delta=2)
        return strip, dark, light, middle

    def test_what_lies_behind_is_seen_blurred_in_its_place(self):
        strip, dark, light, middle = self.strip_over_black_and_white()
        self.assertLess(dark + 5, strip[middle - 20])
        self.assertLess(strip[middle + 20], light - 5)

    def test_a_compositor_that_can_blur_is_asked_to_and_what_it_blends_is_tinted(self):
        self.session.start_compositor()
        blur = self.screen.display.intern_atom("_KDE_NET_WM_BLUR_BEHIND_REGION")
        self.screen.root.change_property(blur, Xatom.CARDINAL, 32, [0])  # as one says that can
        strip, dark, light, middle = self.strip_over_black_and_white()
        self.assertEqual([dark, light], [strip[middle - 1], strip[middle]])
        asked = self.program.panel().get_full_property(blur, Xatom.CARDINAL).value
        _, _, width, height = self.program.panel_area()
        self.assertEqual([(self.indent(min(row, height - 1 - row)), row) for row in range(height)],
                         [(x, row) for x, y, across, down in zip(*[iter(asked)] * 4) for row in range(y, y + down)
                          if x + across == width - x])

    @staticmethod
    def indent(row):
        """How many pixels of that row from an edge lie wholly outside of the round corners."""
        return next(x for x in range(RADIUS) if hypot(RADIUS - 1 - x, max(RADIUS - 1 - row, 0)) < RADIUS)

    def test_held_modifiers_turn_the_matching_cells_teal_until_they_are_let_go(self):
        self.session.open_editor("mousepad")
        area = self.program.open_panel()
        self.screen.move_pointer(0, 0)
        quiet = self.program.wait_until_still() and self.screen.picture(area)
        self.assertEqual(0, count_near(quiet, TEAL))
        self.wait_out_the_double_press()

        self.screen.press(self.screen.CTRL)
        wait_until(lambda: self.teal(area), 5, "teal cell for Ctrl")
        self.program.wait_until_still()
        with_ctrl = self.teal(area)
        self.screen.press(self.screen.SHIFT)
        wait_until(lambda: self.teal(area) not in (0, with_ctrl), 5, "other teal cells for Ctrl and Shift")
        self.program.wait_until_still()
        self.assertLess(self.teal(area), with_ctrl)
        self.screen.release(self.screen.CTRL, self.screen.SHIFT)
        wait_until(lambda: not self.teal(area), 5, "end of teal")
        self.program.wait_until_still()
        self.assertEqual(quiet.tobytes(), self.screen.picture(area).tobytes())

    def teal(self, area):
        return count_near(self.screen.picture(area), TEAL)

    def test_the_cell_under_the_pointer_and_no_other_is_underlaid_in_blue(self):
        self.session.open_editor("mousepad")
        area = self.program.open_panel()
        self.assertEqual(0, count_near(self.screen.picture(area), BLUE))
        x, y = self.program.hover("Select All")
        wait_until(lambda: self.blue_box(area), 5, "blue cell")
        self.program.wait_until_still()
        left, top, right, bottom = self.blue_box(area)
        self.assertTrue(left <= x - area[0] < right and top <= y - area[1] < bottom)
        self.assertLessEqual(bottom - top, 34)
        self.screen.move_pointer(0, 0)
        wait_until(lambda: not self.blue_box(area), 5, "end of blue")

    def blue_box(self, area):
        return box_near(self.screen.picture(area), BLUE)
