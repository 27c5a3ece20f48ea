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

    /// A key-down presses the modifiers that are not held yet and the key; the key-up of the same code releases just
    /// those. A key-up without its key-down does nothing.
    void CGEventPost(EventTapLocation tap, const KeyboardEvent& event) override;
    /// Drops it. The X server has one pointer for all: a press without its release would leave the user with a button
    /// that every program takes for held.
    void CGEventPost(EventTapLocation, const PointerEvent&) override {}

private:
    void press(const KeyboardEvent& event);
    void release();
    void fakeKey(std::uint8_t type, std::uint8_t keycode);
    static void refuse(const KeyboardEvent& event, const std::string& reason);

    struct Posted {
        std::uint16_t virtualKeyCode = 0;
        PostingPlan plan;
    };

    Connection& connection_;
    CoreKeyboard& keyboard_;
    WindowManager& windowManager_;
    std::optional<Posted> posted_;
};

}  // namespace orlamo::x11
