#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Service.h"

namespace orlamo {

struct RunningApplication {
    int processIdentifier = 0;
    std::optional<std::string> bundleIdentifier;  // the desktop-file id, else the window class
    std::string localizedName;                    // for people; may be empty
};

/// The applications on the user's desktop.
class Workspace : public Service<Workspace> {
public:
    static constexpr unsigned activateIgnoringOtherApps = 2;

    virtual ~Workspace() = default;

    /// The application that has the input focus; this program too. None when no window is active.
    virtual std::optional<RunningApplication> frontmostApplication() = 0;
    /// Those with a window, the most recently active first.
    virtual std::vector<RunningApplication> runningApplicationsWithBundleIdentifier(std::string_view identifier) = 0;
    /// Brings the application to the front: the window that had the focus last gets it again. False: no such window.
    virtual bool activateWithOptions(const RunningApplication& application, unsigned options) = 0;

    /// Opens the address with the program that the desktop has for its scheme, or the part of the desktop's settings it
    /// names. False: not an address, or nothing opens it.
    virtual bool openURL(std::string_view address) = 0;
};

}  // namespace orlamo
