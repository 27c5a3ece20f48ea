#pragma once

#include <array>
#include <string_view>

/// The names of the settings, letter for letter as they stand in the user's file.
/// An absent boolean reads false, an absent integer 0, an absent text or data nothing.
namespace orlamo::SettingsKeys {

/// Text: "Command", "Control" or "Shift", the modifier whose double press opens and closes the panel. Any other text
/// switches the trigger off. Written at launch when absent, and by the settings pane.
inline constexpr std::string_view doubleModifierKey = "doubleModifierKey";
/// Boolean: the status icon is hidden. Followed live by AppDelegate.
inline constexpr std::string_view isHiddenStatusBar = "isHiddenStatusBar";
/// Boolean: the login helper starts at login. Read and written by SettingsController only.
inline constexpr std::string_view isLaunchAtLoginEnabled = "isLaunchAtLoginEnabled";
/// Boolean: the panel is blurred. Read each time its background is built.
inline constexpr std::string_view isBlurStyle = "isBlurStyle";
/// Boolean: the session's menu is shown in the panel. Read each time the panel's view is created.
inline constexpr std::string_view isContainsAppleMenu = "isContainsAppleMenu";
/// Boolean: the option to check for updates automatically.
inline constexpr std::string_view isEnableAutomaticCheckUpdate = "isEnableAutomaticCheckUpdate";
/// Integer, points: kept in the view's ShortcutWindowCornerRadius; no drawing depends on it.
inline constexpr std::string_view CornerRadius = "CornerRadius";
/// Data: the archive of one colour, kept in the view's ShortcutWindowBgColor; no drawing depends on it.
inline constexpr std::string_view selectedColorData = "selectedColorData";
/// Boolean: last state of the Dock check box; not restored at launch.
inline constexpr std::string_view dockIcon = "dockIcon";
/// Boolean: true once the first launch is over.
inline constexpr std::string_view isFirstLaunch = "isFirstLaunch";
/// Text "yyyy-MM-dd'T'HH:mm:ssZ" in the current time zone: the latest launch, for the update decision.
inline constexpr std::string_view LastUpdateCheckDate = "LastUpdateCheckDate";
/// Boolean, only ever set from outside: UpdaterDelegate allows the beta channel.
inline constexpr std::string_view isBetaChannel = "isBetaChannel";
/// Number, seconds since 1970, only ever set from outside: moreApps looks at it.
inline constexpr std::string_view installTime = "installTime";
/// Integer: the place of the status item.
inline constexpr std::string_view statusItemPosition = "NSStatusItem Preferred Position Item-0";
/// Integer: a copy of it, whenever it changes to a value above 0.
inline constexpr std::string_view statusItemPositionCopy = "NSStatusItemPreferredPositionItem-0";

}  // namespace orlamo::SettingsKeys
