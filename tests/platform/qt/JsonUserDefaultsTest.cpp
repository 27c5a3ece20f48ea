#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <limits>

#include "platform/qt/JsonUserDefaults.h"
#include "tests/doubles/FakeLog.h"

namespace orlamo {
namespace {

namespace fs = std::filesystem;
using Value = UserDefaults::Value;

TEST(SettingsJson, EveryTypeReadsBackExactly) {
    const std::vector<Value> values{true,
                                    false,
                                    std::numeric_limits<std::int64_t>::max(),
                                    std::numeric_limits<std::int64_t>::min(),
                                    std::int64_t{9007199254740993},
                                    1.0,
                                    0.1,
                                    -1e300,
                                    std::string(),
                                    std::string("中 \"⌘\"\n\\"),
                                    UserDefaults::Data{},
                                    UserDefaults::Data{0, 255, 10, 34}};
    for (const Value& value : values) {
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

class Settings : public ::testing::Test {
protected:
    Settings() {
        char name[] = "/tmp/orlamo-settings-XXXXXX";
        folder = mkdtemp(name);
        file = folder / "config" / "settings.json";
    }
    ~Settings() override { fs::remove_all(folder); }

    void write(const fs::path& path, const std::string& text) {
        fs::create_directories(path.parent_path());
        std::ofstream(path) << text;
    }
    static std::string read(const fs::path& path) {
        std::ifstream stream(path);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    static unsigned mode(const fs::path& path) {
        struct stat status {};
        return stat(path.c_str(), &status) == 0 ? status.st_mode & 0777U : 0;
    }
    bool onlyHolds(std::vector<std::string> names) {
        std::vector<std::string> found;
        for (const auto& entry : fs::directory_iterator(file.parent_path())) found.push_back(entry.path().filename());
        std::sort(found.begin(), found.end());
        return found == names;
    }

    FakeLog log;
    fs::path folder;
    fs::path file;
};

TEST_F(Settings, AreForTheirOwnerOnlyAndLeaveNothingElseBehind) {
    qt::JsonUserDefaults defaults(file);
    EXPECT_EQ(defaults.objectForKey("absent"), Value{});
    defaults.setObject("isBlurStyle", true);
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(mode(file), 0600U);
    EXPECT_EQ(mode(file.parent_path()), 0700U);
    EXPECT_TRUE(onlyHolds({"settings.json", "settings.json.lock"}));
    EXPECT_TRUE(qt::JsonUserDefaults(file).boolForKey("isBlurStyle"));
    defaults.removeObject("isBlurStyle");
    EXPECT_EQ(qt::JsonUserDefaults(file).objectForKey("isBlurStyle"), Value{});
    EXPECT_TRUE(log.lines.empty());
}

TEST_F(Settings, TwoWritersLoseNothingOfEachOther) {
    qt::JsonUserDefaults one(file);
    qt::JsonUserDefaults other(file);
    for (std::int64_t i = 0; i < 20; ++i) {
        one.setObject("one" + std::to_string(i), i);
        other.setObject("other" + std::to_string(i), i);
        EXPECT_EQ(one.integerForKey("other" + std::to_string(i)), i);
    }
    for (std::int64_t i = 0; i < 20; ++i) EXPECT_EQ(other.integerForKey("one" + std::to_string(i)), i);
}

TEST_F(Settings, AChangeInPlaceIsSeenEvenWithinTheSameClockTick) {
    write(file, R"({"n": 0})");
    qt::JsonUserDefaults defaults(file);
    for (int i = 1; i < 9; ++i) {
        EXPECT_EQ(defaults.integerForKey("n"), i - 1);
        write(file, R"({"n": )" + std::to_string(i) + "}");
    }
    EXPECT_EQ(defaults.integerForKey("n"), 8);
}

TEST_F(Settings, ADamagedFileReadsAsEmptyAndIsKeptAsideBeforeTheNextWrite) {
    for (const auto& [text, aside] :
         {std::pair{"{\"isBlurStyle\": tr", "settings.json.damaged"}, std::pair{"[1]", "settings.json.damaged.2"},
          std::pair{"[1]", "settings.json.damaged.2"}}) {
        write(file, text);
        qt::JsonUserDefaults defaults(file);
        log.lines.clear();
        EXPECT_EQ(defaults.objectForKey("isBlurStyle"), Value{});
        EXPECT_EQ(log.lines.size(), 1U);
        EXPECT_EQ(read(file), text) << "reading changes nothing";
        defaults.setObject("isBlurStyle", true);
        EXPECT_EQ(read(file.parent_path() / aside), text);
        EXPECT_TRUE(qt::JsonUserDefaults(file).boolForKey("isBlurStyle"));
    }
    EXPECT_FALSE(fs::exists(file.string() + ".damaged.3"));
}

TEST_F(Settings, ASymbolicLinkStaysOneAlsoWhenItLeadsNowhereYet) {
    const fs::path target = folder / "elsewhere" / "real.json";
    fs::create_directories(target.parent_path());
    fs::create_directories(file.parent_path());
    fs::create_symlink("../elsewhere/real.json", file);
    for (std::int64_t i = 1; i <= 2; ++i) {
        qt::JsonUserDefaults(file).setObject("n", i);
        EXPECT_TRUE(fs::is_symlink(file));
        EXPECT_EQ(qt::JsonUserDefaults(target).integerForKey("n"), i);
    }
}

// What the superuser may do all the same is no test: a folder in the file's place stops everybody.
TEST_F(Settings, WhatCannotBeWrittenIsKeptAndNotReportedAsSavedUntilItCan) {
    write(folder / "config", "in the way");
    qt::JsonUserDefaults defaults(file);
    defaults.setObject("n", std::int64_t{7});
    EXPECT_EQ(log.lines.size(), 1U);
    EXPECT_FALSE(defaults.synchronize());
    EXPECT_EQ(defaults.integerForKey("n"), 7);
    fs::remove(folder / "config");
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(qt::JsonUserDefaults(file).integerForKey("n"), 7);
}

TEST_F(Settings, WhatWouldBeTooLargeToBeReadAgainIsNotWritten) {
    std::string numbers = "{\"other\":" + std::string(20, '[') + "1";
    for (int i = 0; i < 60'000; ++i) numbers += ",1";  // 120 kB, and 5 MB with one number, indented, to a line
    numbers += std::string(20, ']') + "}";
    write(file, numbers);
    qt::JsonUserDefaults defaults(file);
    defaults.setObject("key", true);
    EXPECT_FALSE(defaults.synchronize());
    EXPECT_EQ(read(file), numbers);
}

TEST_F(Settings, AFolderInTheFilesPlaceIsNotReplaced) {
    fs::create_directories(file);
    qt::JsonUserDefaults defaults(file);
    EXPECT_EQ(defaults.objectForKey("n"), Value{});
    defaults.setObject("n", std::int64_t{7});
    EXPECT_FALSE(defaults.synchronize());
    EXPECT_TRUE(fs::is_directory(file));
}

// The limit on a file's size fails writes as a full disk does, half way through.
TEST_F(Settings, AWriteThatFailsHalfWayLeavesTheOldContentAndNoLitter) {
    qt::JsonUserDefaults defaults(file);
    defaults.setObject("n", std::int64_t{1});
    const std::string before = read(file);
    rlimit old{};
    getrlimit(RLIMIT_FSIZE, &old);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{1000, old.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    defaults.setObject("text", std::string(5000, 'x'));
    const bool saved = defaults.synchronize();
    setrlimit(RLIMIT_FSIZE, &old);
    std::signal(SIGXFSZ, handler);
    EXPECT_FALSE(saved);
    EXPECT_EQ(read(file), before);
    EXPECT_TRUE(onlyHolds({"settings.json", "settings.json.lock"}));
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(qt::JsonUserDefaults(file).stringForKey("text"), std::string(5000, 'x'));
}

TEST_F(Settings, ALeftoverOfAKilledWriterIsInNobodysWay) {
    write(file.string() + ".new", "half");
    qt::JsonUserDefaults(file).setObject("n", std::int64_t{1});
    EXPECT_TRUE(onlyHolds({"settings.json", "settings.json.lock"}));
}

}  // namespace
}  // namespace orlamo
