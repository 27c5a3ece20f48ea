#pragma once

#include <functional>

#include "platform/Accessibility.h"
#include "platform/atspi/Connection.h"
#include "platform/atspi/MenuTree.h"

namespace orlamo::atspi {

/// Performs a menu item in its program, after asking whether it is still the item that was read: the same name, a menu
/// item's role, the same key binding, and not disabled. One that was enabled when it was read and is disabled now gets
/// a chance to be enabled again: `bringForward` brings its application to the front. Answers within 750 ms.
/// The bus has no way to ask and press in one step: an object that its program renames in the moment between is pressed
/// under its new name. It still is the object that was chosen.
AXError pressMenuItem(Connection& bus, const MenuNode& item, const std::function<bool()>& bringForward);

}  // namespace orlamo::atspi
