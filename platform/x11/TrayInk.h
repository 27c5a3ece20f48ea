#pragma once

#include <cstdint>
#include <span>

#include "platform/WindowEffects.h"

namespace orlamo::x11 {

/// The colour, as 0xRRGGBB, in which a shape can be seen in a panel: the first of the panel's own colours
/// (_NET_SYSTEM_TRAY_COLORS: red, green and blue of 16 bits each), else a light one on a dark and a dark one on a light
/// `background`. Light where nothing is known.
std::uint32_t trayInk(std::span<const std::uint32_t> panelColors, const PixelImage& background);

}  // namespace orlamo::x11
