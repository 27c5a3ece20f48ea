#pragma once

#include <vector>

#include "platform/WindowEffects.h"

namespace orlamo::x11 {

/// The pixels that an antialiased rounded rectangle of that size touches, as bands from the top, each as wide as its
/// rows are. Empty for an empty size; the radius is at most half the shorter side.
std::vector<PixelRect> roundedBands(int width, int height, int radius);

}  // namespace orlamo::x11
