#include <gtest/gtest.h>

#include "platform/desktops/DesktopPreferences.h"
#include "tests/doubles/FakeLog.h"
#include "tests/doubles/FakeSettingsSource.h"

namespace orlamo::desktops {
namespace {

constexpr auto domain = "com.apple.symbolichotkeys";
constexpr auto usual = "openbox/rc.xml";

std::string configuration(const std::string& keyboard) {
    return "<openbox_config><keyboard>" + keyboard + "</keyboard></openbox_config>";
}

std::string keybind(const std::string& key, const std::string& action, const std::string& options = {}) {
    return "<keybind key=\"" + key + "\"><action name=\"" + action + "\">" + options + "</action></keybind>";
}

class OpenboxHotKeysTest : public testing::Test {
protected:
    // The IDs that are switched on, with key code and mask: "36:2+262144 ".
    std::string keys() {
        preferences.CFPreferencesAppSynchronize(domain);
        const auto hotKeys = preferences.CFPreferencesCopyAppValue("AppleSymbolicHotKeys", domain);
        if (hotKeys == PropertyList()) return "no value";
        std::string texts;
        for (const auto& [id, entry] : *hotKeys.get<PropertyList::Dictionary>()) {
            if (!*entry.at("enabled")->get<bool>()) continue;
            const auto& parameters = *entry.at("value")->at("parameters")->get<PropertyList::Array>();
            texts += id + ":" + parameters[1].description() + "+" + parameters[2].description() + " ";
        }
        return texts;
    }

    std::string keysOf(const std::string& keyboard) {
        source->files[usual] = configuration(keyboard);
        return keys();
    }

    FakeLog log;
    std::string desktop;
    WindowManager windowManager{"Openbox", ""};
    FakeSettingsSource* source = new FakeSettingsSource;
    DesktopPreferences preferences{std::unique_ptr<SettingsSource>(source), [this] { return desktop; },
                                   [this] { return windowManager; }};
};

TEST_F(OpenboxHotKeysTest, AreTheActionsThatDoWhatATitleSays) {
    const std::vector<std::tuple<std::string, std::string, std::string>> cases = {
        {"ToggleShowDesktop", "", "36"},
        {"toggleshowdesktop", "", "36"},
        {"ShowDesktop", "", ""},
        {"GoToDesktop", "<to>left</to><wrap>no</wrap>", "79"},
        {"GoToDesktop", "<to>next</to>", "81"},
        {"GoToDesktop", "<to>East</to>", "81"},
        {"GoToDesktop", "<to>up</to>", ""},
        {"GoToDesktop", "<to>4</to>", "121"},
        {"GoToDesktop", "<to>5</to>", ""},
        {"GoToDesktop", "<desktop>1</desktop>", ""},
        {"Desktop", "<desktop>1</desktop>", "118"},
        {"DesktopLeft", "<wrap>no</wrap>", "79"},
        {"SendToDesktop", "<to>1</to>", ""},
        {"NextWindow", "", "9"},
        {"NextWindow", "<panels>no</panels>", "9"},
        {"NextWindow", "<panels>yes</panels>", ""},
        {"ShowMenu", "<menu>root-menu</menu>", "160"},
        {"ShowMenu", "<menu>client-menu</menu>", ""},
        {"Execute", "<command>scrot</command>", "28"},
        {"Execute", "<execute>/usr/bin/scrot --select</execute>", "30"},
        {"Execute", "<command>scrot -u</command>", ""},
        {"Execute", "<command>scrot -e 'xclip -selection clipboard $f'</command>", "28"},
        {"Execute", "<command>gnome-screenshot --area -c</command>", "31"},
        {"Execute", "<command>xfce4-screenshooter -f</command>", "28"},
        {"Execute", "<command>lxpanelctl menu</command>", "160"},
        {"Execute", "<command>lxpanelctl run</command>", ""},
        {"Execute", "<command>rofi -show drun</command>", "160"},
        {"Execute", "<command>rofi -show window</command>", ""},
        {"Execute", "<command>'scrot</command>", ""},
        {"Restart", "<command>scrot</command>", ""},
    };
    for (const auto& [action, options, id] : cases) {
        EXPECT_EQ(keysOf(keybind("W-d", action, options)), id.empty() ? "" : id + ":2+262144 ") << action << options;
    }
}

TEST_F(OpenboxHotKeysTest, AreWrittenInItsOwnWords) {
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"C-A-Left", "123+1572864"},         {"W-D", "2+262144"},     {"Print", "105+0"},
        {"control-Shift-F1", "122+1179648"}, {"M-F2", "120+524288"},  {"H-Mod1-F2", "120+786432"},
        {"XF86Mail W-d", "2+262144"},        {"W-x W-d", "7+262144"},
    };
    for (const auto& [key, expected] : cases) {
        EXPECT_EQ(keysOf(keybind(key, "ToggleShowDesktop")), "36:" + expected + " ") << key;
    }
    for (const auto* key : {"tab", "Above_Tab", "Ctrl-d", "Mod2-d", "W-0x28", "W-", "-", ""}) {
        EXPECT_EQ(keysOf(keybind(key, "ToggleShowDesktop")), "") << key;
    }
}

TEST_F(OpenboxHotKeysTest, LeaveOutKeysThatDoMoreThanOneThing) {
    const auto show = keybind("W-d", "ToggleShowDesktop");
    const auto chain = "<keybind key=\"W-d\">" + keybind("a", "Lower") + "</keybind>";
    EXPECT_EQ(keysOf("<keybind key=\"W-d\"><action name=\"ToggleShowDesktop\"/><action name=\"Lower\"/></keybind>"),
              "");
    EXPECT_EQ(keysOf(show + keybind("Super-d", "Lower")), "");
    EXPECT_EQ(keysOf(chain + show), "");
    EXPECT_EQ(keysOf(show + chain), "36:2+262144 ");
}

TEST_F(OpenboxHotKeysTest, AreReadFromTheFileThatItWasToldElseTheUsualOne) {
    source->files[usual] = configuration(keybind("W-d", "ToggleShowDesktop"));
    source->files["/home/me/lxde-rc.xml"] = configuration(keybind("W-h", "ToggleShowDesktop"));
    source->files["mine.xml"] = configuration("");
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"", "36:2+262144 "},
        {"/home/me/lxde-rc.xml", "36:4+262144 "},
        {"/home/me/missing.xml", "36:2+262144 "},
        {"mine.xml", "36:2+262144 "},
    };
    for (const auto& [file, expected] : cases) {
        windowManager.configuration = file;
        EXPECT_EQ(keys(), expected) << file;
    }
}

TEST_F(OpenboxHotKeysTest, OfAFileThatCannotBeReadHaveNoValueAndOneLogLine) {
    EXPECT_EQ(keys(), "no value");
    EXPECT_EQ(log.lines, std::vector<std::string>{"The configuration of Openbox openbox/rc.xml: there is none"});
    log.lines.clear();
    source->files[usual] = configuration("") + std::string(2 << 20, ' ');
    EXPECT_EQ(keys(), "no value");
    EXPECT_EQ(log.lines.size(), 1U);
}

TEST_F(OpenboxHotKeysTest, AreAnsweredWhereNoKnownDesktopIsNamed) {
    source->files[usual] = configuration(keybind("W-d", "ToggleShowDesktop"));
    source->settings["org.gnome.desktop.wm.keybindings show-desktop"] = {"<Super>h"};
    for (const auto* name : {"", "LXDE", "LXQt", "openbox"}) {
        desktop = name;
        EXPECT_EQ(keys(), "36:2+262144 ") << name;
    }
    desktop = "GNOME";
    EXPECT_EQ(keys(), "36:4+262144 ");
    desktop = "";
    windowManager.name = "i3";
    EXPECT_EQ(keys(), "no value");
}

}  // namespace
}  // namespace orlamo::desktops
