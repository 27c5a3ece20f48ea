#pragma once

#include "platform/Accessibility.h"
#include "platform/atspi/Connection.h"
#include "platform/atspi/MenuTree.h"

namespace orlamo::atspi {

/// Performs a menu item in its program, after asking whether it is still the item that was read: the same name, a menu
/// item's role, the same key binding, and not disabled. Answers within 550 ms.
AXError pressMenuItem(Connection& bus, const MenuNode& item);

}  // namespace orlamo::atspi
