#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orlamo::desktops {

/// An action that KDE's service for global shortcuts knows.
struct GlobalShortcut {
    std::string component;
    std::string action;
    std::vector<std::int32_t> keys;  // Qt keys with modifier bits; of a chord only the first is told
};

/// Where desktops keep their shortcuts. Each answer is absent when there is nobody to ask; none takes longer than the
/// time that is left since the last refresh().
class SettingsSource {
public:
    virtual ~SettingsSource() = default;

    /// What is read from now on is what is stored now; a new stretch of time begins.
    virtual void refresh() = 0;
    /// The texts of a GSettings key, one for a key that holds a single text. Absent without that schema or key.
    virtual std::optional<std::vector<std::string>> texts(std::string_view schema, std::string_view key) = 0;
    /// The properties of an xfconf channel by path; booleans are "true" and "false", other types are left out.
    virtual std::optional<std::map<std::string, std::string>> properties(std::string_view channel) = 0;
    /// The actions of those components; components that do not run are left out.
    virtual std::optional<std::vector<GlobalShortcut>> globalShortcuts(
        std::span<const std::string_view> components) = 0;
    /// The first `limit` bytes of a file, at most; a relative path is that of the first folder for the configuration
    /// of programs, the user's own before the system's, where such a file can be read.
    virtual std::optional<std::string> file(std::string_view path, std::size_t limit) = 0;
};

}  // namespace orlamo::desktops
