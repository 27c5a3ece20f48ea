#pragma once

#include <functional>

#include "platform/Accessibility.h"
#include "platform/atspi/Connection.h"
#include "platform/atspi/MenuTree.h"

namespace orlamo::atspi {

/// Performs a menu item in its program, after asking whether it is still the item that was read: the same name, a menu
/// item's role, the same key binding, and not disabled. One that was enabled when it was read and is disabled now gets
/// a chance to be enabled again: `bringForward` brings its application to the front. Answers within 850 ms.
AXError pressMenuItem(Connection& bus, const MenuNode& item, const std::function<bool()>& bringForward);

}  // namespace orlamo::atspi
