#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "platform/Geometry.h"
#include "platform/KeyedArchive.h"
#include "platform/NotificationCenter.h"
#include "platform/PropertyList.h"
#include "tests/doubles/FakeUserDefaults.h"

namespace orlamo {
namespace {

TEST(Geometry, MaximumEdgesAreOutside) {
    const Rect rect{10, 20, 30, 40};
    EXPECT_TRUE(rect.contains({10, 20}));
    EXPECT_TRUE(rect.contains({39.9, 59.9}));
    EXPECT_FALSE(rect.contains({40, 30}));
    EXPECT_FALSE(rect.contains({20, 60}));
    EXPECT_EQ(rect.united({0, 0, 5, 5}), (Rect{0, 0, 40, 60}));
    EXPECT_EQ(rect.united({0, 0, 0, 5}), rect);
}

TEST(ColorArchive, ReadsBackExactlyAndRejectsAnythingElse) {
    const Color color{0.1, 1.0 / 3, 0, 0.999};
    auto data = *archivedDataWithColor(color);
    EXPECT_EQ(data.size(), 37U);
    EXPECT_EQ(unarchivedColor(data), color);

    auto longer = data;
    longer.push_back(0);
    auto otherVersion = data;
    otherVersion[4] = 2;
    auto notANumber = data;
    notANumber[12] = 0xFF;
    notANumber[11] = 0xF0;
    for (const auto& damaged : {longer, otherVersion, notANumber, {data.begin(), data.end() - 1}, {}}) {
        EXPECT_EQ(unarchivedColor(damaged), std::nullopt) << damaged.size();
    }
    EXPECT_EQ(archivedDataWithColor({std::numeric_limits<double>::infinity(), 0, 0, 1}), std::nullopt);
}

TEST(NotificationCenter, DoesNotReachAnObserverThatIsRemovedMeanwhile) {
    NotificationCenter center;
    std::string heard;
    std::unique_ptr<NotificationCenter::Observation> second;
    const auto first = center.addObserver("update", [&] {
        heard += '1';
        second.reset();
    });
    second = center.addObserver("update", [&] { heard += '2'; });
    center.post("update");
    EXPECT_EQ(heard, "1");
}

TEST(UserDefaultsConversion, ReadsWhatConvertsAndElseLikeAnAbsentValue) {
    struct Case {
        UserDefaults::Value value;
        bool truth;
        std::int64_t integer;
        std::optional<std::string> text;
    };
    const std::vector<Case> cases{
        {std::monostate{}, false, 0, std::nullopt},
        {true, true, 1, std::nullopt},
        {std::int64_t{-7}, true, -7, "-7"},
        {3.9, true, 3, "3.9"},
        {1e300, true, 0, "1e+300"},
        {std::string("YES"), true, 0, "YES"},
        {std::string("true"), true, 0, "true"},
        {std::string("12 points"), true, 12, "12 points"},
        {std::string("0"), false, 0, "0"},
        {std::string(" -01"), true, -1, " -01"},
        {std::string("9"), true, 9, "9"},
        {std::string(" "), false, 0, " "},
        {std::string("no"), false, 0, "no"},
        {UserDefaults::Data{1, 2}, false, 0, std::nullopt},
    };
    FakeUserDefaults defaults;
    for (const Case& expected : cases) {
        defaults.values["key"] = expected.value;
        EXPECT_EQ(defaults.boolForKey("key"), expected.truth);
        EXPECT_EQ(defaults.integerForKey("key"), expected.integer);
        EXPECT_EQ(defaults.stringForKey("key"), expected.text);
        EXPECT_EQ(defaults.dataForKey("key").has_value(), std::holds_alternative<UserDefaults::Data>(expected.value));
    }
}

TEST(PropertyListValue, IsLookedUpAndPrintedWithoutFailing) {
    const PropertyList list =
        PropertyList::Dictionary{{"a", PropertyList::Array{std::int64_t{1}, true, 0.5, std::string("\\ \"x\"")}},
                                 {"b", PropertyList::Data{1, 2, 3}}};
    EXPECT_EQ(list.at("a")->at("nothing"), nullptr);
    EXPECT_EQ(list.at("missing"), nullptr);
    EXPECT_EQ(list.description(), R"({"a": [1, true, 0.5, "\\ \"x\""], "b": <3 bytes>})");
}

}  // namespace
}  // namespace orlamo
