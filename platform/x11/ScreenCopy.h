#pragma once

#include <optional>

#include "platform/WindowEffects.h"
#include "platform/x11/Connection.h"
#include "platform/x11/PixelFormat.h"

namespace orlamo::x11 {

/// What the screen shows in that area, through shared memory where the server has it. None when it cannot be read.
std::optional<PixelImage> copyScreenArea(Connection& connection, const PixelRect& area);
/// What a window of the screen's depth holds in that area of its own, also before a compositor has shown it.
std::optional<PixelImage> copyWindowArea(Connection& connection, xcb_window_t window, const PixelRect& area);

}  // namespace orlamo::x11
