#pragma once

#include "platform/atspi/MenuTree.h"
#include "platform/desktops/GioSessionServices.h"
#include "platform/desktops/SettingsSource.h"
#include "platform/x11/FocusMemory.h"
#include "platform/x11/WindowManager.h"

namespace orlamo {

/// What the desktop can do about the session, as the first menu of every menu bar.
class SessionMenus {
public:
    /// Keeps all three by reference.
    SessionMenus(desktops::SettingsSource& settings, x11::WindowManager& manager, const x11::FocusMemory& focus);

    /// Read anew each time; its items perform through this object, which must outlive them.
    atspi::SessionMenu read();

private:
    desktops::SettingsSource& settings_;
    desktops::GioSessionServices services_;
};

}  // namespace orlamo
