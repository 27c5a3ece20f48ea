#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "platform/Color.h"

namespace orlamo {

/// The archive of one colour: "OrlC", a version byte 1, and red, green, blue, alpha as little-endian doubles: 37 bytes.
/// No value when the colour has a component that is not a finite number.
std::optional<std::vector<std::uint8_t>> archivedDataWithColor(const Color& color);

/// Exactly the colour that was archived; no value for anything else.
std::optional<Color> unarchivedColor(std::span<const std::uint8_t> data);

}  // namespace orlamo
