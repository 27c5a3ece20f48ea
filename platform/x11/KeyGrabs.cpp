#include "platform/x11/KeyGrabs.h"

#include <xcb/xinput.h>

namespace orlamo::x11 {

namespace {

bool isCoreGrabbed(Connection& connection, std::uint8_t key, std::uint8_t realModifiers) {
    const auto request = xcb_grab_key_checked(connection.xcb(), 0, connection.root(), realModifiers, key,
                                              XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    if (!connection.succeeded(request)) return connection.isAlive();
    xcb_ungrab_key(connection.xcb(), key, connection.root(), realModifiers);
    return false;
}

bool isXinputGrabbed(Connection& connection, std::uint8_t key, std::uint32_t modifiers) {
    if (!connection.extensions().xinput) return false;
    constexpr std::uint32_t noEvents = 0;
    constexpr std::uint8_t leaveToOthers = 0;
    const auto answer = connection.reply(
        xcb_input_xi_passive_grab_device_reply,
        xcb_input_xi_passive_grab_device(connection.xcb(), XCB_CURRENT_TIME, connection.root(), XCB_NONE, key,
                                         XCB_INPUT_DEVICE_ALL_MASTER, 1, 1, XCB_INPUT_GRAB_TYPE_KEYCODE,
                                         XCB_INPUT_GRAB_MODE_22_ASYNC, XCB_INPUT_GRAB_MODE_22_ASYNC, leaveToOthers,
                                         &noEvents, &modifiers));
    if (!answer) return false;
    if (answer->num_modifiers != 0) return true;
    xcb_input_xi_passive_ungrab_device(connection.xcb(), connection.root(), key, XCB_INPUT_DEVICE_ALL_MASTER, 1,
                                       XCB_INPUT_GRAB_TYPE_KEYCODE, &modifiers);
    return false;
}

}  // namespace

bool isGrabbed(Connection& connection, GrabKind kind, std::uint8_t key, std::uint8_t realModifiers) {
    return kind == GrabKind::core ? isCoreGrabbed(connection, key, realModifiers)
                                  : isXinputGrabbed(connection, key, realModifiers);
}

}  // namespace orlamo::x11
