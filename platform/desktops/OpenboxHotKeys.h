#pragma once

#include <string>

#include "platform/PropertyList.h"
#include "platform/desktops/SettingsSource.h"

namespace orlamo::desktops {

/// The key bindings of Openbox, in the shape of symbolicHotKeys. `configuration` is the file that Openbox was started
/// with, empty for its usual one. A key that does several actions is left out, for no single title says what it does.
/// Absent, with a line in the log, when the file cannot be read.
PropertyList openboxHotKeys(const std::string& configuration, SettingsSource& source);

}  // namespace orlamo::desktops
