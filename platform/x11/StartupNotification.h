#pragma once

#include <string_view>

#include "platform/x11/Connection.h"

namespace orlamo::x11 {

/// Tells the launcher that gave out this startup id that what it launched is there, so that it stops showing that it
/// waits. Nothing for an empty id.
void completeStartup(Connection& connection, std::string_view startupId);

}  // namespace orlamo::x11
