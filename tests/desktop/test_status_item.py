"""The status icon in both kinds of panels, and in one that comes, goes and starts again."""
import io

from case import DesktopTest
from PIL import Image
from screen import count_near, near, wait_until
from session import PATIENCE
from tray import NotifierHost, XEmbedTray

SOON = 2  # seconds in which the icon is in a panel that has come
SETTINGS, UPDATE, QUIT = "Settings…", "Check for Updates…", "Quit Orlamo"
LIGHT, DARK = (230, 230, 230), (46, 46, 46)  # for a dark panel and for a light one


class StatusItem(DesktopTest):
    def start_host(self, **arguments):
        host = NotifierHost(self.session, **arguments).start()
        self.addCleanup(host.stop)
        return host

    def start_tray(self, **arguments):
        tray = XEmbedTray(self.session, **arguments).start()
        self.addCleanup(tray.stop)
        return tray

    def wait_until_gone(self, icons):
        wait_until(lambda: not icons(self.program.pid), SOON, "end of the status icon")

    def picture_of_icon(self, tray):
        """Once the icon is painted: its picture has more than one colour."""
        def painted():
            picture = self.screen.picture(tray.wait_for_icon(self.program.pid))
            return picture if len(picture.getcolors(1 << 16)) > 1 else None

        return wait_until(painted, SOON, "painted icon")

    def assert_colours(self):
        self.start_program()
        for background, colors, ink in ((0x202020, None, LIGHT), (0xf0f0f0, None, DARK), (0x0000ff, None, LIGHT),
                                        (0x00ff00, None, DARK), (0x202020, 4 * (90, 200, 120), (90, 200, 120)),
                                        (0xf0f0f0, (90, 200), DARK)):
            tray = XEmbedTray(self.session, background, colors).start()
            try:
                wait_until(lambda: count_near(self.picture_of_icon(tray), ink) > 60, SOON, f"ink on {background:x}")
            finally:
                tray.stop()

    def test_a_panel_on_the_bus_has_the_icon_and_its_four_entries_which_do_their_work(self):
        host = self.start_host()
        program = self.start_program()
        item = host.wait_for_item(program.pid)
        self.assertEqual(("app.orlamo.Orlamo", "ApplicationStatus", "Active"),
                         tuple(item.property(name) for name in ("Id", "Category", "Status")))
        sizes = [(width, height) for width, height, data in item.property("IconPixmap")
                 if len(data) == 4 * width * height and any(data[0::4])]
        self.assertLessEqual({(22, 22), (48, 48)}, set(sizes))
        # Alpha, red, green, blue; the colour is whole also where it is thin.
        pixels = [data[i:i + 4] for _, _, data in item.property("IconPixmap") for i in range(0, len(data), 4)]
        self.assertTrue(all(near(pixel[1:], LIGHT) for pixel in pixels if pixel[0] > 40))

        entries = item.entries()
        self.assertEqual([SETTINGS, UPDATE, None, QUIT], [entry.get("label") for entry in entries])
        self.assertEqual("separator", entries[2]["type"])
        self.assertEqual([True, False, False, True], ["icon-data" in entry for entry in entries])
        self.assertGreater(Image.open(io.BytesIO(bytes(entries[0]["icon-data"]))).getextrema()[3][1], 200)

        item.click(SETTINGS)
        program.wait_for_preferences()
        windows = len(self.screen.managed_windows_of(program.pid))
        item.click(UPDATE)
        wait_until(lambda: len(self.screen.managed_windows_of(program.pid)) > windows, PATIENCE, "word on updates")
        item.click(QUIT)
        self.assertEqual(0, program.process.wait(PATIENCE))

    def test_the_icon_is_soon_in_a_panel_that_comes_late_or_starts_again(self):
        program = self.start_program()
        host = self.start_host(has_host=False)
        self.settle()
        self.assertEqual([], host.items_of(program.pid))
        host.set_host(True)
        host.wait_for_item(program.pid, SOON)
        host.restart()
        self.assertEqual(SETTINGS, host.wait_for_item(program.pid, SOON).entries()[0]["label"])

    def test_a_click_on_the_icon_in_a_notification_area_opens_the_menu(self):
        tray = self.start_tray()
        program = self.start_program()
        tray.click(tray.wait_for_icon(program.pid))
        wait_until(lambda: self.screen.unmanaged_windows_of(program.pid), SOON, "menu")
        self.screen.tap("Down")
        self.screen.tap("Return")
        program.wait_for_preferences()
        tray.restart()
        tray.wait_for_icon(program.pid, SOON)

    def test_the_icon_is_in_one_place_at_a_time(self):
        program = self.start_program()
        tray = self.start_tray()
        tray.wait_for_icon(program.pid, SOON)
        host = self.start_host()
        host.wait_for_item(program.pid, SOON)
        self.wait_until_gone(tray.icon_areas)
        host.set_host(False)
        tray.wait_for_icon(program.pid, SOON)
        self.wait_until_gone(host.items_of)

    def test_the_icon_in_a_notification_area_has_the_colour_that_its_panel_needs(self):
        self.assert_colours()

    def test_hiding_the_icon_takes_it_out_and_showing_it_brings_it_back(self):
        host = self.start_host()
        program = self.start_program()
        host.wait_for_item(program.pid)
        program.write_settings({**program.settings(), "isHiddenStatusBar": True})
        self.wait_until_gone(host.items_of)
        program.write_settings({**program.settings(), "isHiddenStatusBar": False})
        host.wait_for_item(program.pid, SOON)


class CompositedTray(DesktopTest):
    session_arguments = {"compositor": True}
    picture_of_icon = StatusItem.picture_of_icon

    def test_the_icon_has_that_colour_too_before_a_compositor_has_shown_the_panel(self):
        StatusItem.assert_colours(self)
