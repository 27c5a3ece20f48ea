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

// Plain, Shift, AltGr, both.
constexpr xkb_level_index_t levelsOfInterest = 4;

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
    const std::uint8_t keys[] = {static_cast<std::uint8_t>(key)};
    return afterPressing(keys, {}, 0).held;
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

std::vector<KeyPlace> KeyboardLayout::placesOf(std::uint16_t virtualKeyCode) const {
    const KeyRow* const row = keyRow(virtualKeyCode);
    if (row == nullptr || keymap_ == nullptr) return {};
    std::vector<KeyPlace> places;
    for (unsigned group = 0; group < xkb_keymap_num_layouts(keymap_.get()); ++group) {
        for (xkb_level_index_t level = 0; level < levelsOfInterest; ++level) {
            for (xkb_keycode_t key = first_; key <= last_; ++key) {
                const xkb_keysym_t found = keysym(key, group, level);
                if (found == XKB_KEY_NoSymbol || (found != row->keysym && found != row->other)) continue;
                places.push_back({static_cast<std::uint8_t>(key), group, level == 0, level == 1});
            }
        }
    }
    if (virtualKeyCode == graveKeyCode) {
        const xkb_keycode_t key = xkb_keymap_key_by_name(keymap_.get(), "TLDE");
        if (key >= first_ && key <= last_) places.push_back({static_cast<std::uint8_t>(key), 0, false, false});
    }
    return places;
}

ModifierState KeyboardLayout::afterPressing(std::span<const std::uint8_t> keys, ModifierState before,
                                            std::uint8_t locked) const {
    if (keymap_ == nullptr) return before;
    xkb_state* const scratch = xkb_state_new(keymap_.get());
    xkb_state_update_mask(scratch, before.held, 0, locked, 0, 0, before.group);
    for (const std::uint8_t key : keys) xkb_state_update_key(scratch, key, XKB_KEY_DOWN);
    const ModifierState after{
        static_cast<std::uint8_t>(xkb_state_serialize_mods(scratch, XKB_STATE_MODS_DEPRESSED) & 0xff),
        xkb_state_serialize_layout(scratch, XKB_STATE_LAYOUT_EFFECTIVE)};
    xkb_state_unref(scratch);
    return after;
}

bool KeyboardLayout::isEscape(std::uint8_t keycode) const {
    if (keycode < first_ || keycode > last_) return false;
    const xkb_layout_index_t groups = xkb_keymap_num_layouts_for_key(keymap_.get(), keycode);
    for (xkb_layout_index_t group = 0; group < groups; ++group) {
        if (virtualKeyCodeForKeysym(keysym(keycode, group, 0)) == escapeKeyCode) return true;
    }
    return false;
}

KeyboardLayout::Typed KeyboardLayout::typed(char32_t character, unsigned group) const {
    Typed result;
    for (xkb_keycode_t key = first_; key <= last_; ++key) {
        const xkb_keysym_t plain = keysym(key, group, 0);
        if (isKeypad(plain)) continue;
        for (xkb_level_index_t level = 0; level < levelsOfInterest; ++level) {
            const xkb_keysym_t found = keysym(key, group, level);
            if (found == XKB_KEY_NoSymbol || xkb_keysym_to_utf32(found) != character) continue;
            result.atAll = true;
            result.isPlain |= level == 0;
            // A letter's case is no Shift of a shortcut.
            const bool isShifted = level == 1 && xkb_keysym_to_lower(found) != plain;
            const char32_t base = isShifted && !result.base ? xkb_keysym_to_utf32(plain) : 0;
            if (base != 0) result.base = base;
        }
    }
    return result;
}

std::optional<char32_t> KeyboardLayout::baseKeyOfShifted(char32_t character, unsigned group) const {
    Typed found = typed(character, group);
    const unsigned groups = keymap_ != nullptr ? xkb_keymap_num_layouts(keymap_.get()) : 0;
    for (unsigned other = 0; other < groups && !found.atAll; ++other) found = typed(character, other);
    return found.isPlain ? std::nullopt : found.base;
}

}  // namespace orlamo::x11
