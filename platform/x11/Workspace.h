#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/Workspace.h"
#include "platform/x11/Connection.h"
#include "platform/x11/FocusMemory.h"
#include "platform/x11/Windows.h"

namespace orlamo::x11 {

/// Applications by their windows: a dialog belongs to the window it is transient for.
class Workspace final : public orlamo::Workspace {
public:
    using Opener = std::function<bool(std::string_view address)>;

    /// `ownIdentifier` is what this program answers to as a RunningApplication. The memory is shared with the
    /// WindowEffects that take the focus. Opening addresses is the desktop's business, not the X server's.
    Workspace(Connection& connection, Windows& windows, FocusMemory& memory, std::string ownIdentifier, Opener opener)
        : connection_(connection),
          windows_(windows),
          memory_(memory),
          ownIdentifier_(std::move(ownIdentifier)),
          opener_(std::move(opener)) {}

    /// This program from the moment one of its windows has the focus until the focus is elsewhere; also when that
    /// window has just closed and nobody has it.
    std::optional<RunningApplication> frontmostApplication() override;
    std::vector<RunningApplication> runningApplicationsWithBundleIdentifier(std::string_view identifier) override;
    /// By the opener.
    bool openURL(std::string_view address) override { return opener_ && opener_(address); }
    /// Nothing happens to an application that has the focus, so an open menu of it stays open.
    bool activateWithOptions(const RunningApplication& application, unsigned options) override;

private:
    RunningApplication ownApplication() const;
    RunningApplication describe(xcb_window_t window);
    /// Application windows, the most recently active first.
    std::vector<xcb_window_t> recentWindows();
    bool returnFocus(int processIdentifier);
    bool formerIsPutAway(int processIdentifier);

    Connection& connection_;
    Windows& windows_;
    FocusMemory& memory_;
    std::string ownIdentifier_;
    Opener opener_;
};

}  // namespace orlamo::x11
