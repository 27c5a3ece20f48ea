#pragma once

#include <bitset>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "platform/x11/KeyboardLayout.h"

namespace orlamo::x11 {

/// The keyboard at the moment of posting.
struct HeldKeys {
    std::uint8_t held = 0;    // real modifiers that the user holds or has latched
    std::uint8_t locked = 0;  // real modifiers that are locked: Caps Lock, Num Lock, a locked Ctrl
    unsigned group = 0;
    std::bitset<256> down{};  // by keycode
};

/// Press the modifiers in order, then the key; release in reverse.
struct PostingPlan {
    std::vector<std::uint8_t> modifiers;  // keycodes; none that is held already
    std::uint8_t key = 0;
    bool operator==(const PostingPlan&) const = default;
};

/// Why nothing is posted.
struct Refusal {
    std::string reason;
    bool operator==(const Refusal&) const = default;
};

/// How to type a virtual key code with exactly the four modifiers of `flags`; other bits of `flags` are not looked at.
/// Releasing a synthesized modifier would clear the user's own, so what is held is never touched, and what is held
/// beyond the combination cannot be helped.
std::variant<PostingPlan, Refusal> planPosting(const KeyboardLayout& layout, const HeldKeys& keyboard,
                                               std::uint16_t virtualKeyCode, std::uint64_t flags);

}  // namespace orlamo::x11
