#pragma once

#include <functional>
#include <set>
#include <vector>

#include "platform/desktops/SessionServices.h"

namespace orlamo {

/// Everybody is there except those named in `missing`; what is to be performed is written down.
class FakeSessionServices : public desktops::SessionServices {
public:
    void refresh() override {}
    bool isThere(const desktops::SessionDeed& deed) override { return !missing.contains(nameOf(deed)); }
    bool perform(const desktops::SessionDeed& deed) override {
        performed.push_back(nameOf(deed));
        return true;
    }

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

    std::set<std::string> missing;
    std::vector<std::string> performed;
};

}  // namespace orlamo
