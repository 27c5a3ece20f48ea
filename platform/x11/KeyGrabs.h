#pragma once

#include <cstdint>

#include "platform/x11/Connection.h"
#include "platform/x11/PostingPlan.h"

namespace orlamo::x11 {

/// Whether another program has asked on the root window for this key with exactly these real modifiers. The server does
/// not tell, but refuses a second such request: one is made and at once taken back. Hold the server meanwhile, so that
/// nobody misses a key. Two round trips at most.
bool isGrabbed(Connection& connection, GrabKind kind, std::uint8_t key, std::uint8_t realModifiers);

}  // namespace orlamo::x11
