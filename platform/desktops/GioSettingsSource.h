#pragma once

#include <chrono>
#include <memory>

#include "platform/desktops/SettingsSource.h"

namespace orlamo::desktops {

/// Reads GSettings, and xfconf and KGlobalAccel over the session bus, and files. Starts no service. What cannot be
/// read is absent, with a line in the log.
class GioSettingsSource final : public SettingsSource {
public:
    /// Reading waits for the bus so long in all between one refresh() and the next. A service that has just started
    /// takes longer than one that runs.
    static constexpr std::chrono::milliseconds longestWait{250};

    GioSettingsSource();
    ~GioSettingsSource() override;

    void refresh() override;
    std::optional<std::vector<std::string>> texts(std::string_view schema, std::string_view key) override;
    std::optional<std::map<std::string, std::string>> properties(std::string_view channel) override;
    std::optional<std::vector<GlobalShortcut>> globalShortcuts(std::span<const std::string_view> components) override;
    std::optional<std::string> file(std::string_view path, std::size_t limit) override;

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

}  // namespace orlamo::desktops
