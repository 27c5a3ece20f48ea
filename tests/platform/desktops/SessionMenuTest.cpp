#include "platform/desktops/SessionMenu.h"

#include <gmock/gmock.h>

#include "tests/doubles/FakeSettingsSource.h"

namespace orlamo::desktops {
namespace {

using enum SessionMenuState;
using testing::ElementsAre;

const std::string wm = "org.gnome.desktop.wm.keybindings ";
const std::string shell = "org.gnome.shell.keybindings ";
const std::string mediaKeys = "org.gnome.settings-daemon.plugins.media-keys ";

class SessionMenuTest : public testing::Test {
protected:
    void SetUp() override {
        source.whenAsked = [this] { services.isFresh = false; };  // their time begins after the settings' reading
        source.settings = {{mediaKeys + "screensaver", {"<Super>l"}},
                           {mediaKeys + "logout", {"<Control><Alt>Delete"}},
                           {shell + "toggle-overview", {"<Super>s"}},
                           {wm + "minimize", {"<Super>h"}}};
    }

    SessionMenuState state(Desktop desktop = Desktop::gnome) {
        const auto menu = readSessionMenu(desktop, source, services);
        EXPECT_EQ(menu.commands.size(), menu.state == present ? 4U : 0U);
        return menu.state;
    }

    /// "title mask+code deed", without "session.".
    std::vector<std::string> commands(Desktop desktop) {
        std::vector<std::string> texts;
        for (const auto& [title, key, deed] : readSessionMenu(desktop, source, services).commands) {
            texts.push_back(std::string(title.substr(8)) + " " + std::to_string(key.mask) + "+" +
                            std::to_string(key.keyCode) + " " + FakeSessionServices::nameOf(deed));
        }
        return texts;
    }

    FakeSettingsSource source;
    FakeSessionServices services;
};

TEST_F(SessionMenuTest, OfGnomeLocksLogsOutAndTakesTheFirstTwoOthersThatAreBound) {
    const std::string lock = "lock 262144+37 org.gnome.ScreenSaver Lock";
    const std::string logOut = "log_out 1572864+117 org.gnome.SessionManager Logout";
    const std::string overview = "overview 262144+1 org.gnome.Shell Set";
    EXPECT_THAT(commands(Desktop::gnome), ElementsAre(lock, logOut, overview, "minimize 262144+4 minimize"));
    source.settings[wm + "show-desktop"] = {"<Super>d"};
    EXPECT_THAT(commands(Desktop::gnome), ElementsAre(lock, logOut, overview, "show_desktop 262144+2 show desktop"));
    source.settings[shell + "toggle-overview"] = {""};
    EXPECT_THAT(commands(Desktop::gnome),
                ElementsAre(lock, logOut, "show_desktop 262144+2 show desktop", "minimize 262144+4 minimize"));
    EXPECT_EQ(source.refreshes, 3);
}

TEST_F(SessionMenuTest, OfMateAndCinnamonIsThereWhenLogOutIsBound) {
    const struct {
        Desktop desktop;
        std::string keys, showDesktop, lock;
    } cases[] = {{Desktop::mate, "org.mate.SettingsDaemon.plugins.media-keys ",
                  "org.mate.Marco.global-keybindings show-desktop", "lock 1572864+37 org.mate.ScreenSaver Lock"},
                 {Desktop::cinnamon, "org.cinnamon.desktop.keybindings.media-keys ",
                  "org.cinnamon.desktop.keybindings.wm show-desktop", "lock 1572864+37 org.cinnamon.ScreenSaver Lock"}};
    for (const auto& [desktop, keys, showDesktop, lock] : cases) {
        source.settings = {{keys + "screensaver", {"<Control><Alt>l", "XF86ScreenSaver"}},
                           {keys + "logout", {""}},
                           {keys + "power", {"<Control><Alt>Delete"}},
                           {showDesktop, {"<Super>d"}},
                           {keys + "home", {"<Super>e", "XF86Explorer"}}};
        EXPECT_EQ(state(desktop), notBound);
        source.settings[keys + "logout"] = {"<Super>q"};
        EXPECT_THAT(commands(desktop), ElementsAre(lock, "log_out 262144+12 org.gnome.SessionManager Logout",
                                                   "show_desktop 262144+2 show desktop",
                                                   "home 262144+14 org.freedesktop.FileManager1 ShowFolders"));
    }
}

TEST_F(SessionMenuTest, OfXfceRunsWhatTheUserBoundWhereNoServiceDoesIt) {
    source.xfconf = {{"/commands/default/<Primary><Alt>l", "xflock4"},
                     {"/commands/default/<Primary><Alt>Delete", "xfce4-session-logout"},
                     {"/commands/default/<Alt>F2", "xfce4-appfinder --collapsed"},
                     {"/commands/default/<Super>r", "/usr/bin/xfce4-appfinder -c"},
                     {"/commands/default/<Super>r/startup-notify", "true"},
                     {"/xfwm4/default/<Primary><Alt>d", "show_desktop_key"}};
    const std::string logOut = "log_out 1572864+117 org.xfce.SessionManager Logout";
    const std::string desktop = "show_desktop 1572864+2 show desktop";
    const std::string run = "run 262144+15 /usr/bin/xfce4-appfinder -c";
    EXPECT_THAT(commands(Desktop::xfce),
                ElementsAre("lock 1572864+37 org.xfce.ScreenSaver Lock", logOut, desktop, run));
    services.missing = {"org.xfce.ScreenSaver Lock"};
    EXPECT_THAT(commands(Desktop::xfce),
                ElementsAre("lock 1572864+37 xflock4 org.freedesktop.ScreenSaver", logOut, desktop, run));
    services.missing.insert("xflock4 org.freedesktop.ScreenSaver");
    EXPECT_EQ(state(Desktop::xfce), noService);
    services.missing.clear();
    source.xfconf->insert_or_assign("/commands/default/<Primary><Alt>Delete", "xfce4-session-logout --halt");
    EXPECT_EQ(state(Desktop::xfce), notBound) << "to switch off is not to log out";
}

// A menu cannot say Alt without Ctrl, and the two others need a key of the main block.
TEST_F(SessionMenuTest, CountsOnlyKeysThatAMenuCanSay) {
    struct Case {
        std::vector<std::string> keys;
        SessionMenuState asLock, asOther;
    };
    const std::vector<Case> cases = {{{"<Super>l"}, present, present},
                                     {{"<Shift><Super>Return"}, present, present},
                                     {{"<Control><Super><Alt><Shift>l"}, present, present},
                                     {{"<Control><Alt>Delete"}, present, notBound},
                                     {{"<Super>KP_1"}, present, notBound},
                                     {{"<Alt><Super>l"}, notBound, notBound},
                                     {{"<Alt>l"}, notBound, notBound},
                                     {{"F1"}, notBound, notBound},
                                     {{"XF86ScreenSaver"}, notBound, notBound},
                                     {{"<Alt><Super>l", "<Super>l"}, present, present},
                                     {{}, notBound, notBound}};
    for (const auto& [keys, asLock, asOther] : cases) {
        SetUp();
        source.settings[mediaKeys + "screensaver"] = keys;
        EXPECT_EQ(state(), asLock) << testing::PrintToString(keys);
        SetUp();
        source.settings[shell + "toggle-overview"] = keys;
        EXPECT_EQ(state(), asOther) << testing::PrintToString(keys);
    }
}

TEST_F(SessionMenuTest, ThatIsMissingSaysWhy) {
    EXPECT_EQ(readSessionMenu(std::nullopt, source, services).state, unknownDesktop);
    EXPECT_EQ(state(Desktop::budgie), unknownDesktop);
    EXPECT_EQ(source.refreshes, 0) << "nobody is asked";
    for (const auto desktop : {Desktop::xfce, Desktop::kde, Desktop::mate})
        EXPECT_EQ(state(desktop), noService) << "nobody answers";
    for (const auto* const service : {"org.gnome.ScreenSaver Lock", "org.gnome.SessionManager Logout", "minimize"}) {
        services.missing = {service};
        EXPECT_EQ(state(), noService) << service;
    }
    source.settings[wm + "show-desktop"] = {"<Super>d"};
    EXPECT_EQ(state(), present) << "another one takes the place";
}

}  // namespace
}  // namespace orlamo::desktops
