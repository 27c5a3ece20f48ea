#include "shell/settings/Settings.h"

#include <optional>

#include "platform/KeyedArchive.h"

namespace orlamo {

namespace {

struct InitialValue {
    std::string_view key;
    bool value;
};

constexpr std::array<InitialValue, defaultsInitializationKeys.size()> initialValues{{
    {SettingsKeys::isLaunchAtLoginEnabled, false},
    {SettingsKeys::isHiddenStatusBar, false},
    {SettingsKeys::isBlurStyle, true},
    {SettingsKeys::isContainsAppleMenu, true},
    {SettingsKeys::isEnableAutomaticCheckUpdate, true},
}};

// Converts as a number object does: 0 and 1 are booleans, other numbers and texts are not.
std::optional<bool> asBoolean(const UserDefaults::Value& value) {
    if (const auto* const truth = std::get_if<bool>(&value)) return *truth;
    if (const auto* const number = std::get_if<std::int64_t>(&value);
        number != nullptr && (*number == 0 || *number == 1))
        return *number == 1;
    if (const auto* const number = std::get_if<double>(&value); number != nullptr && (*number == 0 || *number == 1))
        return *number == 1;
    return std::nullopt;
}

}  // namespace

void writeDefaultValues(UserDefaults& defaults) {
    std::array<bool, defaultsInitializationKeys.size()> stored{};
    for (std::size_t i = 0; i < stored.size(); ++i) {
        const auto value = asBoolean(defaults.objectForKey(defaultsInitializationKeys[i]));
        if (!value) {
            for (const InitialValue& initial : initialValues) defaults.setObject(initial.key, initial.value);
            return;
        }
        stored[i] = *value;
    }
    for (std::size_t i = 0; i < stored.size(); ++i) defaults.setObject(defaultsInitializationKeys[i], stored[i]);
}

void saveSelectedColor(const Color& color) {
    auto data = archivedDataWithColor(color);
    if (!data) return;
    UserDefaults::standardUserDefaults().setObject(SettingsKeys::selectedColorData, std::move(*data));
}

Color loadSelectedColor() {
    const auto data = UserDefaults::standardUserDefaults().dataForKey(SettingsKeys::selectedColorData);
    const auto color = data ? unarchivedColor(*data) : std::nullopt;
    return color.value_or(Color::textBackgroundColor());
}

}  // namespace orlamo
