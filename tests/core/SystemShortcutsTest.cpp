#include "core/SystemShortcuts.h"

#include <gmock/gmock.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <functional>
#include <limits>
#include <utility>

#include "tests/doubles/FakeDesktop.h"

namespace orlamo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Array = PropertyList::Array;
using Dictionary = PropertyList::Dictionary;

PropertyList hotKey(bool enabled, std::int64_t code, std::int64_t mask = 0) {
    return FakeSystemPreferences::hotKey(enabled, code, mask);
}
PropertyList withParameters(PropertyList parameters) {
    return Dictionary{{"enabled", true}, {"value", Dictionary{{"parameters", std::move(parameters)}}}};
}

struct SystemShortcuts : testing::Test, FakeDesktop {
    SystemShortcuts() {
        std::ofstream(file) << list;
        bundle.resources["com.apple.symbolichotkeys.plist"] = file;
    }
    ~SystemShortcuts() override { std::remove(file.c_str()); }

    void setDefaults(Dictionary entries) {
        parser.result.value = Dictionary{{"AppleSymbolicHotKeys", std::move(entries)}};
    }
    // Headings as they are, records as "Title|Modifier|key|code|mask".
    std::vector<std::string> loaded() {
        std::vector<std::string> lines;
        std::size_t next = 0;
        for (const SystemShortcutEntry& entry : loadSystemShortcuts()) {
            if (const auto* const heading = std::get_if<std::string>(&entry)) {
                lines.push_back(*heading);
                continue;
            }
            const auto& record = std::get<SystemShortcutRecord>(entry);
            const SystemKeyCombo combo = systemKeyCombos.at(next++);
            lines.push_back(*record["Title"] + "|" + *record["Modifier"] + "|" + *record["key"] + "|" +
                            std::to_string(combo.keycode) + "|" + std::to_string(combo.modifierFlags));
        }
        EXPECT_EQ(systemKeyCombos.size(), next);
        return lines;
    }

    const std::string list = "the shipped list" + std::string(20'000, '.');
    // Of this process alone, as tests run side by side.
    const std::string file = testing::TempDir() + "orlamo_hot_keys_" + std::to_string(getpid());
};

TEST_F(SystemShortcuts, AllRowsStandUnderTheirHeadings) {
    Dictionary all;
    for (int id = 1; id < 200; ++id) all[std::to_string(id)] = hotKey(true, 0, 0x100000);
    preferences.setHotKeys(all);
    std::string shape;  // a line for each heading, with a dot for each record under it
    for (const std::string& line : loaded()) shape += line.ends_with("|⌘|A|0|1048576") ? "." : "\n" + line;
    EXPECT_EQ(shape,
              "\nLaunchpad & Dock..\nMission Contrl......\nMission Contrl/Mission Contrl......\nKeyboard..........."
              "\nInput Sources..\nScreen Shots....\nSpotlight..\nAccessibility\nAccessibility/Zoom....."
              "\nAccessibility/Contrast.....\nApp Shortcuts\nApp Shortcuts/All Applications.");
    EXPECT_EQ(log.lines.size(), 44U);
    EXPECT_EQ(log.lines.front(), "有直:52");
    EXPECT_THAT(parser.parsed, IsEmpty());
    EXPECT_EQ(loadSystemShortcuts(), loadSystemShortcuts());
    EXPECT_EQ(systemKeyCombos.size(), 44U);
}

TEST_F(SystemShortcuts, WithoutPreferencesThereIsNoCatalogue) {
    setDefaults({{"64", hotKey(true, 49)}});
    for (const PropertyList& value : {PropertyList(), PropertyList(Array{}), PropertyList(std::string("64"))}) {
        preferences.setHotKeys(value);
        systemKeyCombos = {{1, 1}};
        EXPECT_THAT(loadSystemShortcuts(), IsEmpty());
        EXPECT_THAT(systemKeyCombos, IsEmpty());
    }
    EXPECT_THAT(log.lines, IsEmpty());
    EXPECT_THAT(preferences.synchronized, testing::Each("com.apple.symbolichotkeys"));
}

TEST_F(SystemShortcuts, TwoRowsCanShareAHotKeyAndASurvivorBringsItsHeadings) {
    preferences.setHotKeys(Dictionary{{"64", hotKey(true, 49, 0x100000)}, {"81", hotKey(true, 124, 0x840000)}});
    EXPECT_THAT(loaded(), ElementsAre("Mission Contrl", "Mission Contrl/Mission Contrl",
                                      "Mission Contrl//Mission Contrl//Move right a space|⌃|→|124|8650752", "Spotlight",
                                      "Spotlight//Show Spotlight search|⌘|SPACE|49|1048576",
                                      "Spotlight//Show Finder search window|⌘|SPACE|49|1048576"));
}

TEST_F(SystemShortcuts, OnlyAnUnusableEntryIsReplacedByTheDefault) {
    setDefaults({{"52", hotKey(true, 2)}});
    const PropertyList value = *hotKey(true, 0).at("value");
    const std::int64_t one = 1;
    const char* const replaced = "||D|2|0";
    const char* const dropped = nullptr;
    using Limits = std::numeric_limits<std::int64_t>;
    // The entry and what is shown of it: modifier, key, code, mask.
    const std::pair<PropertyList, const char*> cases[] = {
        {hotKey(true, 0), "||A|0|0"},
        {hotKey(false, 0), replaced},
        {Array{}, replaced},
        {Dictionary{{"value", value}}, replaced},
        {Dictionary{{"enabled", one}, {"value", value}}, replaced},
        {Dictionary{{"enabled", true}}, replaced},
        {Dictionary{{"enabled", true}, {"value", Array{}}}, replaced},
        {Dictionary{{"enabled", true}, {"value", Dictionary{}}}, replaced},
        {Dictionary{{"enabled", true}, {"value", Dictionary{{"type", one}}}}, dropped},
        {withParameters(std::string("0")), dropped},
        {withParameters(Array{}), dropped},
        {withParameters(Array{one}), dropped},
        {withParameters(Array{one, one}), "||S|1|0"},
        {withParameters(Array{one, true, one}), dropped},
        {withParameters(Array{one, 1.0, one}), dropped},
        {withParameters(Array{one, one, std::string("131072")}), "||S|1|0"},
        {hotKey(true, 1, -1), "|⌃⌥⇧⌘|S|1|-1"},
        {hotKey(true, 65535), dropped},
        {hotKey(true, -1), "||nil|-1|0"},
        {hotKey(true, Limits::min()), dropped},
        {hotKey(true, Limits::max()), dropped},
    };
    for (const auto& [entry, shown] : cases) {
        preferences.setHotKeys(Dictionary{{"52", entry}});
        std::vector<std::string> expected;
        if (shown != dropped) {
            expected = {"Launchpad & Dock", std::string("Launchpad & Dock//Turn Dock Hiding On/Off") + shown};
        }
        EXPECT_EQ(loaded(), expected) << entry.description();
    }
}

TEST_F(SystemShortcuts, TheDefaultListIsReadForEveryRowThatNeedsIt) {
    preferences.setHotKeys(Dictionary{});
    setDefaults({{"52", hotKey(true, 2)}, {"64", hotKey(false, 3)}});
    EXPECT_EQ(loaded().size(), 2U);
    EXPECT_EQ(parser.parsed, std::vector<std::string>(44, list));
    EXPECT_EQ(std::vector(log.lines.begin(), log.lines.begin() + 5),
              (std::vector<std::string>{"----------- 没有值: 52 -------------- ", "Successfully loaded plist file:",
                                        "数字:52", "-----------", "详细:" + hotKey(true, 2).description()}));
    EXPECT_EQ(log.count("数字:64"), 2) << "found, and then dropped as it is off";
}

TEST_F(SystemShortcuts, ADefaultListThatCannotBeUsedIsSaidInTheLog) {
    const std::string key = "com.apple.symbolichotkeys.plist";
    const std::string folder = testing::TempDir();
    const PropertyList noDictionary = Dictionary{{"AppleSymbolicHotKeys", true}};
    const std::pair<std::string, std::function<void()>> cases[] = {
        {"Plist file not found in the bundle", [&] { bundle.resources.clear(); }},
        {"Error: " + file + ".gone: No such file or directory", [&] { bundle.resources[key] = file + ".gone"; }},
        {"Error: " + folder + ": Is a directory", [&] { bundle.resources[key] = folder; }},
        {"Error: it is torn", [&] { parser.result.error = "it is torn"; }},
        {"Invalid plist format", [&] { parser.result.value = Array{}; }},
        {"Successfully loaded plist file:", [&] { parser.result.value = Dictionary{}; }},
        {"Successfully loaded plist file:", [&] { parser.result.value = noDictionary; }},
    };
    preferences.setHotKeys(Dictionary{});
    for (const auto& [line, fault] : cases) {
        bundle.resources[key] = file;
        parser.result = {};
        fault();
        log.lines.clear();
        EXPECT_THAT(loaded(), IsEmpty());
        EXPECT_EQ(log.lines.size(), 2 * 44U) << line;
        EXPECT_EQ(log.count(line), 44) << log.lines[1];
    }
}

TEST_F(SystemShortcuts, TheLogFormNamesEveryField) {
    EXPECT_EQ(describe(std::vector<SystemShortcutEntry>{"Keyboard", SystemShortcutRecord{"Keyboard//Dock", "⌃", "F3"}}),
              R"(["Keyboard", {"Modifier": "⌃", "Title": "Keyboard//Dock", "key": "F3"}])");
}

}  // namespace
}  // namespace orlamo
