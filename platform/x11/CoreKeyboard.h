#pragma once

#include <xkbcommon/xkbcommon.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "platform/x11/Connection.h"
#include "platform/x11/KeyboardLayout.h"
#include "platform/x11/PostingPlan.h"

namespace orlamo::x11 {

/// The server's core keyboard: what it types and what is held on it. Follows changes of keyboard and layout.
/// Of what the user types it hears nothing but changes of the held modifiers.
class CoreKeyboard {
public:
    explicit CoreKeyboard(Connection& connection);

    /// Without the keyboard extension nothing is known and nothing is told.
    bool isAvailable() const { return device_ >= 0; }
    /// As of now; read anew after the user has changed it.
    const KeyboardLayout& layout();
    /// Asks the server, for whom a change must not slip through that is not heard of yet. Some ten round trips.
    const KeyboardLayout& layoutNow();

    /// The modifiers held now as EventFlags; locks and AltGr are none. EventFlags::noneHeld when none is.
    /// As of the latest change that was received: a drawing pass asks once per cell, too often for a round trip.
    std::uint64_t modifierFlags() const { return lastFlags_; }
    /// With the keys that are down. None when the server does not answer.
    std::optional<HeldKeys> heldKeys();
    /// The group in use, from 0.
    unsigned group();
    /// '=' for '+' on a us layout, in the group in use now; see KeyboardLayout.
    std::optional<char32_t> baseKeyOfShifted(char32_t character) {
        return layout().baseKeyOfShifted(character, group());
    }

    /// Called with the new EventFlags after each change of them. One listener.
    void onModifiersChanged(std::function<void(std::uint64_t)> listener) { listener_ = std::move(listener); }
    /// What follows is typed by this program: not told until the modifiers are again as they were, or for 500 ms.
    void expectOwnTyping();

private:
    struct ContextDeleter {
        void operator()(xkb_context* context) const { xkb_context_unref(context); }
    };
    std::uint64_t askModifierFlags();
    void selectEvents();
    void loadLayout();
    void received(const xcb_generic_event_t& event);
    void modifiersAre(std::uint8_t realModifiers, xcb_timestamp_t time);
    std::uint64_t flagsOf(std::uint8_t realModifiers);

    Connection& connection_;
    std::unique_ptr<xkb_context, ContextDeleter> context_;
    int device_ = -1;
    std::unique_ptr<KeyboardLayout> layout_;
    bool layoutIsStale_ = false;
    std::uint64_t lastFlags_;
    std::optional<xcb_timestamp_t> ownTypingEnds_;
    std::function<void(std::uint64_t)> listener_;
    Connection::Subscription subscription_;
};

}  // namespace orlamo::x11
