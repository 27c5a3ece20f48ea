#include "platform/x11/PostingPlan.h"

#include <algorithm>
#include <iterator>
#include <optional>

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

constexpr std::uint64_t everyRole = EventFlags::command | EventFlags::option | EventFlags::control | EventFlags::shift;

struct Modifiers {
    std::vector<std::uint8_t> keys;  // to press
    std::uint8_t bits = 0;           // real modifiers then held
};

std::variant<Modifiers, Refusal> planModifiers(const KeyboardLayout& layout, const HeldKeys& keyboard,
                                               std::uint64_t flags) {
    // A lock of Ctrl, Alt, Super or Shift counts like a held one; Caps Lock and Num Lock do not matter to a shortcut.
    const std::uint8_t lockedRoles = keyboard.locked & layout.realModifiers(everyRole);
    const std::uint8_t held = keyboard.held | lockedRoles;
    if ((held & ~layout.realModifiers(flags)) != 0) return Refusal{"another modifier is held"};

    Modifiers modifiers;
    const std::uint64_t heldFlags = layout.eventFlags(held);
    for (const auto& role : roles) {
        if ((flags & role.flag) == 0 || (heldFlags & role.flag) != 0) continue;
        const auto key = layout.modifierKey(role.flag);
        if (!key) return Refusal{std::string("the keyboard has no key for ") + role.name};
        if (keyboard.down[*key]) return Refusal{std::string("the key of ") + role.name + " is down already"};
        modifiers.keys.push_back(*key);
    }
    const ModifierState after = layout.afterPressing(modifiers.keys, {keyboard.held, keyboard.group}, keyboard.locked);
    if (after.group != keyboard.group) return Refusal{"these modifiers switch the layout"};
    modifiers.bits = after.held | lockedRoles;
    if (layout.eventFlags(modifiers.bits) != (flags & everyRole)) {
        return Refusal{"the keyboard does not hold these modifiers together"};
    }
    return modifiers;
}

/// The key that types it by itself, in the group in use or else in the first that has one.
std::optional<KeyPlace> usualPlace(const std::vector<KeyPlace>& places, unsigned group) {
    const auto isUsual = [group](const KeyPlace& place) { return place.isPlain && place.group == group; };
    auto found = std::ranges::find_if(places, isUsual);
    if (found == places.end()) found = std::ranges::find(places, true, &KeyPlace::isPlain);
    return found != places.end() ? std::optional(*found) : std::nullopt;
}

struct Candidate {
    std::uint8_t key = 0;
    const Modifiers* modifiers = nullptr;
    bool operator==(const Candidate&) const = default;
};

/// The one of these that another program has asked for.
std::optional<Candidate> grabbedOne(const std::vector<Candidate>& candidates, const std::optional<Candidate>& usual,
                                    const IsGrabbed& isGrabbed) {
    const auto firstOf = [&](GrabKind kind) {
        const auto found = std::ranges::find_if(
            candidates, [&](const Candidate& each) { return isGrabbed(kind, each.key, each.modifiers->bits); });
        return found != candidates.end() ? std::optional(*found) : std::nullopt;
    };
    if (const auto found = firstOf(GrabKind::core)) return found;
    if (usual && isGrabbed(GrabKind::xinput, usual->key, usual->modifiers->bits)) return usual;
    return firstOf(GrabKind::xinput);
}

}  // namespace

std::variant<PostingPlan, Refusal> planPosting(const KeyboardLayout& layout, const HeldKeys& keyboard,
                                               std::uint16_t virtualKeyCode, std::uint64_t flags,
                                               const DesktopGrabs& desktop) {
    if (keyRow(virtualKeyCode) == nullptr) return Refusal{"no key has that code"};
    const auto places = layout.placesOf(virtualKeyCode);
    if (places.empty()) return Refusal{"no layout of this keyboard types that key"};

    const auto modifiers = planModifiers(layout, keyboard, flags);
    if (const auto* const refusal = std::get_if<Refusal>(&modifiers)) return *refusal;
    const auto forShifted = desktop.addsShift ? planModifiers(layout, keyboard, flags | EventFlags::shift) : modifiers;

    std::vector<Candidate> candidates;
    for (const KeyPlace& place : places) {
        const auto* const held = std::get_if<Modifiers>(place.needsShift ? &forShifted : &modifiers);
        if (held != nullptr) candidates.push_back({place.key, held});
    }
    std::optional<Candidate> chosen;
    if (const auto usual = usualPlace(places, keyboard.group)) chosen = {usual->key, &std::get<Modifiers>(modifiers)};
    // With one candidate there is nothing to ask.
    if (!chosen || std::ranges::count(candidates, *chosen) != std::ssize(candidates)) {
        if (const auto grabbed = grabbedOne(candidates, chosen, desktop.isGrabbed)) chosen = grabbed;
    }
    if (!chosen) return Refusal{"no layout types that key by itself, and no program asked for it"};
    if (keyboard.down[chosen->key]) return Refusal{"the key is down already"};
    return PostingPlan{chosen->modifiers->keys, chosen->key};
}

}  // namespace orlamo::x11
