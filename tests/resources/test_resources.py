"""The resources are at one with themselves and with the code that asks for them."""
import collections
import os
import pathlib
import plistlib
import re
import unittest
import xml.etree.ElementTree

ROOT = pathlib.Path(__file__).resolve().parents[2]
RESOURCES = ROOT / "resources"
LANGUAGES = sorted(file.stem.split("_", 1)[1] for file in RESOURCES.glob("Localizable_*.ts"))
INTERFACES = {file.name: xml.etree.ElementTree.parse(file) for file in RESOURCES.glob("*.ui")}
ROOMS = ("core", "panel", "shell", "permissions", "preferences", "update", "platform", "app")
SOURCES = {file: file.read_text() for room in ROOMS for kind in ("*.h", "*.cpp") for file in (ROOT / room).rglob(kind)}
# The rows of the desktop's shortcuts: (ID, their headings and name).
ROWS = [(number, name.split("//")) for number, name in
        re.findall(r'"(\d+):([^"]+)"', SOURCES[ROOT / "core/SystemShortcutTable.cpp"])]
VERSION = os.environ.get("ORLAMO_VERSION") or re.search(r"project\(orlamo VERSION ([\d.]+)",
                                                        (ROOT / "CMakeLists.txt").read_text())[1]
# Each language's own way to write, where the keys of another one slip in: a space before : ; ? ! » that a line may be
# broken at, three dots for one sign, punctuation of half width after Japanese or Chinese letters.
HALF_WIDTH = r"|[^\x00-\x7f] ?[.,:;?!()]"
STRAYS = {"fr": r"""|'|"|[ \w]([:;?!]|»)|« """, "de": r"""|'|"|\w…| [:;?!]""", "ja": HALF_WIDTH, "zh_CN": HALF_WIDTH}


def messages(language):
    """(key, text) of all that the table has."""
    root = xml.etree.ElementTree.parse(RESOURCES / f"Localizable_{language}.ts").getroot()
    assert root.get("language") == language
    return [(message.findtext("source"), message.findtext("translation")) for message in root.iter("message")]


def marks_of(text):
    """The places for values, the line breaks and the markup."""
    return sorted(re.findall(r"%[0-9$]*@|\n|<[^>]+>|&[a-z]+;", text))


class StringTables(unittest.TestCase):
    tables = {language: dict(messages(language)) for language in LANGUAGES}
    english = tables["en"]

    def assert_known(self, keys, where):
        self.assertEqual(set(), set(keys) - self.english.keys(), where)

    def test_every_language_has_each_english_key_once_with_its_marks(self):
        self.assertGreater(len(self.tables), 1)
        once = collections.Counter(list(self.english))
        for language, table in self.tables.items():
            self.assertEqual(once, collections.Counter(key for key, text in messages(language) if text), language)
            for key, text in self.english.items():
                self.assertEqual(marks_of(text), marks_of(table[key]), (language, key))

    def test_a_heading_without_a_slash_stays_a_category_and_one_with_a_slash_stays_below_it(self):
        for language, table in self.tables.items():
            for _, (category, *rest) in ROWS:
                self.assertNotIn("/", table.get(category, ""), language)
                if len(rest) > 1:
                    self.assertEqual(1, table.get(f"{category}/{rest[0]}", "/").count("/"), (language, rest))

    def test_every_language_keeps_to_its_typography(self):
        for language, table in self.tables.items():
            stray = re.compile(r"\.\.\." + STRAYS.get(language, ""))
            self.assertEqual([], [text for text in table.values() if stray.search(text)], language)

    def test_every_text_of_the_panel_and_of_the_interface_files_has_a_key(self):
        """A text of an interface file that is no key says notr="true"."""
        self.assertEqual(44, len(ROWS))
        self.assert_known({"System"} | {part for _, parts in ROWS for part in parts}, "panel")
        self.assertTrue(INTERFACES)
        for name, tree in INTERFACES.items():
            keys = {text.text for text in tree.iter("string") if text.text and text.get("notr") != "true"}
            self.assert_known(keys, name)

    def test_every_key_of_the_code_is_there(self):
        """A literal that begins like one of the table's dotted keys is meant to be one."""
        beginnings = {key.split(".")[0] for key in self.english if "." in key and " " not in key}
        count = 0
        for file, text in SOURCES.items():
            keys = set(re.findall(r'(?:NSLocalizedString|localizedString)\("([^"]+)"', text))
            keys |= {literal for literal in re.findall(r'"([A-Za-z_]+\.[A-Za-z_.]+)"', text)
                     if ".json" not in literal and literal.split(".")[0] in beginnings}
            self.assert_known(keys, file)
            count += len(keys)
        self.assertGreater(count, 50)


class PropertyLists(unittest.TestCase):
    def test_the_default_hot_keys_hold_a_complete_entry_for_each_id_that_is_switched_off(self):
        entries = plistlib.loads((RESOURCES / "com.apple.symbolichotkeys.plist").read_bytes())["AppleSymbolicHotKeys"]
        self.assertEqual({number for number, _ in ROWS}, set(entries))
        for number, entry in entries.items():
            self.assertIs(False, entry["enabled"], number)
            self.assertEqual(3, len(entry["value"]["parameters"]), number)

    def test_the_information_names_the_version_that_is_built_the_publishers_pages_and_no_feed(self):
        information = plistlib.loads((RESOURCES / "Info.plist").read_bytes())
        self.assertEqual((VERSION, "app.orlamo.Orlamo", ""), tuple(information[key] for key in (
            "CFBundleShortVersionString", "CFBundleIdentifier", "SUFeedURL")))
        pages = re.findall(r'std::string_view \w+ = "(\w+)"', SOURCES[ROOT / "shell/pages/WebPages.h"])
        self.assertEqual(8, len(pages))
        for page in pages:
            self.assertTrue(information["WebPages"][page].startswith("https://orlamo.example/"), page)


class Images(unittest.TestCase):
    def test_there_is_one_for_every_name(self):
        of_interfaces = {text.text for tree in INTERFACES.values()
                         for text in tree.iterfind(".//property[@name='image']/string")}
        of_theme = set(re.findall(r"url\(image:([^)]+)\.svg\)", (RESOURCES / "theme.qss").read_text()))
        of_applications = set(re.findall(r'"(app\.orlamo\.\w+)"',
                                         SOURCES[ROOT / "preferences/FreeAppsViewController.cpp"]))
        self.assertTrue(of_interfaces and of_theme)
        self.assertEqual(9, len(of_applications))
        named = {"menuBarIcon", "gear", "escape", "General1", "Learn1", "freeapp1", "contactus2"}
        for name in named | of_interfaces | of_theme | of_applications:
            self.assertIn("<svg", (RESOURCES / f"{name}.svg").read_text(), name)
