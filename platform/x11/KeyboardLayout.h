#pragma once

#include <xkbcommon/xkbcommon.h>

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace orlamo::x11 {

/// One place of a keymap where a key types something.
struct KeyPlace {
    std::uint8_t key = 0;     // keycode
    unsigned group = 0;       // from 0
    bool isPlain = true;      // with nothing held
    bool needsShift = false;  // with Shift alone
    bool operator==(const KeyPlace&) const = default;
};

/// The held real modifiers and the group in force.
struct ModifierState {
    std::uint8_t held = 0;
    unsigned group = 0;
    bool operator==(const ModifierState&) const = default;
};

/// What the keys of a keymap type and which of its modifier bits play our four roles. Immutable; needs no display.
/// A group is the number of the layout in use, from 0; a keycode is the server's, 8 to 255.
class KeyboardLayout {
public:
    /// Keeps a reference of its own; null is a keyboard without keys.
    explicit KeyboardLayout(xkb_keymap* keymap);

    /// Ctrl, Alt, Super and Shift among the real modifier bits, as EventFlags. Other bits (locks, AltGr) say nothing.
    std::uint64_t eventFlags(std::uint8_t realModifiers) const;
    /// The real modifier bits of some EventFlags.
    std::uint8_t realModifiers(std::uint64_t eventFlags) const;
    /// The key to press for one modifier flag.
    std::optional<std::uint8_t> modifierKey(std::uint64_t eventFlag) const;

    /// Where this virtual key code is typed, in the order in which X looks for the key of a symbol: by group, then by
    /// what must be held, then by keycode. The code of the key beside 1 names that key too, whatever it types; then
    /// it comes last and is not plain.
    std::vector<KeyPlace> placesOf(std::uint16_t virtualKeyCode) const;
    /// What is held and in force once these keys are pressed beside what is held already; `locked` real modifiers say
    /// nothing by themselves.
    ModifierState afterPressing(std::span<const std::uint8_t> keys, ModifierState before, std::uint8_t locked) const;
    /// Whether the key types Escape, in any group.
    bool isEscape(std::uint8_t keycode) const;
    /// What the key of a character that needs Shift types without it: '=' for '+' on a us layout. None for letters
    /// and for characters that a key types by itself, or none does. A character that this group does not type at all
    /// is looked for in the others, as programs do with a shortcut.
    std::optional<char32_t> baseKeyOfShifted(char32_t character, unsigned group) const;

private:
    struct KeymapDeleter {
        void operator()(xkb_keymap* keymap) const { xkb_keymap_unref(keymap); }
    };
    struct Role {
        std::uint64_t flag;
        std::uint8_t bits = 0;  // real modifiers
        std::uint8_t key = 0;   // the first key of that name; 0: none
    };
    void findRole(Role& role, std::span<const xkb_keysym_t> keysyms);
    std::uint8_t modifiersOfKey(xkb_keycode_t key) const;
    xkb_keysym_t keysym(xkb_keycode_t key, unsigned group, xkb_level_index_t level) const;
    /// How a group types a character.
    struct Typed {
        bool atAll = false;
        bool isPlain = false;
        std::optional<char32_t> base;  // the first key that types it with Shift types this without
    };
    Typed typed(char32_t character, unsigned group) const;

    std::unique_ptr<xkb_keymap, KeymapDeleter> keymap_;
    xkb_keycode_t first_ = 1;  // an empty range without a keymap
    xkb_keycode_t last_ = 0;
    std::array<Role, 4> roles_;
};

}  // namespace orlamo::x11
