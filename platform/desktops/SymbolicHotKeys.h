#pragma once

#include "platform/PropertyList.h"
#include "platform/desktops/Desktop.h"
#include "platform/desktops/SettingsSource.h"

namespace orlamo::desktops {

/// The desktop's shortcuts as symbolic hot keys: a dictionary from decimal ID to {"enabled", "value": {"parameters":
/// [character code, virtual key code, EventFlags mask]}}. A hot key is left out when the desktop has no such action, or
/// has it only on keys that cannot be written so; an action without keys is there with "enabled" false.
/// Absent when the desktop's settings could not be read.
PropertyList symbolicHotKeys(Desktop desktop, SettingsSource& source);

}  // namespace orlamo::desktops
