#pragma once

#include <bitset>
#include <cstdint>
#include <functional>
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

/// The two kinds of requests by which a program gets a combination wherever the focus is.
enum class GrabKind { core, xinput };

/// Whether another program has asked for this key with exactly these real modifiers.
using IsGrabbed = std::function<bool(GrabKind kind, std::uint8_t key, std::uint8_t realModifiers)>;

/// What the desktop has asked for.
struct DesktopGrabs {
    IsGrabbed isGrabbed;
    /// It asks for a key that types its symbol with Shift only together with Shift, as KWin does. The others take
    /// Super and the key of 7 for Super+/ on a German keyboard.
    bool addsShift = false;
};

/// Why nothing is posted.
struct Refusal {
    std::string reason;
    bool operator==(const Refusal&) const = default;
};

/// How to type a virtual key code with exactly the four modifiers of `flags`; other bits of `flags` are not looked at.
///
/// Several keys may type that code: in another group, or with Shift or AltGr. The desktop has taken its hot keys from
/// one of them, so the one that another program asked for is typed. Those with core requests (Openbox, xfwm4, metacity,
/// marco, KWin) look through the groups in order; those with the input extension's (GNOME) prefer the group in use.
/// When nobody asked, it is the key of the group in use, else of the first group that has one, and a key that does not
/// type it by itself is refused.
///
/// Releasing a synthesized modifier would clear the user's own, so what is held is never touched, and what is held
/// beyond the combination cannot be helped.
std::variant<PostingPlan, Refusal> planPosting(const KeyboardLayout& layout, const HeldKeys& keyboard,
                                               std::uint16_t virtualKeyCode, std::uint64_t flags,
                                               const DesktopGrabs& desktop);

}  // namespace orlamo::x11
