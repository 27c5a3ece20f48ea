#include "platform/x11/EventPoster.h"

#include <xcb/xtest.h>

#include <algorithm>
#include <optional>
#include <utility>

#include "platform/Log.h"
#include "platform/x11/ConnectionKeeper.h"
#include "platform/x11/KeyGrabs.h"

namespace orlamo::x11 {

namespace {

/// Nobody else's key gets between looking at the keyboard and posting.
class ServerGrab {
public:
    explicit ServerGrab(Connection& connection) : connection_(connection) { xcb_grab_server(connection_.xcb()); }
    ~ServerGrab() {
        xcb_ungrab_server(connection_.xcb());
        connection_.flush();
    }
    ServerGrab(const ServerGrab&) = delete;
    ServerGrab& operator=(const ServerGrab&) = delete;

private:
    Connection& connection_;
};

}  // namespace

void EventPoster::CGEventPost(EventTapLocation, const KeyboardEvent& event) {
    if (event.keyDown) {
        keyDown_ = event;
    } else if (keyDown_ && keyDown_->keyCode == event.keyCode) {
        type(*std::exchange(keyDown_, std::nullopt));
    }
}

void EventPoster::type(const KeyboardEvent& event) {
    if (!connection_.extensions().xtest || !keyboard_.isAvailable()) {
        return refuse(event, "the X server does not let programs type");
    }
    const DesktopGrabs desktop{
        .isGrabbed = [this](GrabKind kind, std::uint8_t key,
                            std::uint8_t realModifiers) { return isGrabbed(connection_, kind, key, realModifiers); },
        .addsShift = windowManager_.name() == "KWin"};
    std::optional<ServerGrab> grab(std::in_place, connection_);
    const auto held = keyboard_.heldKeys();
    if (!held) return refuse(event, "the X server does not answer");
    const auto plan = planPosting(keyboard_.layoutNow(), *held, event.keyCode, event.flags, desktop);
    if (const auto* const refusal = std::get_if<Refusal>(&plan)) return refuse(event, refusal->reason);

    const auto& [modifiers, key] = std::get<PostingPlan>(plan);
    if (!modifiers.empty()) keyboard_.expectOwnTyping();  // no press of the trigger key
    const ConnectionKeeper keeper(xcb_get_file_descriptor(connection_.xcb()));
    // In between nothing may wait for an answer: that would send the presses without their releases.
    for (const std::uint8_t modifier : modifiers) fakeKey(XCB_KEY_PRESS, modifier);
    fakeKey(XCB_KEY_PRESS, key);
    fakeKey(XCB_KEY_RELEASE, key);
    std::for_each(modifiers.rbegin(), modifiers.rend(), [this](auto modifier) { fakeKey(XCB_KEY_RELEASE, modifier); });
    grab.reset();
    connection_.reply(xcb_get_input_focus_reply, xcb_get_input_focus(connection_.xcb()));  // it has been done
}

void EventPoster::fakeKey(std::uint8_t type, std::uint8_t keycode) {
    xcb_test_fake_input(connection_.xcb(), type, keycode, XCB_CURRENT_TIME, connection_.root(), 0, 0, 0);
}

void EventPoster::refuse(const KeyboardEvent& event, const std::string& reason) {
    logLine("key " + std::to_string(event.keyCode) + " with flags " + std::to_string(event.flags) +
            " is not posted: " + reason);
}

}  // namespace orlamo::x11
