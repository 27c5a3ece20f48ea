"""The settings file, as the user and other programs see it."""
import os
import stat

from case import DesktopTest
from program import SHOWS


class Settings(DesktopTest):
    def test_settings_survive_a_restart_in_a_file_only_the_user_can_read(self):
        program = self.start_program()
        self.assertEqual("Command", program.settings()["doubleModifierKey"])
        self.assertIs(True, program.settings()["isBlurStyle"])
        self.assertEqual(0o600, stat.S_IMODE(program.settings_file.stat().st_mode))
        program.write_settings({**program.settings(), "doubleModifierKey": "Shift", "CornerRadius": 12})
        program.stop()

        program.start()
        self.assertEqual("Shift", program.settings()["doubleModifierKey"])
        self.assertEqual(12, program.settings()["CornerRadius"])
        self.session.open_editor("mousepad")
        program.open_panel(self.screen.SHIFT)
        self.assertEqual(0o600, stat.S_IMODE(program.settings_file.stat().st_mode))

    def test_a_settings_file_that_is_garbage_gives_a_log_line_and_the_defaults(self):
        folder = self.session.config / "orlamo"
        folder.mkdir()
        (folder / "settings.json").write_bytes(b"{\"doubleModifierKey\": \xff\x00 no")
        program = self.start_program()
        self.assertIsNotNone(program.log.find("settings.json"))
        self.session.open_editor("mousepad")
        program.open_panel()

    def test_a_settings_file_that_turns_to_garbage_is_said_once_and_the_program_lives_on(self):
        program = self.start_program()
        self.session.open_editor("mousepad")
        since = program.log.mark()
        program.settings_file.write_bytes(b"\x00garbage")
        self.screen.double_press()
        program.log.wait_for("settings.json", since)
        program.settings_file.unlink()
        program.write_settings({"doubleModifierKey": "Command"})
        self.wait_out_the_double_press()
        program.open_panel()
        self.assertLessEqual(sum(SHOWS in line for line in program.log.lines()), 2)

    def test_a_pipe_or_a_folder_where_the_settings_file_should_be_is_said_and_not_written_over(self):
        place = self.session.config / "orlamo" / "settings.json"
        place.parent.mkdir()
        self.session.open_editor("mousepad")
        for make, remove in ((os.mkfifo, os.unlink), (os.mkdir, os.rmdir)):
            make(place)
            before = place.stat()
            program = self.start_program()
            self.assertIsNotNone(program.log.find("settings.json"))
            program.open_panel()
            program.stop()
            self.assertTrue(os.path.samestat(before, place.stat()))
            remove(place)
            self.wait_out_the_double_press()
