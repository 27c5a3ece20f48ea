#pragma once

namespace orlamo::desktops {

/// The desktop's own setting that programs offer themselves to assistive ones, which its sessions begin with:
/// "toolkit-accessibility" of org.gnome.desktop.interface. False where that schema is not installed or the user may not
/// change it. Does not wait until it is stored.
bool switchOnToolkitAccessibility();

}  // namespace orlamo::desktops
