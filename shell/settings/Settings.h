#pragma once

#include <array>
#include <string_view>

#include "platform/Color.h"
#include "platform/UserDefaults.h"
#include "shell/settings/SettingsKeys.h"

namespace orlamo {

/// The booleans that writeDefaultValues handles, in this order.
inline constexpr std::array defaultsInitializationKeys{
    SettingsKeys::isLaunchAtLoginEnabled, SettingsKeys::isHiddenStatusBar, SettingsKeys::isBlurStyle,
    SettingsKeys::isContainsAppleMenu, SettingsKeys::isEnableAutomaticCheckUpdate};

/// Keeps the five booleans when all of them are stored; else resets every one of them to its first value.
void writeDefaultValues(UserDefaults& defaults);

/// Stores the colour's archive under selectedColorData; a colour that cannot be archived is not stored.
void saveSelectedColor(const Color& color);

/// The stored colour, or the text-background colour when none is stored or it cannot be read back.
Color loadSelectedColor();

}  // namespace orlamo
