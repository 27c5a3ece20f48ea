#include "platform/desktops/DesktopPreferences.h"

#include <gtest/gtest.h>

#include "platform/desktops/OpenboxConfiguration.h"
#include "platform/desktops/SharedSettings.h"
#include "tests/doubles/FakeLog.h"
#include "tests/doubles/FakeSettingsSource.h"

namespace orlamo::desktops {
namespace {

constexpr auto domain = "com.apple.symbolichotkeys";
constexpr auto key = "AppleSymbolicHotKeys";
constexpr auto usual = "openbox/rc.xml";

std::string configuration(const std::string& keyboard) {
    return "<?xml version=\"1.0\"?><!-- mine --><openbox_config xmlns=\"http://openbox.org/3.4/rc\"><keyboard>" +
           keyboard + "</keyboard></openbox_config>";
}

std::string keybind(const std::string& key, const std::string& action, const std::string& options = {}) {
    return "<keybind key=\"" + key + "\"><action name=\"" + action + "\">" + options + "</action></keybind>";
}

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

    // The IDs that are switched on, with key code and mask: "36:2+262144 ".
    std::string keys() {
        const auto hotKeys = read(desktop);
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

TEST(SharedSettings, AnswerTheFollowerWhatWasReadForTheFirstReaderAndAfterThatOrWhenForgottenReadAnew) {
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
    settings.forget();
    follower->refresh();
    EXPECT_EQ(source->refreshes, 4);
}

// "C-A-Left W-Left: GoToDesktop{to=left}", one line for each binding.
std::string told(const std::string& xml) {
    std::string error;
    const auto bindings = openboxBindings(xml, error);
    if (!bindings) return error.empty() ? "no reason" : "unreadable";
    std::string lines;
    for (const auto& binding : *bindings) {
        for (const auto& key : binding.keys) lines += key + " ";
        for (const auto& action : binding.actions) {
            lines += action.name + "{";
            for (const auto& [name, value] : action.options) lines += name + "=" + value + ";";
            lines += "}";
        }
        lines += "\n";
    }
    return lines;
}

TEST(OpenboxConfiguration, HasKeysWithTheirActionsAndOptions) {
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"<chainQuitKey>C-g</chainQuitKey><keybind key=\"C-A-Left  W-Left\"><action name=\"GoToDesktop\"><to> "
         "left\n</to><to>right</to><wrap>no</wrap></action></keybind>" +
             keybind("W-d", "Lower") + "<keybind key=\"W-e\"/>",
         "C-A-Left W-Left GoToDesktop{to=left;wrap=no;}\nW-d Lower{}\n"},
        // Actions inside an action, and the keys inside a chain, are left out.
        {keybind("A-Tab", "NextWindow", "<finalactions><action name=\"Focus\"><to>1</to></action></finalactions>"),
         "A-Tab NextWindow{finalactions=;}\n"},
        {"<keybind key=\"W-x\">" + keybind("a", "Lower") + "<action name=\"Raise\"/></keybind>", "W-x \n"},
        // The last section counts, and no mouse.
        {keybind("a", "Lower") + "</keyboard><mouse>" + keybind("b", "Lower") + "</mouse><keyboard>" +
             keybind("c", "Execute", "<command><![CDATA[a && b]]></command>"),
         "c Execute{command=a && b;}\n"},
    };
    for (const auto& [keyboard, expected] : cases) EXPECT_EQ(told(configuration(keyboard)), expected);
}

TEST(OpenboxConfiguration, ThatIsNoneHasAReasonAndNoBindings) {
    std::string deep;
    for (int i = 0; i < 100'000; ++i) deep += "<a>";
    const std::string tooLarge(maximumConfigurationSize + 1, ' ');
    const auto whole = configuration(keybind("a", "Lower"));
    for (const auto& xml : {std::string(), std::string("garbage"), std::string("\0\1\xff", 3), deep, tooLarge,
                            whole.substr(0, whole.size() - 20), configuration("<keybind key=\"a\">"),
                            configuration("&unknown;"), std::string("<html><keyboard/></html>")}) {
        EXPECT_EQ(told(xml), "unreadable") << xml.substr(0, 80);
    }
}

using OpenboxHotKeysTest = DesktopPreferencesTest;

TEST_F(OpenboxHotKeysTest, AreTheActionsThatDoWhatATitleSays) {
    // By ID the actions with their options, or what they execute; without an ID what no title says.
    const std::map<std::string, std::vector<std::string>> cases = {
        {"36", {"ToggleShowDesktop", "toggleshowdesktop"}},
        {"79", {"GoToDesktop <to>left</to><wrap>no</wrap>", "DesktopLeft <wrap>no</wrap>"}},
        {"81", {"GoToDesktop <to>next</to>", "GoToDesktop <to>East</to>"}},
        {"118", {"Desktop <desktop>1</desktop>"}},
        {"121", {"GoToDesktop <to>4</to>"}},
        {"9", {"NextWindow", "NextWindow <panels>no</panels>"}},
        {"160", {"ShowMenu <menu>root-menu</menu>", "$ lxpanelctl menu", "$ rofi -show drun", "$ xfce4-appfinder"}},
        {"28",
         {"$ scrot", "$ scrot -e 'xclip -selection clipboard $f'", "$ xfce4-screenshooter -f",
          "$ xfce4-screenshooter"}},
        {"29", {"$ /usr/bin/xfce4-screenshooter -fc"}},
        {"30", {"Execute <execute>/usr/bin/scrot --select</execute>", "$ xfce4-screenshooter -r"}},
        {"31", {"$ gnome-screenshot --area -c", "$ xfce4-screenshooter --region -c"}},
        {"",
         {"ShowDesktop", "GoToDesktop <to>up</to>", "GoToDesktop <to>5</to>", "GoToDesktop <desktop>1</desktop>",
          "SendToDesktop <to>1</to>", "NextWindow <panels>yes</panels>", "ShowMenu <menu>client-menu</menu>",
          "$ scrot -u", "$ lxpanelctl run", "$ rofi -show window", "$ 'scrot", "Restart <command>scrot</command>",
          "$ xfce4-screenshooter -w", "$ xfce4-appfinder --collapsed", "$ xfce4-appfinder-next", "$ "}},
    };
    for (const auto& [id, actions] : cases) {
        for (const std::string& action : actions) {
            const bool isCommand = action.starts_with('$');
            const auto name = isCommand ? "Execute" : action.substr(0, action.find(' '));
            const auto rest = action.substr(std::min(action.find(' '), action.size()));
            const auto keys = keysOf(keybind("W-d", name, isCommand ? "<command>" + rest + "</command>" : rest));
            EXPECT_EQ(keys, id.empty() ? "" : id + ":2+262144 ") << action;
        }
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
    for (const auto* const file : {"", "/home/me/missing.xml", "mine.xml"}) {
        windowManager.configuration = file;
        EXPECT_EQ(keys(), "36:2+262144 ") << file;
    }
    windowManager.configuration = "/home/me/lxde-rc.xml";
    EXPECT_EQ(keys(), "36:4+262144 ");
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
    source->refreshes = 0;
    EXPECT_EQ(keys(), "no value");
    EXPECT_EQ(source->refreshes, 0) << "nobody is asked";
}

}  // namespace
}  // namespace orlamo::desktops
