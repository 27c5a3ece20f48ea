#include "platform/desktops/SessionTables.h"

namespace orlamo::desktops {

namespace {

using enum SessionRole;

constexpr std::string_view lockScreen = "session.lock";
constexpr std::string_view logOutTitle = "session.log_out";
constexpr std::string_view shutDownTitle = "session.shut_down";
constexpr std::string_view showDesktopTitle = "session.show_desktop";
constexpr std::string_view homeTitle = "session.home";

// The session managers of GNOME, MATE and Cinnamon share a name. Mode 0 asks the user first.
constexpr std::string_view manager = "org.gnome.SessionManager";
constexpr std::string_view managerPath = "/org/gnome/SessionManager";
constexpr BusMethod logOutWithQuestion{manager, managerPath, manager, "Logout", "(uint32 0,)"};
constexpr BusMethod shutDownWithQuestion{manager, managerPath, manager, "Shutdown"};
constexpr BusMethod showHome{.service = "org.freedesktop.FileManager1",
                             .path = "/org/freedesktop/FileManager1",
                             .interface = "org.freedesktop.FileManager1",
                             .method = "ShowFolders",
                             .arguments = "([%h], '')",
                             .mayStartService = true};

constexpr std::string_view gnomeWm = "org.gnome.desktop.wm.keybindings";
constexpr std::string_view gnomeMediaKeys = "org.gnome.settings-daemon.plugins.media-keys";
constexpr std::string_view gnomeSaver = "org.gnome.ScreenSaver";

// Of its shell only this property may be set by everybody; its other doors are for its own programs.
constexpr BusMethod showOverview{"org.gnome.Shell", "/org/gnome/Shell", "org.freedesktop.DBus.Properties", "Set",
                                 "('org.gnome.Shell', 'OverviewActive', <true>)"};
constexpr SessionRow gnome[] = {
    {lock, lockScreen, gnomeMediaKeys, "screensaver",
     BusMethod{gnomeSaver, "/org/gnome/ScreenSaver", gnomeSaver, "Lock", "()", true}},
    {logOut, logOutTitle, gnomeMediaKeys, "logout", logOutWithQuestion},
    {further, "session.overview", "org.gnome.shell.keybindings", "toggle-overview", showOverview},
    {further, showDesktopTitle, gnomeWm, "show-desktop", WindowRequest::showDesktop},
    {further, homeTitle, gnomeMediaKeys, "home", showHome},
    {further, "session.settings", gnomeMediaKeys, "control-center",
     BusMethod{"org.gnome.Settings", "/org/gnome/Settings", "org.freedesktop.Application", "Activate", "(@a{sv} {},)",
               true}},
    {further, "session.minimize", gnomeWm, "minimize", WindowRequest::minimize},
};

constexpr std::string_view marco = "org.mate.Marco.global-keybindings";
constexpr std::string_view marcoWindow = "org.mate.Marco.window-keybindings";
constexpr std::string_view mateMediaKeys = "org.mate.SettingsDaemon.plugins.media-keys";
constexpr std::string_view mateSaver = "org.mate.ScreenSaver";
// "power" asks whether to shut down and offers no log-out, so it is not that.
constexpr SessionRow mate[] = {
    {lock, lockScreen, mateMediaKeys, "screensaver", BusMethod{mateSaver, "/org/mate/ScreenSaver", mateSaver, "Lock"}},
    {logOut, logOutTitle, mateMediaKeys, "logout", logOutWithQuestion},
    {further, showDesktopTitle, marco, "show-desktop", WindowRequest::showDesktop},
    {further, homeTitle, mateMediaKeys, "home", showHome},
    {further, shutDownTitle, mateMediaKeys, "power", shutDownWithQuestion},
    {further, "session.minimize", marcoWindow, "minimize", WindowRequest::minimize},
};

constexpr std::string_view cinnamonWm = "org.cinnamon.desktop.keybindings.wm";
constexpr std::string_view cinnamonMediaKeys = "org.cinnamon.desktop.keybindings.media-keys";
constexpr std::string_view cinnamonSaver = "org.cinnamon.ScreenSaver";
// Its lock takes a message for those who come by.
constexpr SessionRow cinnamon[] = {
    {lock, lockScreen, cinnamonMediaKeys, "screensaver",
     BusMethod{cinnamonSaver, "/org/cinnamon/ScreenSaver", cinnamonSaver, "Lock", "('',)", true}},
    {logOut, logOutTitle, cinnamonMediaKeys, "logout", logOutWithQuestion},
    {further, showDesktopTitle, cinnamonWm, "show-desktop", WindowRequest::showDesktop},
    {further, homeTitle, cinnamonMediaKeys, "home", showHome},
    {further, shutDownTitle, cinnamonMediaKeys, "shutdown", shutDownWithQuestion},
    {further, "session.minimize", cinnamonWm, "minimize", WindowRequest::minimize},
};

constexpr std::string_view commands = "/commands";
constexpr std::string_view xfceSaver = "org.xfce.ScreenSaver";
constexpr BusMethod xfceLogOut{"org.xfce.SessionManager", "/org/xfce/SessionManager", "org.xfce.Session.Manager",
                               "Logout", "(true, true)"};
// Without a screen saver of Xfce's own, the command finds the one that runs.
constexpr SessionRow xfce[] = {
    {lock, lockScreen, commands, "xflock4", BusMethod{xfceSaver, "/org/xfce/ScreenSaver", xfceSaver, "Lock"}},
    {lock, lockScreen, commands, "xflock4", BoundCommand{"org.freedesktop.ScreenSaver"}},
    {logOut, logOutTitle, commands, "xfce4-session-logout", xfceLogOut},
    {further, showDesktopTitle, "/xfwm4", "show_desktop_key", WindowRequest::showDesktop},
    {further, "session.run", commands, "xfce4-appfinder -c", BoundCommand{}},
    {further, "session.run", commands, "xfce4-appfinder --collapsed", BoundCommand{}},
    {further, "session.files", commands, "thunar", BoundCommand{}},
    {further, "session.files", commands, "exo-open --launch FileManager", BoundCommand{}},
    {further, "session.terminal", commands, "exo-open --launch TerminalEmulator", BoundCommand{}},
    {further, "session.terminal", commands, "xfce4-terminal", BoundCommand{}},
    {further, "session.tasks", commands, "xfce4-taskmanager", BoundCommand{}},
};

constexpr SessionRow kdeRow(SessionRole role, std::string_view title, std::string_view component,
                            std::string_view action) {
    return {role, title, component, action, KdeAction{component, action}};
}

constexpr SessionRow kde[] = {
    kdeRow(lock, lockScreen, "ksmserver", "Lock Session"),
    kdeRow(logOut, logOutTitle, "ksmserver", "Log Out"),
    kdeRow(further, "session.overview", "kwin", "Overview"),
    kdeRow(further, showDesktopTitle, "kwin", "Show Desktop"),
    kdeRow(further, "session.files", "org.kde.dolphin.desktop", "_launch"),
    kdeRow(further, "session.terminal", "org.kde.konsole.desktop", "_launch"),
    kdeRow(further, "session.settings", "systemsettings.desktop", "_launch"),
    kdeRow(further, "session.run", "org.kde.krunner.desktop", "_launch"),
    kdeRow(further, "session.minimize", "kwin", "Window Minimize"),
};

}  // namespace

std::span<const SessionRow> sessionRows(Desktop desktop) {
    switch (desktop) {
        case Desktop::gnome:
            return gnome;
        case Desktop::cinnamon:
            return cinnamon;
        case Desktop::mate:
            return mate;
        case Desktop::xfce:
            return xfce;
        case Desktop::kde:
            return kde;
        case Desktop::gnomeBased:
        case Desktop::flashback:
        case Desktop::budgie:
            break;
    }
    return {};
}

}  // namespace orlamo::desktops
