#include "platform/desktops/SharedSettings.h"

#include <gtest/gtest.h>

#include "tests/doubles/FakeSettingsSource.h"

namespace orlamo::desktops {
namespace {

TEST(SharedSettings, AnswerTheFollowerWhatWasReadForTheFirstReaderAndAfterThatReadAnew) {
    auto* const source = new FakeSettingsSource;
    SharedSettings settings{std::unique_ptr<SettingsSource>(source)};
    const auto follower = settings.follower();
    const std::vector<std::string_view> first = {"kwin", "ksmserver"}, second = {"plasmashell", "kwin"};
    const auto actions = [&second](SettingsSource& reader) {
        std::string names;
        const auto shortcuts = reader.globalShortcuts(second);
        if (!shortcuts) return std::string("none");
        for (const auto& each : *shortcuts) names += each.action + " ";
        return names;
    };

    source->kde = std::vector{GlobalShortcut{"kwin", "Old", {}}};
    settings.refresh();
    EXPECT_EQ(settings.properties("xfce4-keyboard-shortcuts"), std::nullopt);
    EXPECT_EQ(settings.globalShortcuts(first)->size(), 1U);
    source->xfconf.emplace();
    source->kde = {{"kwin", "New", {}}, {"plasmashell", "Plasma", {}}};
    follower->refresh();
    EXPECT_EQ(follower->properties("xfce4-keyboard-shortcuts"), std::nullopt);
    EXPECT_EQ(actions(*follower), "Plasma Old ");
    EXPECT_EQ(source->refreshes, 1);

    follower->refresh();
    EXPECT_NE(follower->properties("xfce4-keyboard-shortcuts"), std::nullopt);
    EXPECT_EQ(actions(*follower), "Plasma New ");
    source->kde.reset();
    settings.refresh();
    EXPECT_EQ(settings.globalShortcuts(first), std::nullopt);
    source->kde.emplace();
    EXPECT_EQ(actions(*follower), "none") << "who did not answer is not asked again";
    EXPECT_EQ(source->refreshes, 3);
}

}  // namespace
}  // namespace orlamo::desktops
