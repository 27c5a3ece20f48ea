"""Starting the program: the order of its launch, its first window, and what may be missing."""
import shutil
import time

from case import DesktopTest
from program import LAUNCHED
from screen import wait_until

ORDER = ("应用程序更新检查已完成，时间：", "SettingsController 即将加入窗口时", "这是第一次启动应用程序，打印默认值", "已开启辅助功能",
         "launch: trigger monitors", "launch: click monitor", "launch: status item", LAUNCHED)


class Launch(DesktopTest):
    def test_the_launch_takes_its_steps_in_order_and_shows_the_preferences_in_the_middle(self):
        program = self.start_program(keeps_preferences=True)
        lines = program.log.lines()
        found = [next(i for i, line in enumerate(lines) if text in line) for text in ORDER]
        self.assertEqual(sorted(found), found)
        self.assertEqual(50, program.settings()["NSStatusItem Preferred Position Item-0"])
        window = program.wait_for_preferences()
        wait_until(lambda: self.screen.active_pid() == program.pid, 5, "focus for the preferences")
        x, y, width, height = self.screen.geometry_of(window)
        self.assertLess(abs(x + width / 2 - self.screen.width / 2), 8)
        self.assertLess(abs(y + height / 2 - self.screen.height / 2), 30)
        self.assertLessEqual({"_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"}, self.screen.states_of(window))

    def test_the_next_launch_is_not_the_first_and_leaves_the_settings(self):
        program = self.start_program()
        program.write_settings({**program.settings(), "isBlurStyle": False})
        program.stop()
        program.start()
        self.assertIsNotNone(program.log.find("这不是第一次启动应用程序"))
        self.assertIs(False, program.settings()["isBlurStyle"])
        self.assertIsNotNone(program.log.find("现在是否是应用程序更新的时候？ false"))

    def test_over_its_own_preferences_the_trigger_opens_no_panel(self):
        program = self.start_program(keeps_preferences=True)
        program.wait_for_preferences()
        wait_until(lambda: self.screen.active_pid() == program.pid, 5, "focus for the preferences")
        self.screen.double_press()
        program.log.wait_for("双击command....")
        self.settle()
        self.assertIsNone(program.panel())

    def test_the_panel_opens_over_an_editor_while_the_preferences_stay_behind_it(self):
        program = self.start_program(keeps_preferences=True)
        program.wait_for_preferences()
        editor = self.session.open_editor("mousepad")
        program.open_panel()
        self.screen.tap(self.screen.ESCAPE)
        program.wait_until_closed()
        wait_until(editor.is_in_front, 5, "focus back in the editor")
        self.assertIsNotNone(program.preferences())


    def test_an_idle_program_does_not_wake_up(self):
        program = self.start_program()
        self.session.open_editor("mousepad")
        self.settle()
        before = program.wake_ups()
        time.sleep(5)
        self.assertLessEqual(program.wake_ups() - before, 3)


class SmallScreen(DesktopTest):
    session_arguments = {"size": "1024x560x24"}

    def test_the_preferences_fit_on_a_small_screen(self):
        window = self.start_program(keeps_preferences=True).wait_for_preferences()
        x, y, width, height = self.screen.geometry_of(window)
        self.assertGreater(y, 10, "room for the title bar")
        self.assertGreaterEqual(x, 0)
        self.assertLessEqual((x + width, y + height), (self.screen.width, self.screen.height))


class PoorSession(DesktopTest):
    def assert_starts_and_ends(self, **arguments):
        program = self.start_program(keeps_preferences=True, **arguments)
        program.wait_for_preferences()
        program.close_preferences()
        program.assert_alive()
        return program

    def test_without_a_session_bus_the_program_starts_and_says_so(self):
        program = self.assert_starts_and_ends(
            environment={"DBUS_SESSION_BUS_ADDRESS": f"unix:path={self.session.folder}/nowhere"})
        self.assertIsNotNone(program.log.find("bus"))

    def test_with_a_home_that_cannot_be_written_the_program_starts_and_says_so(self):
        # A file in the folder's place: also root, for whom no folder is read-only, cannot write there.
        shutil.rmtree(self.session.config)
        self.session.config.write_text("")
        program = self.assert_starts_and_ends()
        self.assertIsNotNone(program.log.find("settings: "))
