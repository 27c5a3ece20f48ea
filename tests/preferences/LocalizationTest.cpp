#include "preferences/Localization.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

#include "tests/doubles/FakeBundle.h"

namespace orlamo {
namespace {

class CountingBundle : public FakeBundle {
public:
    std::string localizedString(std::string_view key) const override {
        ++lookups;
        return FakeBundle::localizedString(key);
    }
    mutable std::atomic<int> lookups = 0;
};

TEST(Localization, ATextIsLookedUpOnceAlsoWhenThreadsRaceAndAFormatAtEveryCall) {
    CountingBundle bundle;
    bundle.strings = {{"a.key", "A text"}, {"create.choose.disk.tips.title", "%2$@ <- %1$@"}};
    const LocalizedText text("a.key");
    {
        std::vector<std::jthread> threads;
        for (int i = 0; i < 4; ++i) threads.emplace_back([&] { EXPECT_EQ(text.text(), "A text"); });
    }
    EXPECT_EQ(bundle.lookups, 1);
    EXPECT_EQ(Localization::Create::ChooseDrive::tipsTitle("a", "b"), "b <- a");
    EXPECT_EQ(Localization::Create::ChooseDrive::tipsTitle("c", std::string("d")), "d <- c");
    EXPECT_EQ(bundle.lookups, 3);
    EXPECT_EQ(Localization::StatusBar::plugin.text(), "statusBar.title.plugin") << "a key that the table lacks";
}

TEST(Bundler, KeepsTheBundleOfItsFirstRead) {
    const auto first = std::make_unique<FakeBundle>();
    Bundler bundler;
    const Bundle* const kept = &bundler.bundle();
    EXPECT_EQ(kept, &Bundle::shared());
    const Bundle::Installation none(*first);
    EXPECT_EQ(&bundler.bundle(), kept);
}

TEST(Format, TakesArgumentsInOrderOrByPositionAndLeavesWhatItCannotFill) {
    const std::vector<std::string_view> arguments{"one", "%@"};
    const std::pair<const char*, const char*> cases[] = {{"%@ and %@", "one and %@"},
                                                         {"%2$@, %1$@, %1$@", "%@, one, one"},
                                                         {"%2$@ %@", "%@ one"},
                                                         {"%%@", "%@"},
                                                         {"100 %% of %@", "100 % of one"},
                                                         {"%@%@%@", "one%@%@"},
                                                         {"五%@六", "五one六"}};
    for (const auto& [format, result] : cases) EXPECT_EQ(formatted(format, arguments), result) << format;
    for (const char* const same : {"", "%3$@ %0$@", "%", "%1", "%1$", "%d %-1$@", "%99999999999999999999$@"}) {
        EXPECT_EQ(formatted(same, arguments), same);
    }
    EXPECT_EQ(formatted(std::string_view("%1$@").substr(0, 3), arguments), "%1$") << "what stands behind is not read";
}

}  // namespace
}  // namespace orlamo
