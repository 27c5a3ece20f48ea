"""Several monitors, and how many pixels a point has on them."""
import subprocess

from case import DesktopTest
from program import CELL
from screen import box_near, wait_until

BLUE = (10, 132, 255)
LEFT = ("left", 1440, 900, 0, 0)
RIGHT = ("right", 1280, 1100, 1440, 0)


class Screens(DesktopTest):
    session_arguments = {"size": "2720x1100x24"}

    def arrange(self, *monitors):
        """The first one is the primary."""
        self.xrandr("--delmonitor", "right")
        for number, (name, width, height, x, y) in enumerate(monitors):
            self.xrandr("--setmonitor", ("" if number else "*") + name,
                        f"{width}/{width // 4}x{height}/{height // 4}+{x}+{y}", "screen" if name == "left" else "none")

    def xrandr(self, *words):
        subprocess.run(["xrandr", *words], env=self.session.environment, capture_output=True, check=False)

    def assert_in_the_middle(self, monitor, size):
        _, width, height, x, y = monitor
        expected = (x + (width - size[0]) / 2, y + (height - size[1]) / 2, *size)

        def is_there():
            area = self.program.panel_area()
            return area and all(abs(a - b) <= 2 for a, b in zip(area, expected))

        wait_until(is_there, 5, f"panel at {expected}, but at {self.program.panel_area()}")
        return self.program.wait_until_still()

    def title_under(self, x, y):
        since = self.program.log.mark()
        self.screen.move_pointer(x, y)
        self.program.log.wait_for("开始绘制", since)
        return next((match[1] for match in map(CELL.search, self.program.log.lines(since)) if match), None)

    def assert_hit_where_it_is_painted(self, area, title):
        self.program.hover(title)
        wait_until(lambda: self.blue_box(area), 5, "blue cell")
        self.program.wait_until_still()
        left, top, right, bottom = (edge + area[index % 2] for index, edge in enumerate(self.blue_box(area)))
        x, y = (left + right) // 2, (top + bottom) // 2
        for px, py, isInside in ((left, y, True), (right - 1, y, True), (x, top, True), (x, bottom - 1, True),
                                 (left - 1, y, False), (right, y, False), (x, top - 1, False), (x, bottom, False)):
            self.assertEqual(isInside, self.title_under(px, py) == title, (title, px, py))

    def blue_box(self, area):
        return box_near(self.screen.picture(area), BLUE)

    def close_by_a_click_at(self, *point):
        self.screen.click(*point)
        self.program.wait_until_closed()

    def place(self, window, x, y):
        window.configure(x=x, y=y, width=300, height=200)
        self.screen.display.sync()
        wait_until(lambda: abs(self.screen.geometry_of(window)[0] - x) < 20, 5, f"window at {x}")

    def test_the_panel_opens_where_the_user_works_and_follows_when_that_screen_goes(self):
        self.arrange(LEFT, RIGHT)
        self.start_program(environment={"QT_SCREEN_SCALE_FACTORS": "left=1;right=1.25"})
        editor = self.session.open_editor("mousepad")
        window = self.screen.active_window()
        self.place(window, 100, 100)
        self.program.open_panel()
        points = self.program.panel_area()[2:]
        self.assert_in_the_middle(LEFT, points)
        self.close_by_a_click_at(1439, 899)

        self.place(window, 1600, 100)
        self.screen.activate_window(window)
        wait_until(editor.is_in_front, 5, "editor in front")
        self.wait_out_the_double_press()
        self.program.open_panel()
        area = self.assert_in_the_middle(RIGHT, [round(size * 1.25) for size in points])
        for title in ("New", "Menubar"):
            self.assert_hit_where_it_is_painted(area, title)
        self.arrange(LEFT)
        self.assert_in_the_middle(LEFT, points)


class SmallScreen(DesktopTest):
    """At a scale of 2 the panel is larger in both directions."""
    session_arguments = {"size": "500x540x24"}
    program_environment = {"QT_SCALE_FACTOR": "2"}

    def test_a_panel_larger_than_the_screen_keeps_its_size_and_what_is_seen_of_it_works(self):
        self.start_program()
        editor = self.session.open_editor("mousepad")
        x, y, width, height = self.program.open_panel()
        self.assertGreater(width, 500)
        self.assertGreater(height, 540)
        self.assertAlmostEqual(250, x + width / 2, delta=2)
        self.assertAlmostEqual(270, y + height / 2, delta=2)
        self.screen.click(*self.program.hover("Select All"))
        self.program.wait_until_closed()
        wait_until(editor.is_in_front, 5, "editor in front")
        self.screen.type("x")
        wait_until(lambda: editor.text() == "x", 5, "letter in place of the selected text")
