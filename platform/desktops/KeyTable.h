#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace orlamo::desktops {

/// A key as the desktops write it and as the program counts it.
struct Key {
    std::string_view name;    // X keysym name, in the case of the first binding that one meets; compare without case
    std::uint32_t qtKey;      // Qt::Key, with keypadBit for a key of the keypad; 0 when Qt has none
    std::uint16_t code;       // virtual key code
    std::uint16_t character;  // what it types with nothing held, noCharacter for the others
};

inline constexpr std::uint32_t keypadBit = 0x20000000;  // Qt::KeypadModifier
inline constexpr std::uint16_t noCharacter = 65535;

/// The keys that have a virtual key code and stand on a PC keyboard. Print, Scroll Lock, Pause and Insert are
/// where F13, F14, F15 and Help stand on the keyboard that the codes were made for.
std::span<const Key> keyTable();

}  // namespace orlamo::desktops
