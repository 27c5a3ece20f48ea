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

TEST_F(DesktopPreferencesTest, OfAnUnknownDesktopHaveNoValueAndAskNobody) {
    EXPECT_EQ(read("openbox"), PropertyList());
    EXPECT_EQ(source->refreshes, 0);
    EXPECT_TRUE(log.lines.empty());
}

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

TEST_F(DesktopPreferencesTest, TakeTheFirstBindingOfGnomeThatCanBeWritten) {
    const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
        {{"<Super>space", "XF86Keyboard"}, "on [32, 49, 262144]"},
        {{"XF86Keyboard", "<Super>space"}, "on [32, 49, 262144]"},
        {{"", "<Super>F1"}, "on [65535, 122, 262144]"},
        {{"XF86Keyboard"}, "missing"},
        {{"Super_L"}, "missing"},
        {{""}, off},
        {{}, off},
    };
    for (const auto& [texts, expected] : cases) {
        source->settings[wm + "switch-input-source"] = texts;
        EXPECT_EQ(entry("ubuntu:GNOME", "61"), expected) << testing::PrintToString(texts);
    }
}

TEST_F(DesktopPreferencesTest, MergeTheStaticSiblingOfAGnomeKey) {
    source->settings[mediaKeys + "search"] = {""};
    source->settings[mediaKeys + "search-static"] = {"XF86Search"};
    EXPECT_EQ(entry("GNOME", "64"), "missing");
    source->settings[mediaKeys + "search-static"] = {"XF86Search", "<Super>f"};
    EXPECT_EQ(entry("GNOME", "64"), "on [102, 3, 262144]");
    source->settings[mediaKeys + "search"] = {"<Super>g"};
    EXPECT_EQ(entry("GNOME", "64"), "on [103, 5, 262144]");
}

TEST_F(DesktopPreferencesTest, LeaveOutWhatTheGnomeShellDoesWhenAnotherShellRuns) {
    source->settings["org.gnome.shell.keybindings toggle-overview"] = {"<Super>s"};
    source->settings[wm + "show-desktop"] = {"<Super>d"};
    EXPECT_EQ(entry("GNOME", "32"), "on [115, 1, 262144]");
    EXPECT_EQ(entry("Budgie:GNOME", "32"), "missing");
    EXPECT_EQ(entry("Budgie:GNOME", "36"), "on [100, 2, 262144]");
}

TEST_F(DesktopPreferencesTest, OfXfceTellCommandsApartByTheirOptions) {
    const std::vector<std::tuple<std::string, std::string, std::string>> cases = {
        {"xfce4-screenshooter -r", "30", "on"},
        {"xfce4-screenshooter -r", "28", "off"},
        {"/usr/bin/xfce4-screenshooter -fc", "29", "on"},
        {"xfce4-screenshooter -fc", "28", "off"},
        {"xfce4-screenshooter --region -c", "31", "on"},
        {"xfce4-screenshooter -w", "28", "off"},
        {"xfce4-screenshooter", "28", "on"},
        {"xfce4-appfinder --collapsed", "160", "off"},
        {"xfce4-appfinder", "160", "on"},
        {"xfce4-appfinder-next", "160", "off"},
        {"", "160", "off"},
    };
    for (const auto& [command, id, state] : cases) {
        source->xfconf = {{"/commands/default/<Super>r", command},
                          {"/commands/default/<Super>r/startup-notify", "true"}};
        EXPECT_EQ(entry("XFCE", id).substr(0, state.size()), state) << command << " " << id;
    }
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
