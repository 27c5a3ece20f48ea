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

TEST(Localization, ATextIsLookedUpOnceAlsoWhenThreadsRace) {
    CountingBundle bundle;
    bundle.strings["a.key"] = "A text";
    const LocalizedText text("a.key");
    EXPECT_EQ(bundle.lookups, 0);
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) threads.emplace_back([&] { EXPECT_EQ(text.text(), "A text"); });
    for (std::thread& thread : threads) thread.join();
    bundle.strings["a.key"] = "Another language";
    EXPECT_EQ(text.text(), "A text");
    EXPECT_EQ(bundle.lookups, 1);
}

TEST(Localization, AFormatIsLookedUpAtEveryCall) {
    CountingBundle bundle;
    bundle.strings["create.choose.disk.tips.title"] = "%2$@ <- %1$@";
    EXPECT_EQ(Localization::Create::ChooseDrive::tipsTitle("a", "b"), "b <- a");
    EXPECT_EQ(Localization::Create::ChooseDrive::tipsTitle("c", std::string("d")), "d <- c");
    EXPECT_EQ(bundle.lookups, 2);
}

TEST(Localization, AKeyThatTheTableLacksShowsItself) {
    const FakeBundle bundle;
    EXPECT_EQ(Localization::StatusBar::plugin.text(), "statusBar.title.plugin");
    EXPECT_EQ(Localization::Create::installerDone("x"), "create.installer.done");
}

TEST(Bundler, KeepsTheBundleOfItsFirstRead) {
    Bundler bundler;
    const Bundle* kept = nullptr;
    {
        const FakeBundle bundle;
        kept = &bundler.bundle();
        EXPECT_EQ(kept, &Bundle::shared());
    }
    EXPECT_EQ(&bundler.bundle(), kept) << "asks no more";
}

TEST(Format, TakesArgumentsInOrderOrByPositionAndLeavesWhatItCannotFill) {
    const std::vector<std::string_view> arguments{"one", "%@"};
    const std::pair<const char*, const char*> cases[] = {{"", ""},
                                                         {"no place", "no place"},
                                                         {"%@ and %@", "one and %@"},
                                                         {"%2$@, %1$@, %1$@", "%@, one, one"},
                                                         {"%2$@ %@", "%@ one"},
                                                         {"100 %% of %@", "100 % of one"},
                                                         {"%%@", "%@"},
                                                         {"%@%@%@", "one%@%@"},
                                                         {"%3$@ %0$@", "%3$@ %0$@"},
                                                         {"%", "%"},
                                                         {"%1", "%1"},
                                                         {"%1$", "%1$"},
                                                         {"%d %-1$@ %s", "%d %-1$@ %s"},
                                                         {"%99999999999999999999$@", "%99999999999999999999$@"},
                                                         {"五%@六", "五one六"}};
    for (const auto& [format, result] : cases) EXPECT_EQ(formatted(format, arguments), result) << format;
}

}  // namespace
}  // namespace orlamo
