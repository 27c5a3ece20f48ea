#include "update/UpdateSchedule.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

#include "tests/doubles/FakeClock.h"
#include "tests/doubles/FakeLog.h"
#include "tests/doubles/FakeUserDefaults.h"
#include "update/UpdaterDelegate.h"

namespace orlamo {
namespace {

using Lines = std::vector<std::string>;

class UpdateScheduleTest : public testing::Test {
protected:
    ~UpdateScheduleTest() override { useTimeZone("UTC0"); }

    static void useTimeZone(const char* zone) {
        setenv("TZ", zone, 1);
        tzset();
    }
    bool isDue(UserDefaults::Value stamp, double now) {
        defaults.values["LastUpdateCheckDate"] = std::move(stamp);
        clock.now = now;
        log.lines.clear();
        return UpdateSchedule::shouldCheckForUpdates();
    }
    std::string stampAt(double now) {
        clock.now = now;
        UpdateSchedule::recordUpdateCheckDate();
        return std::get<std::string>(defaults.values.at("LastUpdateCheckDate"));
    }

    FakeLog log;
    FakeClock clock;
    FakeUserDefaults defaults;
};

constexpr double stamped = 1709618829;  // 2024-03-05T14:07:09+0800

TEST_F(UpdateScheduleTest, ACheckIsDueOnceTheStampIsMoreThanFiveDaysOld) {
    const struct {
        double age;
        bool due;
    } cases[]{{432000.001, true}, {432001, true}, {1e9, true}, {432000, false},
              {431999, false},    {0, false},     {-1, false}, {-1e9, false}};
    for (const auto& [age, due] : cases) {
        EXPECT_EQ(isDue(std::string("2024-03-05T14:07:09+0800"), stamped + age), due) << age;
        EXPECT_EQ(log.lines, Lines{std::string("现在是否是应用程序更新的时候？ ") + (due ? "true" : "false")});
    }
    for (const char* const same :
         {"2024-03-05T05:08:09-0059", "2024-03-05T23:59:09+1752", "2024-03-04T06:59:09-2308"}) {
        EXPECT_FALSE(isDue(std::string(same), stamped + 432000)) << same;
    }
}

TEST_F(UpdateScheduleTest, WithoutAReadableStampACheckIsDueAndNothingIsLogged) {
    std::vector<UserDefaults::Value> unusable{
        std::monostate{}, true, std::int64_t{1709618829}, stamped, UserDefaults::Data{'2', '0'}, "", "yesterday"};
    const std::string readable = "2024-03-05T14:07:09+0800";
    for (const std::size_t length : {10U, 19U, 22U}) unusable.emplace_back(readable.substr(0, length));
    for (const char* const end : {"Z", "+08:00", "+0800 "}) unusable.emplace_back(readable.substr(0, 19) + end);
    // What stands at one place of it instead.
    const std::pair<std::size_t, std::string_view> changes[] = {
        {0, " "},   {10, " "},  {5, "02-30"}, {0, "2023-02-29"}, {5, "00"}, {5, "13"}, {8, "00"}, {11, "24"},
        {14, "60"}, {17, "60"}, {20, "24"},   {20, "0860"},      {19, "*"}, {18, "a"}, {17, "+9"}};
    for (const auto& [place, text] : changes)
        unusable.emplace_back(std::string(readable).replace(place, text.size(), text));
    for (const auto& value : unusable) {
        const auto* const text = std::get_if<std::string>(&value);
        EXPECT_TRUE(isDue(value, stamped)) << value.index() << (text != nullptr ? *text : "");
        EXPECT_EQ(log.lines, Lines{}) << value.index();
    }
}

TEST_F(UpdateScheduleTest, TheStampCarriesTheLocalTimeAndItsOffset) {
    const struct {
        const char* zone;
        double now;
        const char* text;
    } cases[]{{"UTC0", 0, "1970-01-01T00:00:00+0000"},
              {"CST-8", stamped + 0.999, "2024-03-05T14:07:09+0800"},
              {"IST-5:30", stamped, "2024-03-05T11:37:09+0530"},
              {"NPT-5:45", stamped, "2024-03-05T11:52:09+0545"},
              {"NST3:30NDT,M3.2.0,M11.1.0", stamped, "2024-03-05T02:37:09-0330"},
              {"NST3:30NDT,M3.2.0,M11.1.0", stamped + 30 * 86400, "2024-04-04T03:37:09-0230"},
              {"UTC0", 1709164800, "2024-02-29T00:00:00+0000"}};
    for (const auto& [zone, now, text] : cases) {
        useTimeZone(zone);
        EXPECT_EQ(stampAt(now), text);
        EXPECT_EQ(log.lines.back(), std::string("应用程序更新检查已完成，时间：") + text);
    }
}

// The clocks go forward and back between the two launches; five days stay five days, wherever the user is by then.
TEST_F(UpdateScheduleTest, AStampKeepsItsMomentWhenTheLocalTimeShifts) {
    const double spring = 1711846800, autumn = 1729990800;  // 2024-03-31 and 2024-10-27, 01:00 UTC
    for (const double change : {spring, autumn}) {
        for (const double before : {-432000.0, -3600.0, -1.0, 0.0, 3599.0}) {
            useTimeZone("CET-1CEST,M3.5.0,M10.5.0/3");
            const std::string stamp = stampAt(change + before);
            EXPECT_FALSE(isDue(stamp, change + before + 432000)) << stamp;
            useTimeZone("NST3:30NDT,M3.2.0,M11.1.0");
            EXPECT_TRUE(isDue(stamp, change + before + 432001)) << stamp;
        }
    }
}

TEST_F(UpdateScheduleTest, RecordingOverwritesAStampFromTheFuture) {
    EXPECT_FALSE(isDue(std::string("2099-01-01T00:00:00+0000"), stamped));
    EXPECT_EQ(stampAt(stamped), "2024-03-05T06:07:09+0000");
}

TEST_F(UpdateScheduleTest, OnlyTheSettingAllowsTheBetaChannel) {
    EXPECT_EQ(UpdaterDelegate().allowedChannelsForUpdater(), std::set<std::string>{});
    for (const bool isChosen : {true, false}) {
        defaults.values["isBetaChannel"] = isChosen;
        EXPECT_EQ(UpdaterDelegate().allowedChannelsForUpdater().contains("beta"), isChosen);
    }
}

}  // namespace
}  // namespace orlamo
