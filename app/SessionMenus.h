#pragma once

#include <chrono>

#include "platform/atspi/MenuTree.h"
#include "platform/desktops/GioSessionServices.h"
#include "platform/desktops/SharedSettings.h"
#include "platform/x11/FocusMemory.h"
#include "platform/x11/WindowManager.h"

namespace orlamo {

/// What the desktop can do about the session, as the first menu of every menu bar.
class SessionMenus {
public:
    /// Keeps all three by reference.
    SessionMenus(desktops::SharedSettings& settings, x11::WindowManager& manager, const x11::FocusMemory& focus);

    /// Read anew each time; none where waiting for those who are asked could take longer than the time that is left.
    /// Its items perform through this object, which must outlive them.
    atspi::SessionMenu read(std::chrono::milliseconds timeLeft);

private:
    desktops::SharedSettings& settings_;
    desktops::GioSessionServices services_;
};

}  // namespace orlamo
