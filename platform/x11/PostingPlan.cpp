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

/// The first of these that another program takes its combination from.
std::optional<KeyPlace> grabbedPlace(const std::vector<KeyPlace>& places, const std::optional<KeyPlace>& usual,
                                     std::uint8_t bits, const IsGrabbed& isGrabbed) {
    const auto firstOf = [&](GrabKind kind) {
        const auto found =
            std::ranges::find_if(places, [&](const KeyPlace& place) { return isGrabbed(kind, place.key, bits); });
        return found != places.end() ? std::optional(*found) : std::nullopt;
    };
    if (const auto place = firstOf(GrabKind::core)) return place;
    if (usual && isGrabbed(GrabKind::xinput, usual->key, bits)) return usual;
    return firstOf(GrabKind::xinput);
}

}  // namespace

std::variant<PostingPlan, Refusal> planPosting(const KeyboardLayout& layout, const HeldKeys& keyboard,
                                               std::uint16_t virtualKeyCode, std::uint64_t flags,
                                               const IsGrabbed& isGrabbed) {
    if (keyRow(virtualKeyCode) == nullptr) return Refusal{"no key has that code"};
    const auto places = layout.placesOf(virtualKeyCode);
    if (places.empty()) return Refusal{"no layout of this keyboard types that key"};

    auto modifiers = planModifiers(layout, keyboard, flags);
    if (const auto* const refusal = std::get_if<Refusal>(&modifiers)) return *refusal;
    auto held = std::get<Modifiers>(std::move(modifiers));

    auto place = usualPlace(places, keyboard.group);
    const auto isUsualKey = [&place](const KeyPlace& each) { return place && each.key == place->key; };
    if (!std::ranges::all_of(places, isUsualKey)) {
        if (const auto grabbed = grabbedPlace(places, place, held.bits, isGrabbed)) place = grabbed;
    }
    if (!place) {
        // KWin takes a character that needs Shift together with Shift.
        std::vector<KeyPlace> shifted;
        std::ranges::copy_if(places, std::back_inserter(shifted), &KeyPlace::needsShift);
        auto modifiersAndShift = planModifiers(layout, keyboard, flags | EventFlags::shift);
        if (auto* const more = std::get_if<Modifiers>(&modifiersAndShift)) {
            place = grabbedPlace(shifted, {}, more->bits, isGrabbed);
            if (place) held = std::move(*more);
        }
    }
    if (!place) return Refusal{"no layout types that key by itself, and no program asked for it"};
    if (keyboard.down[place->key]) return Refusal{"the key is down already"};
    return PostingPlan{std::move(held.keys), place->key};
}

}  // namespace orlamo::x11
