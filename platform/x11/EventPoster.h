#pragma once

#include <optional>

#include "platform/EventPoster.h"
#include "platform/x11/Connection.h"
#include "platform/x11/CoreKeyboard.h"
#include "platform/x11/PostingPlan.h"
#include "platform/x11/WindowManager.h"

namespace orlamo::x11 {

/// Types combinations through XTEST, which window managers take for the user's own keys.
class EventPoster final : public orlamo::EventPoster {
public:
    EventPoster(Connection& connection, CoreKeyboard& keyboard, WindowManager& windowManager)
        : connection_(connection), keyboard_(keyboard), windowManager_(windowManager) {}

    /// A key-down is kept until the key-up of the same code. Then the modifiers that are not held yet and the key are
    /// pressed and released in one write, and a process of its own keeps the connection until the server has done it:
    /// a program that is killed meanwhile leaves no key pressed. A key-up without its key-down does nothing.
    void CGEventPost(EventTapLocation tap, const KeyboardEvent& event) override;
    /// Drops it. The X server has one pointer for all: a press without its release would leave the user with a button
    /// that every program takes for held.
    void CGEventPost(EventTapLocation, const PointerEvent&) override {}

private:
    void type(const KeyboardEvent& event);
    void fakeKey(std::uint8_t type, std::uint8_t keycode);
    static void refuse(const KeyboardEvent& event, const std::string& reason);

    Connection& connection_;
    CoreKeyboard& keyboard_;
    WindowManager& windowManager_;
    std::optional<KeyboardEvent> keyDown_;  // its key-up has not come
};

}  // namespace orlamo::x11
