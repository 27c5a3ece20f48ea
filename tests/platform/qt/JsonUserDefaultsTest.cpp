#include <limits>

#include "platform/qt/JsonUserDefaults.h"
#include "platform/qt/QtRunLoop.h"
#include "tests/doubles/TemporaryFolder.h"
#include "tests/platform/qt/QtFixture.h"

namespace orlamo {
namespace {

namespace fs = std::filesystem;
using Value = UserDefaults::Value;

TEST(SettingsJson, EveryTypeReadsBackExactly) {
    using Integers = std::numeric_limits<std::int64_t>;
    for (const Value& value :
         {Value(true), Value(false), Value(Integers::max()), Value(Integers::min()),
          Value(std::int64_t{9007199254740993}), Value(1.0), Value(0.1), Value(-1e300), Value(std::string()),
          Value(std::string("中 \"⌘\"\n\\")), Value(UserDefaults::Data{}), Value(UserDefaults::Data{0, 255, 10, 34})}) {
        qt::SettingsJson settings;
        ASSERT_TRUE(settings.setValue("key", value));
        const auto again = qt::SettingsJson::parse(settings.text());
        ASSERT_TRUE(again);
        EXPECT_EQ(again->value("key"), value) << settings.text();
    }
}

TEST(SettingsJson, WhatItDoesNotUnderstandReadsAsAbsentAndStays) {
    const std::string other = R"({"list": [1, 1.0, null], "object": {"data": 3}, "big": 18446744073709551615})";
    auto settings = qt::SettingsJson::parse(other);
    ASSERT_TRUE(settings);
    for (const char* key : {"list", "object", "absent"}) EXPECT_EQ(settings->value(key), Value{}) << key;
    settings->setValue("mine", true);
    for (const char* kept : {"1.0,", "null", "\"data\": 3", "18446744073709551615"}) {
        EXPECT_NE(settings->text().find(kept), std::string::npos) << kept << " in " << settings->text();
    }
}

TEST(SettingsJson, OnlyAWholeObjectIsRead) {
    for (const char* text : {"", "{", "[]", "{\"a\": 1", "{\"a\": 1} x", "\xff\xfe", "{\"a\": 01}", "null"}) {
        EXPECT_FALSE(qt::SettingsJson::parse(text)) << text;
    }
    const auto nested = [](std::size_t levels) {
        return "{\"a\": " + std::string(levels, '[') + std::string(levels, ']') + "}";
    };
    EXPECT_TRUE(qt::SettingsJson::parse(nested(20)));
    EXPECT_FALSE(qt::SettingsJson::parse(nested(100'000)));
    EXPECT_FALSE(qt::SettingsJson().setValue("nan", std::numeric_limits<double>::quiet_NaN()));
}

class Settings : public QtFixture {
protected:
    void write(const std::string& text) {
        fs::create_directories(file.parent_path());
        std::ofstream(file) << text;
    }

    const TemporaryFolder folder;
    const fs::path file = folder.path / "config" / "settings.json";
};

TEST_F(Settings, AChangeInPlaceIsSeenEvenWithinTheSameClockTick) {
    write(R"({"n": 0})");
    qt::JsonUserDefaults defaults(file);
    for (int i = 1; i < 9; ++i) {
        EXPECT_EQ(defaults.integerForKey("n"), i - 1);
        write(R"({"n": )" + std::to_string(i) + "}");
    }
    EXPECT_EQ(defaults.integerForKey("n"), 8);
}

TEST_F(Settings, WhatWouldBeTooLargeToBeReadAgainIsNotWritten) {
    std::string numbers = "{\"other\":" + std::string(20, '[') + "1";
    for (int i = 0; i < 60'000; ++i) numbers += ",1";  // 120 kB, and 5 MB with one number, indented, to a line
    numbers += std::string(20, ']') + "}";
    write(numbers);
    qt::JsonUserDefaults defaults(file);
    defaults.setObject("key", true);
    EXPECT_FALSE(defaults.synchronize());
    EXPECT_EQ(contentOf(file), numbers);
}

class ObservedSettings : public Settings {
protected:
    /// How often the observer was called meanwhile; long enough for every pending change to be heard.
    int calls(const std::function<void()>& change) {
        heard = 0;
        change();
        turnEventLoopFor(0.2);
        return heard;
    }

    qt::QtRunLoop loop;
    Service<RunLoop>::Installation installation{loop};
    int heard = 0;
};

TEST_F(ObservedSettings, EveryWriteAndEveryChangeFromOutsideArriveOnce) {
    qt::JsonUserDefaults defaults(file);
    qt::JsonUserDefaults outside(file);
    const auto observation = defaults.addObserver("watched", [this] { ++heard; });
    EXPECT_EQ(calls([&] { defaults.setObject("watched", true); }), 1) << "the folder is created by this write";
    EXPECT_EQ(calls([&] { defaults.setObject("watched", true); }), 1) << "also the value it had";
    EXPECT_EQ(calls([&] { defaults.setObject("other", true); }), 0);
    EXPECT_EQ(calls([&] { outside.setObject("watched", false); }), 1);
    EXPECT_FALSE(defaults.boolForKey("watched"));
    EXPECT_EQ(calls([&] { outside.setObject("other", false); }), 0);
    EXPECT_EQ(calls([&] { std::ofstream(file) << R"({"watched": true})"; }), 1) << "written in place";
    EXPECT_EQ(calls([&] { fs::remove_all(folder.path); }), 1) << "absent is a change";
    EXPECT_EQ(calls([&] { defaults.setObject("watched", true); }), 1);
    EXPECT_EQ(calls([&] { outside.setObject("watched", false); }), 1) << "the new folder is watched";
}

TEST_F(ObservedSettings, ALinkedFileIsFollowedAndAnEndedObservationIsSilent) {
    write("{}");
    const fs::path target = folder.path / "real.json";
    fs::rename(file, target);
    fs::create_symlink("../real.json", file);
    qt::JsonUserDefaults defaults(file);
    auto observation = defaults.addObserver("watched", [this] { ++heard; });
    EXPECT_EQ(calls([&] { std::ofstream(target) << R"({"watched": 1})"; }), 1);
    observation.reset();
    EXPECT_EQ(calls([&] { std::ofstream(target) << R"({"watched": 2})"; }), 0);
}

}  // namespace
}  // namespace orlamo
