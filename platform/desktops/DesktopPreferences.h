#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/SystemPreferences.h"
#include "platform/desktops/Desktop.h"
#include "platform/desktops/SettingsSource.h"

namespace orlamo::desktops {

/// Answers "com.apple.symbolichotkeys" from the settings of the desktop that runs. What was read stays until the next
/// CFPreferencesAppSynchronize of that domain. Other domains and keys have no value.
class DesktopPreferences final : public SystemPreferences {
public:
    using CurrentDesktop = std::function<std::string()>;
    using CurrentWindowManager = std::function<WindowManager()>;

    /// The first function tells XDG_CURRENT_DESKTOP. Where that names no desktop that is known, the window manager's
    /// own keys count, if that is Openbox.
    DesktopPreferences(std::unique_ptr<SettingsSource> source, CurrentDesktop currentDesktop,
                       CurrentWindowManager currentWindowManager = {});
    ~DesktopPreferences() override;

    void CFPreferencesAppSynchronize(std::string_view domain) override;
    PropertyList CFPreferencesCopyAppValue(std::string_view key, std::string_view domain) override;

private:
    PropertyList read();
    PropertyList readWindowManager();

    std::unique_ptr<SettingsSource> source_;
    CurrentDesktop currentDesktop_;
    CurrentWindowManager currentWindowManager_;
    std::optional<PropertyList> hotKeys_;
};

}  // namespace orlamo::desktops
