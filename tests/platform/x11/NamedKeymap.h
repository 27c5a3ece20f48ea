#pragma once

#include <xkbcommon/xkbcommon.h>

#include "platform/x11/KeyboardLayout.h"

namespace orlamo::x11 {

/// The layout that a server with those names would have.
inline KeyboardLayout layoutNamed(const char* layout, const char* variant = "", const char* options = "") {
    xkb_context* const context = xkb_context_new(XKB_CONTEXT_NO_ENVIRONMENT_NAMES);
    const xkb_rule_names names{"evdev", "pc105", layout, variant, options};
    xkb_keymap* const keymap = xkb_keymap_new_from_names(context, &names, XKB_KEYMAP_COMPILE_NO_FLAGS);
    KeyboardLayout result(keymap);
    xkb_keymap_unref(keymap);
    xkb_context_unref(context);
    return result;
}

// Keycodes of a PC keyboard: the place of the key, whatever it types.
inline constexpr std::uint8_t escapeKey = 9, digitOneKey = 10, digitZeroKey = 19, qKey = 24, yKey = 29,
                              leftControl = 37, aKey = 38, aboveTabKey = 49, leftShift = 50, zKey = 52, leftAlt = 64,
                              capsLock = 66, keypadSeven = 79, upKey = 111, leftSuper = 133;
// Real modifier bits as the server reports them.
inline constexpr std::uint8_t shiftBit = 1, lockBit = 2, controlBit = 4, mod1Bit = 8, mod2Bit = 16, mod4Bit = 64,
                              mod5Bit = 128;

}  // namespace orlamo::x11
