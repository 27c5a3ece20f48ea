#pragma once

#include <algorithm>
#include <functional>
#include <set>
#include <vector>

#include "platform/desktops/SessionServices.h"
#include "platform/desktops/SettingsSource.h"

namespace orlamo {

/// Everybody is there except those named in `missing`, once they have been refreshed; nobody does anything.
class FakeSessionServices : public desktops::SessionServices {
public:
    void refresh() override { isFresh = true; }
    bool isThere(const desktops::SessionDeed& deed) override { return isFresh && !missing.contains(nameOf(deed)); }
    bool perform(const desktops::SessionDeed&) override { return false; }

    /// "service method", "minimize", "component action", or the command line with the service it needs.
    static std::string nameOf(const desktops::SessionDeed& deed) {
        const auto text = [](std::string_view a, std::string_view b) { return std::string(a) + " " + std::string(b); };
        if (const auto* const method = std::get_if<desktops::BusMethod>(&deed))
            return text(method->service, method->method);
        if (const auto* const request = std::get_if<desktops::WindowRequest>(&deed))
            return *request == desktops::WindowRequest::minimize ? "minimize" : "show desktop";
        if (const auto* const action = std::get_if<desktops::KdeAction>(&deed))
            return text(action->component, action->action);
        const auto& command = std::get<desktops::CommandLine>(deed);
        return command.service.empty() ? command.text : text(command.text, command.service);
    }

    bool isFresh = false;
    std::set<std::string> missing;
};

/// Answers from its fields. Installs nothing: it is handed over.
class FakeSettingsSource : public desktops::SettingsSource {
public:
    void refresh() override { ++refreshes; }

    std::optional<std::vector<std::string>> texts(std::string_view schema, std::string_view key) override {
        whenAsked();
        const auto found = settings.find(std::string(schema) + " " + std::string(key));
        if (found == settings.end()) return std::nullopt;
        return found->second;
    }

    std::optional<std::map<std::string, std::string>> properties(std::string_view channel) override {
        return channel == "xfce4-keyboard-shortcuts" ? xfconf : std::nullopt;
    }

    std::optional<std::vector<desktops::GlobalShortcut>> globalShortcuts(
        std::span<const std::string_view> components) override {
        if (!kde) return std::nullopt;
        auto answer = *kde;
        std::erase_if(answer, [&](const auto& each) {
            return std::ranges::find(components, each.component) == components.end();
        });
        return answer;
    }

    std::optional<std::string> file(std::string_view path, std::size_t limit) override {
        const auto found = files.find(path);
        if (found == files.end()) return std::nullopt;
        return found->second.substr(0, limit);
    }

    std::function<void()> whenAsked = [] {};
    std::map<std::string, std::vector<std::string>> settings;  // by "schema key"
    std::optional<std::map<std::string, std::string>> xfconf;
    std::optional<std::vector<desktops::GlobalShortcut>> kde;
    std::map<std::string, std::string, std::less<>> files;  // by path as it is asked for
    int refreshes = 0;
};

}  // namespace orlamo
