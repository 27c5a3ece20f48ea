#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Workspace.h"

namespace orlamo {

class FakeWorkspace : public Workspace {
public:
    std::optional<RunningApplication> frontmostApplication() override { return frontmost; }

    std::vector<RunningApplication> runningApplicationsWithBundleIdentifier(std::string_view identifier) override {
        std::vector<RunningApplication> found;
        for (const RunningApplication& application : running) {
            if (application.bundleIdentifier == identifier) found.push_back(application);
        }
        return found;
    }

    bool activateWithOptions(const RunningApplication& application, unsigned options) override {
        activations.push_back({application.processIdentifier, options});
        return true;
    }

    bool openURL(std::string_view address) override {
        opened.emplace_back(address);
        return openingSucceeds;
    }

    std::optional<RunningApplication> frontmost;
    std::vector<RunningApplication> running;            // the most recently active first
    std::vector<std::pair<int, unsigned>> activations;  // process id, options
    std::vector<std::string> opened;                    // addresses
    bool openingSucceeds = true;

private:
    Installation installation_{*this};
};

}  // namespace orlamo
