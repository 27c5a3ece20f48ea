#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace orlamo::atspi {

/// A menu item's shortcut in the accessibility interface's own terms.
struct Shortcut {
    /// Bits of the modifier number: 1 Shift, 2 Option, 4 Control, 8 no Command.
    std::int64_t modifiers = 0;
    /// The key character (UTF-8), or empty for a key that has none.
    std::string character;
    /// The number of the menu glyph of a key without a character; 0 when there is none either.
    std::int64_t glyph = 0;

    bool operator==(const Shortcut&) const = default;
};

/// The character of the same key without Shift, for a character that the active layout types with Shift; none for
/// every other character.
using BaseKeyOfShifted = std::function<std::optional<char32_t>(char32_t)>;

/// The answer of a us layout, for when the active one cannot be asked.
std::optional<char32_t> baseKeyOfShiftedOnUsLayout(char32_t character);

/// Whether a key character is one that has a key code: those that parseShortcut gives.
bool hasKeyCode(std::string_view character);

/// What a toolkit answers for a menu item's key binding, taken apart.
struct KeyBinding {
    /// The text of the shortcut as the toolkit writes it; empty: the item has none.
    std::string_view shortcut;
    /// Set when the text may be the mnemonic that Qt answers for an item without a shortcut ("Alt+M"): this character
    /// (UTF-8). It is the mnemonic exactly if the item's name holds that character, upper or lower case as it stands:
    /// Qt writes a mnemonic as the name has it, and a shortcut always in upper case.
    std::string_view possibleMnemonic;
};

/// `text`: GTK's "mnemonic;path;shortcut", or Qt's one text.
KeyBinding parseKeyBinding(std::string_view text);

/// The shortcut that a text such as "<Primary><Shift>n", "Ctrl+Shift+N" or "Strg+N" names, read for a PC keyboard: Ctrl
/// is Command, Alt is Option, Super is Control. None for what the interface cannot say: a chord of several strokes, a
/// modifier that has no role, a key that is not known.
std::optional<Shortcut> parseShortcut(std::string_view text, const BaseKeyOfShifted& baseKeyOfShifted);

}  // namespace orlamo::atspi
