#include "platform/x11/PostingPlan.h"

#include "platform/EventFlags.h"
#include "platform/x11/KeyTable.h"

namespace orlamo::x11 {

namespace {

constexpr struct {
    std::uint64_t flag;
    const char* name;
} roles[] = {{EventFlags::control, "Super"},
             {EventFlags::command, "Ctrl"},
             {EventFlags::option, "Alt"},
             {EventFlags::shift, "Shift"}};

}  // namespace

std::variant<PostingPlan, Refusal> planPosting(const KeyboardLayout& layout, const HeldKeys& keyboard,
                                               std::uint16_t virtualKeyCode, std::uint64_t flags) {
    if (keyRow(virtualKeyCode) == nullptr) return Refusal{"no key has that code"};
    const auto key = layout.keyFor(virtualKeyCode, keyboard.group);
    if (!key) return Refusal{"the active layout does not type that key by itself"};
    if (keyboard.down[*key]) return Refusal{"the key is down already"};

    // A lock of Ctrl, Alt, Super or Shift counts like a held one; Caps Lock and Num Lock do not matter to a shortcut.
    const std::uint64_t everyRole = EventFlags::command | EventFlags::option | EventFlags::control | EventFlags::shift;
    const std::uint8_t held = keyboard.held | (keyboard.locked & layout.realModifiers(everyRole));
    if ((held & ~layout.realModifiers(flags)) != 0) return Refusal{"another modifier is held"};

    PostingPlan plan;
    plan.key = *key;
    const std::uint64_t heldFlags = layout.eventFlags(held);
    for (const auto& role : roles) {
        if ((flags & role.flag) == 0 || (heldFlags & role.flag) != 0) continue;
        const auto modifier = layout.modifierKey(role.flag);
        if (!modifier) return Refusal{std::string("the keyboard has no key for ") + role.name};
        if (keyboard.down[*modifier]) return Refusal{std::string("the key of ") + role.name + " is down already"};
        plan.modifiers.push_back(*modifier);
    }
    return plan;
}

}  // namespace orlamo::x11
