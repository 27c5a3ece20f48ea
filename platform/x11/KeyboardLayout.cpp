#include "platform/x11/KeyboardLayout.h"

#include <xkbcommon/xkbcommon-keysyms.h>

#include <algorithm>

#include "platform/EventFlags.h"
#include "platform/x11/KeyTable.h"

namespace orlamo::x11 {

namespace {

// Left before right: that is the one to press.
constexpr xkb_keysym_t commandKeys[] = {XKB_KEY_Control_L, XKB_KEY_Control_R};
constexpr xkb_keysym_t optionKeys[] = {XKB_KEY_Alt_L, XKB_KEY_Alt_R};
constexpr xkb_keysym_t controlKeys[] = {XKB_KEY_Super_L, XKB_KEY_Super_R};
constexpr xkb_keysym_t shiftKeys[] = {XKB_KEY_Shift_L, XKB_KEY_Shift_R};

constexpr bool isKeypad(xkb_keysym_t keysym) {
    return keysym >= XKB_KEY_KP_Space && keysym <= XKB_KEY_KP_Equal;
}

}  // namespace

KeyboardLayout::KeyboardLayout(xkb_keymap* keymap)
    : keymap_(keymap != nullptr ? xkb_keymap_ref(keymap) : nullptr),
      roles_{Role{EventFlags::command}, Role{EventFlags::option}, Role{EventFlags::control}, Role{EventFlags::shift}} {
    if (keymap_ == nullptr) return;
    first_ = xkb_keymap_min_keycode(keymap_.get());
    last_ = std::min<xkb_keycode_t>(xkb_keymap_max_keycode(keymap_.get()), 255);
    findRole(roles_[0], commandKeys);
    findRole(roles_[1], optionKeys);
    findRole(roles_[2], controlKeys);
    findRole(roles_[3], shiftKeys);
}

void KeyboardLayout::findRole(Role& role, std::span<const xkb_keysym_t> keysyms) {
    for (const xkb_keysym_t wanted : keysyms) {
        for (xkb_keycode_t key = first_; key <= last_; ++key) {
            if (keysym(key, 0, 0) != wanted) continue;
            const std::uint8_t bits = modifiersOfKey(key);
            if (bits == 0) continue;
            role.bits |= bits;
            if (role.key == 0) role.key = static_cast<std::uint8_t>(key);
        }
    }
}

std::uint8_t KeyboardLayout::modifiersOfKey(xkb_keycode_t key) const {
    // Pressing it on a scratch keyboard resolves what Alt and Super are here.
    xkb_state* const scratch = xkb_state_new(keymap_.get());
    xkb_state_update_key(scratch, key, XKB_KEY_DOWN);
    const xkb_mod_mask_t held = xkb_state_serialize_mods(scratch, XKB_STATE_MODS_DEPRESSED);
    xkb_state_unref(scratch);
    return static_cast<std::uint8_t>(held & 0xff);
}

xkb_keysym_t KeyboardLayout::keysym(xkb_keycode_t key, unsigned group, xkb_level_index_t level) const {
    const xkb_keysym_t* keysyms = nullptr;
    const int count = xkb_keymap_key_get_syms_by_level(keymap_.get(), key, group, level, &keysyms);
    return count == 1 ? keysyms[0] : XKB_KEY_NoSymbol;
}

std::uint64_t KeyboardLayout::eventFlags(std::uint8_t realModifiers) const {
    std::uint64_t flags = 0;
    for (const Role& role : roles_) {
        if ((role.bits & realModifiers) != 0) flags |= role.flag;
    }
    return flags;
}

std::uint8_t KeyboardLayout::realModifiers(std::uint64_t eventFlags) const {
    std::uint8_t bits = 0;
    for (const Role& role : roles_) {
        if ((role.flag & eventFlags) != 0) bits |= role.bits;
    }
    return bits;
}

std::optional<std::uint8_t> KeyboardLayout::modifierKey(std::uint64_t eventFlag) const {
    const auto role = std::ranges::find(roles_, eventFlag, &Role::flag);
    if (role == roles_.end() || role->key == 0) return std::nullopt;
    return role->key;
}

std::optional<std::uint8_t> KeyboardLayout::keyFor(std::uint16_t virtualKeyCode, unsigned group) const {
    const KeyRow* const row = keyRow(virtualKeyCode);
    if (row == nullptr) return std::nullopt;
    for (const std::uint32_t wanted : {row->keysym, row->other}) {
        if (wanted == XKB_KEY_NoSymbol) continue;
        for (xkb_keycode_t key = first_; key <= last_; ++key) {
            if (keysym(key, group, 0) == wanted) return static_cast<std::uint8_t>(key);
        }
    }
    return std::nullopt;
}

bool KeyboardLayout::isEscape(std::uint8_t keycode) const {
    if (keycode < first_ || keycode > last_) return false;
    const xkb_layout_index_t groups = xkb_keymap_num_layouts_for_key(keymap_.get(), keycode);
    for (xkb_layout_index_t group = 0; group < groups; ++group) {
        if (virtualKeyCodeForKeysym(keysym(keycode, group, 0)) == escapeKeyCode) return true;
    }
    return false;
}

std::optional<char32_t> KeyboardLayout::baseKeyOfShifted(char32_t character, unsigned group) const {
    std::optional<char32_t> base;
    for (xkb_keycode_t key = first_; key <= last_; ++key) {
        const xkb_keysym_t plain = keysym(key, group, 0);
        if (isKeypad(plain)) continue;
        const char32_t typed = xkb_keysym_to_utf32(plain);
        if (typed == character) return std::nullopt;
        const xkb_keysym_t shifted = keysym(key, group, 1);
        if (base || typed == 0 || xkb_keysym_to_utf32(shifted) != character) continue;
        if (xkb_keysym_to_lower(shifted) == plain) continue;  // a letter's case is no Shift of a shortcut
        base = typed;
    }
    return base;
}

}  // namespace orlamo::x11
