#include "core/SystemShortcuts.h"

#include <gmock/gmock.h>

#include <cstdio>
#include <fstream>
#include <functional>
#include <limits>

#include "tests/doubles/FakeBundle.h"
#include "tests/doubles/FakeLog.h"
#include "tests/doubles/FakePropertyListParser.h"
#include "tests/doubles/FakeSystemPreferences.h"

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

struct SystemShortcuts : testing::Test {
    SystemShortcuts() {
        const std::string path = testing::TempDir() + "orlamo_default_hot_keys.plist";
        std::ofstream(path) << "the shipped list";
        bundle.resources["com.apple.symbolichotkeys.plist"] = path;
        systemKeyCombos = {{1, 1}};
    }
    ~SystemShortcuts() override { std::remove(bundle.resources["com.apple.symbolichotkeys.plist"].c_str()); }

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

    FakeLog log;
    FakeBundle bundle;
    FakePropertyListParser parser;
    FakeSystemPreferences preferences;
};

TEST_F(SystemShortcuts, AllRowsStandUnderTheirHeadings) {
    Dictionary all;
    for (int id = 1; id < 200; ++id) all[std::to_string(id)] = hotKey(true, 0, 0x100000);
    preferences.setHotKeys(all);
    std::vector<std::string> shape;  // headings and the number of records under each
    int records = 0;
    const auto endGroup = [&] {
        if (records > 0) shape.push_back(std::to_string(records));
        records = 0;
    };
    for (const std::string& line : loaded()) {
        if (line.ends_with("|⌘|A|0|1048576")) {
            ++records;
            continue;
        }
        endGroup();
        shape.push_back(line);
    }
    endGroup();
    EXPECT_THAT(shape, ElementsAre("Launchpad & Dock", "2", "Mission Contrl", "6", "Mission Contrl/Mission Contrl", "6",
                                   "Keyboard", "11", "Input Sources", "2", "Screen Shots", "4", "Spotlight", "2",
                                   "Accessibility", "Accessibility/Zoom", "5", "Accessibility/Contrast", "5",
                                   "App Shortcuts", "App Shortcuts/All Applications", "1"));
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
    const struct {
        const char* what;
        PropertyList entry;
        const char* shown;  // modifier, key, code, mask; null: dropped
    } cases[] = {
        {"usable", hotKey(true, 0), "||A|0|0"},
        {"switched off", hotKey(false, 0), "||D|2|0"},
        {"not a dictionary", Array{}, "||D|2|0"},
        {"no enabled", Dictionary{{"value", value}}, "||D|2|0"},
        {"enabled is a number", Dictionary{{"enabled", one}, {"value", value}}, "||D|2|0"},
        {"no value", Dictionary{{"enabled", true}}, "||D|2|0"},
        {"value is an array", Dictionary{{"enabled", true}, {"value", Array{}}}, "||D|2|0"},
        {"empty value", Dictionary{{"enabled", true}, {"value", Dictionary{}}}, "||D|2|0"},
        {"no parameters", Dictionary{{"enabled", true}, {"value", Dictionary{{"type", one}}}}, nullptr},
        {"parameters are a text", withParameters(std::string("0")), nullptr},
        {"no elements", withParameters(Array{}), nullptr},
        {"one element", withParameters(Array{one}), nullptr},
        {"two elements", withParameters(Array{one, one}), "||S|1|0"},
        {"boolean key code", withParameters(Array{one, true, one}), nullptr},
        {"key code with a fraction", withParameters(Array{one, 1.0, one}), nullptr},
        {"mask is a text", withParameters(Array{one, one, std::string("131072")}), "||S|1|0"},
        {"every bit", hotKey(true, 1, -1), "|⌃⌥⇧⌘|S|1|-1"},
        {"code without a key", hotKey(true, 65535), nullptr},
        {"code -1", hotKey(true, -1), "||nil|-1|0"},
        {"least code", hotKey(true, std::numeric_limits<std::int64_t>::min()), nullptr},
        {"greatest code", hotKey(true, std::numeric_limits<std::int64_t>::max()), nullptr},
    };
    for (const auto& [what, entry, shown] : cases) {
        preferences.setHotKeys(Dictionary{{"52", entry}});
        const auto lines = loaded();
        if (shown == nullptr) {
            EXPECT_THAT(lines, IsEmpty()) << what;
        } else {
            EXPECT_THAT(lines, ElementsAre("Launchpad & Dock",
                                           std::string("Launchpad & Dock//Turn Dock Hiding On/Off") + shown))
                << what;
        }
    }
}

TEST_F(SystemShortcuts, TheDefaultListIsReadForEveryRowThatNeedsIt) {
    preferences.setHotKeys(Dictionary{});
    setDefaults({{"52", hotKey(true, 2)}, {"64", hotKey(false, 3)}});
    EXPECT_EQ(loaded().size(), 2U);
    EXPECT_EQ(parser.parsed, std::vector<std::string>(44, "the shipped list"));
    EXPECT_EQ(std::vector(log.lines.begin(), log.lines.begin() + 5),
              (std::vector<std::string>{"----------- 没有值: 52 -------------- ", "Successfully loaded plist file:",
                                        "数字:52", "-----------", "详细:" + hotKey(true, 2).description()}));
    EXPECT_EQ(log.count("数字:64"), 2) << "found, and then dropped as it is off";
}

TEST_F(SystemShortcuts, ADefaultListThatCannotBeUsedIsSaidInTheLog) {
    auto& path = bundle.resources["com.apple.symbolichotkeys.plist"];
    const std::string good = path;
    const std::pair<std::string, std::function<void()>> cases[] = {
        {"Plist file not found in the bundle", [this] { bundle.resources.clear(); }},
        {"Error: " + good + ".gone: No such file or directory", [&] { path = good + ".gone"; }},
        {"Error: " + testing::TempDir() + ": Is a directory", [&] { path = testing::TempDir(); }},
        {"Error: it is torn",
         [this] {
             parser.result = {{}, "it is torn"};
         }},
        {"Invalid plist format", [this] { parser.result.value = Array{}; }},
        {"Successfully loaded plist file:", [this] { parser.result.value = Dictionary{}; }},
        {"Successfully loaded plist file:",
         [this] {
             parser.result.value = Dictionary{{"AppleSymbolicHotKeys", true}};
         }},
    };
    preferences.setHotKeys(Dictionary{});
    for (auto fault = std::rbegin(cases); fault != std::rend(cases); ++fault) {
        path = good;
        parser.result = {};
        fault->second();
        log.lines.clear();
        EXPECT_THAT(loaded(), IsEmpty());
        EXPECT_EQ(log.lines.size(), 2 * 44U) << fault->first;
        EXPECT_EQ(log.count(fault->first), 44) << log.lines[1];
    }
    bundle.resources["com.apple.symbolichotkeys.plist"] = good;
}

TEST_F(SystemShortcuts, TheLogFormNamesEveryField) {
    EXPECT_EQ(describe(std::vector<SystemShortcutEntry>{"Keyboard", SystemShortcutRecord{"Keyboard//Dock", "⌃", "F3"}}),
              R"(["Keyboard", {"Modifier": "⌃", "Title": "Keyboard//Dock", "key": "F3"}])");
}

}  // namespace
}  // namespace orlamo
