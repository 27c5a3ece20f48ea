#pragma once

#include <vector>

#include "core/ShortcutRecords.h"

namespace orlamo {

/// Reads the menu bar of the frontmost application: every enabled item that has a shortcut, in menu order with the
/// headings of its menu and submenu, and the application's name as the last entry. Empty when nothing can be read.
/// Replaces menuItemTitles and menuItemElements, appends to menuItemKeyCodes, activates that application and blocks
/// for 0.05 s before it reads.
std::vector<MenuEntry> harvestMenuShortcuts();

}  // namespace orlamo
