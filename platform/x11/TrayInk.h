#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "platform/WindowEffects.h"

namespace orlamo::x11 {

/// The colour, as 0xRRGGBB, in which a panel draws its own texts: the first of _NET_SYSTEM_TRAY_COLORS, which has red,
/// green and blue of 16 bits each. None when the panel does not tell.
std::optional<std::uint32_t> panelForeground(std::span<const std::uint32_t> panelColors);

/// The colour in which a shape can be seen in a panel: that one, else a light one on a dark and a dark one on a light
/// `background`. Light where nothing is known.
std::uint32_t trayInk(std::span<const std::uint32_t> panelColors, const PixelImage& background);

}  // namespace orlamo::x11
