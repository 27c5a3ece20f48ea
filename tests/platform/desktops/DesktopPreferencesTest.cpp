#include "platform/desktops/DesktopPreferences.h"

#include <gtest/gtest.h>

#include "platform/desktops/SharedSettings.h"
#include "tests/doubles/FakeLog.h"
#include "tests/doubles/FakeSettingsSource.h"

namespace orlamo::desktops {
namespace {

constexpr auto domain = "com.apple.symbolichotkeys";
constexpr auto key = "AppleSymbolicHotKeys";

class DesktopPreferencesTest : public testing::Test {
protected:
    PropertyList read(std::string desktop) {
        this->desktop = std::move(desktop);
        preferences.CFPreferencesAppSynchronize(domain);
        return preferences.CFPreferencesCopyAppValue(key, domain);
    }

    // "on [115, 1, 262144]", "off [65535, 65535, 0]" or "missing".
    std::string entry(const std::string& names, std::string_view id) {
        const auto hotKeys = read(names);
        const auto* const found = hotKeys.at(id);
        if (found == nullptr) return "missing";
        const bool isOn = *found->at("enabled")->get<bool>();
        return (isOn ? "on " : "off ") + found->at("value")->at("parameters")->description();
    }

    FakeLog log;
    std::string desktop;
    FakeSettingsSource* source = new FakeSettingsSource;
    DesktopPreferences preferences{std::unique_ptr<SettingsSource>(source), [this] { return desktop; }};
};

const std::string off = "off [65535, 65535, 0]";
const std::string wm = "org.gnome.desktop.wm.keybindings ";
const std::string mediaKeys = "org.gnome.settings-daemon.plugins.media-keys ";

TEST_F(DesktopPreferencesTest, OfAKnownDesktopThatCannotBeReadHaveNoValueAndALogLine) {
    for (const auto* name : {"GNOME", "XFCE", "KDE", "MATE"}) EXPECT_EQ(read(name), PropertyList()) << name;
    EXPECT_TRUE(log.contains("The shortcuts of the desktop \"XFCE\" cannot be read"));
}

TEST_F(DesktopPreferencesTest, AnswerThatDomainAndKeyOnlyAndAreReadAgainAfterASynchronizeAndNotBefore) {
    desktop = "GNOME";
    source->settings[wm + "show-desktop"] = {"<Super>d"};
    EXPECT_NE(preferences.CFPreferencesCopyAppValue(key, domain), PropertyList()) << "without one at first";
    EXPECT_EQ(preferences.CFPreferencesCopyAppValue("Other", domain), PropertyList());
    EXPECT_EQ(preferences.CFPreferencesCopyAppValue(key, "com.apple.dock"), PropertyList());
    const auto before = read("GNOME");
    source->settings[wm + "show-desktop"] = {"<Super>F12"};
    EXPECT_EQ(preferences.CFPreferencesCopyAppValue(key, domain), before);
    EXPECT_EQ(entry("GNOME", "36"), "on [65535, 111, 262144]");
    EXPECT_EQ(source->refreshes, 3);
    EXPECT_EQ(entry("XFCE", "36"), "missing");
}

TEST_F(DesktopPreferencesTest, OfGnomeAreTheFirstBindingThatCanBeWrittenOfAKeyThenOfItsStaticSibling) {
    using Texts = std::vector<std::string>;
    const std::vector<std::tuple<Texts, Texts, std::string>> cases = {
        {{"<Super>space", "XF86Search"}, {}, "on [32, 49, 262144]"},
        {{"XF86Search", "<Super>space"}, {}, "on [32, 49, 262144]"},
        {{"", "<Super>F1"}, {}, "on [65535, 122, 262144]"},
        {{"Super_L", ""}, {}, "missing"},
        {{""}, {}, off},
        {{}, {}, off},
        {{""}, {"XF86Search"}, "missing"},
        {{""}, {"XF86Search", "<Super>f"}, "on [102, 3, 262144]"},
        {{"<Super>g"}, {"<Super>f"}, "on [103, 5, 262144]"},
    };
    for (const auto& [texts, siblings, expected] : cases) {
        source->settings = {{mediaKeys + "search", texts}, {mediaKeys + "search-static", siblings}};
        EXPECT_EQ(entry("ubuntu:GNOME", "64"), expected) << testing::PrintToString(texts);
    }
}

TEST_F(DesktopPreferencesTest, LeaveOutWhatTheGnomeShellDoesWhenAnotherShellRuns) {
    source->settings["org.gnome.shell.keybindings toggle-overview"] = {"<Super>s"};
    source->settings[wm + "show-desktop"] = {"<Super>d"};
    EXPECT_EQ(entry("GNOME", "32"), "on [115, 1, 262144]");
    EXPECT_EQ(entry("Budgie:GNOME", "32"), "missing");
    EXPECT_EQ(entry("Budgie:GNOME", "36"), "on [100, 2, 262144]");
}

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
