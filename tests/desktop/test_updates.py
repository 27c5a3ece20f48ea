"""Looking for updates with the whole program: the launch, and a feed that does not answer."""
import pathlib
import shutil
import socket

from case import PROGRAM, DesktopTest
from program import Program
from screen import wait_until

NO_FEED = "<key>SUFeedURL</key>\n\t<string></string>"


class Updates(DesktopTest):
    def install_with_feed(self, address):
        """A copy of the program whose information names that feed; the program's path."""
        folder = self.session.folder / "installed"
        shutil.copytree(pathlib.Path(PROGRAM).parent / "resources", folder / "resources")
        information = folder / "resources" / "Info.plist"
        text = information.read_text()
        self.assertIn(NO_FEED, text)
        information.write_text(text.replace(NO_FEED, NO_FEED.replace("><", f">{address}<")))
        return shutil.copy(PROGRAM, folder)

    def start(self, path, **arguments):
        self.program = Program(self.session, path, keeps_preferences=True, **arguments)
        self.program.wait_for_preferences()

    def test_a_feed_that_does_not_answer_is_said_in_a_window_and_asked_again_after_five_days_only(self):
        path = self.install_with_feed("https://127.0.0.1:1/feed.xml")
        self.start(path)
        wait_until(lambda: len(self.screen.managed_windows_of(self.program.pid)) == 2, 5, "word on the update")
        self.program.log.wait_for("update")
        self.program.assert_alive()
        self.program.stop()
        self.start(path)
        self.assertIsNotNone(self.program.log.find("现在是否是应用程序更新的时候？ false"))
        self.settle()
        self.assertEqual(1, len(self.screen.managed_windows_of(self.program.pid)))

    def test_a_result_that_comes_late_leaves_the_keyboard_where_the_user_types(self):
        with socket.create_server(("127.0.0.1", 0)) as server:
            self.start(self.install_with_feed(f"https://127.0.0.1:{server.getsockname()[1]}/feed.xml"))
            connection, _ = server.accept()
            editor = self.session.open_editor("mousepad")
            connection.close()
            self.program.log.wait_for("update")
            self.settle()
            self.assertTrue(editor.is_in_front())

    def test_without_a_feed_a_launch_that_is_due_for_a_check_shows_nothing(self):
        self.start(PROGRAM, settings={"LastUpdateCheckDate": "2020-01-01T00:00:00+0000"})
        self.assertIsNotNone(self.program.log.find("现在是否是应用程序更新的时候？ true"))
        self.settle()
        self.assertEqual(1, len(self.screen.managed_windows_of(self.program.pid)))
