#include "platform/desktops/ActionTables.h"

namespace orlamo::desktops {

namespace {

constexpr std::string_view wm = "org.gnome.desktop.wm.keybindings";
constexpr std::string_view mediaKeys = "org.gnome.settings-daemon.plugins.media-keys";
constexpr std::string_view shell = "org.gnome.shell.keybindings";
constexpr std::string_view budgieWm = "com.solus-project.budgie-wm";
constexpr std::string_view cinnamon = "org.cinnamon.desktop.keybindings";
constexpr std::string_view cinnamonWm = "org.cinnamon.desktop.keybindings.wm";
constexpr std::string_view cinnamonMediaKeys = "org.cinnamon.desktop.keybindings.media-keys";
constexpr std::string_view marco = "org.mate.Marco.global-keybindings";
constexpr std::string_view mateMediaKeys = "org.mate.SettingsDaemon.plugins.media-keys";

// What every desktop built on GNOME's settings does itself.
constexpr SettingsRow gnomeBasedRows[] = {
    {33, wm, "switch-group"},
    {36, wm, "show-desktop"},
    {79, wm, "switch-to-workspace-left"},
    {81, wm, "switch-to-workspace-right"},
    {118, wm, "switch-to-workspace-1"},
    {119, wm, "switch-to-workspace-2"},
    {120, wm, "switch-to-workspace-3"},
    {121, wm, "switch-to-workspace-4"},
    {9, wm, "switch-windows"},
    {9, wm, "cycle-windows"},
    {27, wm, "cycle-group"},
    {60, wm, "switch-input-source-backward"},
    {61, wm, "switch-input-source"},
    {64, mediaKeys, "search"},
    {25, mediaKeys, "toggle-contrast"},
    {59, mediaKeys, "screenreader"},
    {98, mediaKeys, "help"},
};

// Ctrl+Alt+Tab walks through the top bar and the dash, or the panels.
constexpr SettingsRow panelRows[] = {
    {8, wm, "switch-panels"},
    {8, wm, "cycle-panels"},
};

constexpr SettingsRow gnomeShellRows[] = {
    {160, shell, "toggle-application-view"},
    {32, shell, "toggle-overview"},
    {163, shell, "toggle-message-tray"},
    {57, shell, "toggle-quick-settings"},
    {28, shell, "screenshot"},
    {30, shell, "show-screenshot-ui"},
    {15, mediaKeys, "magnifier"},
    {17, mediaKeys, "magnifier-zoom-in"},
    {19, mediaKeys, "magnifier-zoom-out"},
};

// Screenshot keys of the settings daemon, before GNOME 42 moved them into its shell.
constexpr SettingsRow mediaKeysScreenshotRows[] = {
    {28, mediaKeys, "screenshot"},
    {29, mediaKeys, "screenshot-clip"},
    {30, mediaKeys, "area-screenshot"},
    {31, mediaKeys, "area-screenshot-clip"},
};

constexpr SettingsRow budgieRows[] = {
    {160, wm, "panel-main-menu"},           {163, budgieWm, "toggle-notifications"},  {163, budgieWm, "toggle-raven"},
    {28, budgieWm, "take-full-screenshot"}, {30, budgieWm, "take-region-screenshot"},
};

constexpr SettingsRow cinnamonRows[] = {
    // Down shows all windows of the workspace, up all workspaces.
    {32, cinnamonWm, "switch-to-workspace-down"},
    {32, cinnamonWm, "switch-to-workspace-up"},
    {33, cinnamonWm, "switch-group"},
    {36, cinnamonWm, "show-desktop"},
    {62, cinnamon, "show-desklets"},
    {79, cinnamonWm, "switch-to-workspace-left"},
    {81, cinnamonWm, "switch-to-workspace-right"},
    {118, cinnamonWm, "switch-to-workspace-1"},
    {119, cinnamonWm, "switch-to-workspace-2"},
    {120, cinnamonWm, "switch-to-workspace-3"},
    {121, cinnamonWm, "switch-to-workspace-4"},
    {8, cinnamonWm, "switch-panels"},
    {9, cinnamonWm, "switch-windows"},
    {60, cinnamonWm, "switch-input-source-backward"},
    {61, cinnamonWm, "switch-input-source"},
    {28, cinnamonMediaKeys, "screenshot"},
    {29, cinnamonMediaKeys, "screenshot-clip"},
    {30, cinnamonMediaKeys, "area-screenshot"},
    {31, cinnamonMediaKeys, "area-screenshot-clip"},
    {64, cinnamonMediaKeys, "search"},
    {17, cinnamon, "magnifier-zoom-in"},
    {19, cinnamon, "magnifier-zoom-out"},
    {25, cinnamonMediaKeys, "toggle-contrast"},
    {59, cinnamonMediaKeys, "screenreader"},
    {98, cinnamonMediaKeys, "help"},
};

constexpr SettingsRow mateRows[] = {
    {160, marco, "panel-main-menu"},
    {33, marco, "switch-group"},
    {36, marco, "show-desktop"},
    {79, marco, "switch-to-workspace-left"},
    {81, marco, "switch-to-workspace-right"},
    {118, marco, "switch-to-workspace-1"},
    {119, marco, "switch-to-workspace-2"},
    {120, marco, "switch-to-workspace-3"},
    {121, marco, "switch-to-workspace-4"},
    {8, marco, "switch-panels"},
    {8, marco, "cycle-panels"},
    {9, marco, "switch-windows"},
    {9, marco, "cycle-windows"},
    {27, marco, "cycle-group"},
    {28, marco, "run-command-screenshot"},
    {64, mateMediaKeys, "search"},
    {15, mateMediaKeys, "magnifier"},
    {59, mateMediaKeys, "screenreader"},
    {98, mateMediaKeys, "help"},
};

constexpr XfceWindowRow windowRows[] = {
    {33, "switch_window_key"},   {36, "show_desktop_key"}, {79, "left_workspace_key"},
    {81, "right_workspace_key"}, {118, "workspace_1_key"}, {119, "workspace_2_key"},
    {120, "workspace_3_key"},    {121, "workspace_4_key"}, {9, "cycle_windows_key"},
};

constexpr CommandRow commandTable[] = {
    {160, "xfce4-appfinder", "", "c"},
    {160, "xfce4-popup-whiskermenu", ""},
    {160, "xfce4-popup-applicationsmenu", ""},
    {160, "lxpanelctl", "", "", "menu"},
    {160, "rofi", "", "", "drun"},
    {160, "rofi", "", "", "run"},
    {160, "dmenu_run", ""},
    {160, "jgmenu_run", ""},
    // Without an option its dialog asks what to do with a picture of the whole screen.
    {28, "xfce4-screenshooter", "f", "c"},
    {28, "xfce4-screenshooter", "", "rwc"},
    {29, "xfce4-screenshooter", "fc"},
    {30, "xfce4-screenshooter", "r", "c"},
    {31, "xfce4-screenshooter", "rc"},
    {28, "gnome-screenshot", "", "awci"},
    {29, "gnome-screenshot", "c", "awi"},
    {30, "gnome-screenshot", "a", "ci"},
    {31, "gnome-screenshot", "ac", "i"},
    {28, "mate-screenshot", "", "awci"},
    {29, "mate-screenshot", "c", "awi"},
    {30, "mate-screenshot", "a", "ci"},
    {31, "mate-screenshot", "ac", "i"},
    {28, "scrot", "", "asuwkCM"},
    {30, "scrot", "s"},
    {64, "catfish", ""},
    {59, "orca", ""},
    {162, "xfce4-accessibility-settings", ""},
    {98, "xfhelp4", ""},
};

// Openbox takes older names of its actions too.
constexpr OpenboxRow openboxTable[] = {
    {160, "ShowMenu", "menu", "root-menu"},
    {36, "ToggleShowDesktop"},
    {79, "GoToDesktop", "to", "left"},
    {79, "GoToDesktop", "to", "west"},
    {79, "DesktopLeft"},
    {79, "GoToDesktop", "to", "previous"},
    {79, "DesktopPrevious"},
    {81, "GoToDesktop", "to", "right"},
    {81, "GoToDesktop", "to", "east"},
    {81, "DesktopRight"},
    {81, "GoToDesktop", "to", "next"},
    {81, "DesktopNext"},
    {118, "GoToDesktop", "to", "1"},
    {118, "Desktop", "desktop", "1"},
    {119, "GoToDesktop", "to", "2"},
    {119, "Desktop", "desktop", "2"},
    {120, "GoToDesktop", "to", "3"},
    {120, "Desktop", "desktop", "3"},
    {121, "GoToDesktop", "to", "4"},
    {121, "Desktop", "desktop", "4"},
    // With panels it does not go to the next window alone.
    {9, "NextWindow", "panels", ""},
    {9, "NextWindow", "panels", "no"},
};

constexpr std::string_view layouts = "KDE Keyboard Layout Switcher";
constexpr std::string_view spectacle = "org.kde.spectacle.desktop";

constexpr KdeRow kdeTable[] = {
    {160, "plasmashell", "activate application launcher"},
    {32, "kwin", "Overview"},
    {32, "kwin", "ExposeAll"},
    {32, "kwin", "Expose"},
    {175, "plasmashell", "toggle do not disturb"},
    {33, "kwin", "ExposeClass"},
    {33, "kwin", "ExposeClassCurrentDesktop"},
    {36, "kwin", "Show Desktop"},
    {62, "plasmashell", "show dashboard"},
    {79, "kwin", "Switch One Desktop to the Left"},
    {81, "kwin", "Switch One Desktop to the Right"},
    {118, "kwin", "Switch to Desktop 1"},
    {119, "kwin", "Switch to Desktop 2"},
    {120, "kwin", "Switch to Desktop 3"},
    {121, "kwin", "Switch to Desktop 4"},
    {8, "plasmashell", "cycle-panels"},
    {9, "kwin", "Walk Through Windows"},
    {27, "kwin", "Walk Through Windows of Current Application"},
    {60, layouts, "Switch to Last-Used Keyboard Layout"},
    {61, layouts, "Switch to Next Keyboard Layout"},
    {28, spectacle, "FullScreenScreenShot"},
    {30, spectacle, "RectangularRegionScreenShot"},
    {64, "org.kde.krunner.desktop", "_launch"},
    {64, "krunner.desktop", "_launch"},
    {17, "kwin", "view_zoom_in"},
    {19, "kwin", "view_zoom_out"},
    {21, "kwin", "Invert"},
    {59, "kaccess", "Toggle Screen Reader On and Off"},
};

}  // namespace

std::vector<std::span<const SettingsRow>> settingsRows(Desktop desktop) {
    switch (desktop) {
        case Desktop::gnome:
            return {gnomeShellRows, gnomeBasedRows, panelRows, mediaKeysScreenshotRows};
        case Desktop::gnomeBased:
            return {gnomeBasedRows, mediaKeysScreenshotRows};
        case Desktop::flashback:
            return {gnomeBasedRows, panelRows, mediaKeysScreenshotRows};
        case Desktop::budgie:
            return {budgieRows, gnomeBasedRows};
        case Desktop::cinnamon:
            return {cinnamonRows};
        case Desktop::mate:
            return {mateRows};
        case Desktop::xfce:
        case Desktop::kde:
            break;
    }
    return {};
}

std::span<const XfceWindowRow> xfceWindowRows() {
    return windowRows;
}

std::span<const CommandRow> commandRows() {
    return commandTable;
}

std::span<const OpenboxRow> openboxRows() {
    return openboxTable;
}

std::span<const KdeRow> kdeRows() {
    return kdeTable;
}

}  // namespace orlamo::desktops
