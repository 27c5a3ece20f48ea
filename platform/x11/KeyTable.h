#pragma once

#include <cstdint>
#include <optional>

namespace orlamo::x11 {

inline constexpr std::uint16_t escapeKeyCode = 53;
inline constexpr std::uint16_t graveKeyCode = 50;  // also the key beside 1 on every layout

/// What a key types with nothing held, for a virtual key code. `other` names the same key too: the keypad with and
/// without Num Lock; 0 when there is none.
struct KeyRow {
    std::uint16_t virtualKeyCode;
    std::uint32_t keysym;
    std::uint32_t other = 0;
};

/// The row of that code; null for a code without a key on a PC keyboard.
const KeyRow* keyRow(std::uint16_t virtualKeyCode);
/// The code of a key that types that keysym; the first row's where two keys of the platform share one.
std::optional<std::uint16_t> virtualKeyCodeForKeysym(std::uint32_t keysym);

}  // namespace orlamo::x11
