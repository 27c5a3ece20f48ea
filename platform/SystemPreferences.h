#pragma once

#include <string_view>

#include "platform/PropertyList.h"
#include "platform/Service.h"

namespace orlamo {

/// Preferences of another domain, read only. The desktop's own hot keys answer as the domain
/// "com.apple.symbolichotkeys", key "AppleSymbolicHotKeys": a dictionary from hot-key IDs written in decimal to
/// {"enabled": bool, "value": {"parameters": [character code, virtual key code, EventFlags mask]}}.
class SystemPreferences : public Service<SystemPreferences> {
public:
    virtual ~SystemPreferences() = default;

    /// Makes the next read see the preferences as they are stored now.
    virtual void CFPreferencesAppSynchronize(std::string_view domain) = 0;
    /// Absent (std::monostate) when the domain or the key has no value, as where no known desktop runs.
    virtual PropertyList CFPreferencesCopyAppValue(std::string_view key, std::string_view domain) = 0;
};

}  // namespace orlamo
