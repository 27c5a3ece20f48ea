#pragma once

#include <cstdint>

namespace orlamo {

/// Modifier bits of event flags. Other bits may be set; readers look only at those they know.
namespace EventFlags {
inline constexpr std::uint64_t shift = 0x20000;
inline constexpr std::uint64_t control = 0x40000;
inline constexpr std::uint64_t option = 0x80000;
inline constexpr std::uint64_t command = 0x100000;
/// The whole held-modifier state when nothing is held.
inline constexpr std::uint64_t noneHeld = 0x100;
}  // namespace EventFlags

}  // namespace orlamo
