#pragma once

#include <string>

#include "platform/x11/Windows.h"

namespace orlamo::x11 {

/// What the running window manager says about itself.
class WindowManager {
public:
    WindowManager(Connection& connection, Windows& windows) : connection_(connection), windows_(windows) {}

    /// _NET_WM_NAME of its check window; empty without a window manager that has one.
    std::string name();
    /// The file that Openbox was told to read; empty when it reads its usual one, and for other window managers.
    std::string configuration();
    /// Whether it shows the desktop when it is asked to.
    bool canShowDesktop();
    /// Puts all windows away, or brings them back. False without a window manager that can.
    bool toggleShowingDesktop();
    bool canMinimize() { return windows_.hasWindowManager(); }
    /// The window of the application in front: the one that had the focus before this program took it, else the active
    /// one. False when there is none.
    bool minimizeWindowInFront(const FocusMemory& memory);

private:
    Connection& connection_;
    Windows& windows_;
};

}  // namespace orlamo::x11
