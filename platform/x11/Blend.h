#pragma once

#include "platform/WindowEffects.h"
#include "platform/x11/Connection.h"

namespace orlamo::x11 {

enum class Blend { over, replace };

/// Lays a picture, its colours multiplied by their alpha, at (x, y) of a window. False when the server cannot blend.
bool blendPicture(Connection& connection, xcb_window_t window, xcb_visualid_t visual, int x, int y,
                  const PixelImage& picture, Blend blend);

}  // namespace orlamo::x11
