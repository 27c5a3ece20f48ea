#include "platform/x11/Tray.h"

#include <string>

namespace orlamo::x11 {

namespace {

constexpr std::uint8_t responseType(const xcb_generic_event_t& event) {
    return event.response_type & 0x7f;
}

}  // namespace

xcb_atom_t traySelection(Connection& connection) {
    return connection.atom("_NET_SYSTEM_TRAY_S" + std::to_string(connection.screenNumber()));
}

xcb_window_t watchTray(Connection& connection, xcb_atom_t selection) {
    xcb_connection_t* const xcb = connection.xcb();
    // A panel that comes tells the root window.
    const std::uint32_t ofRoot = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(xcb, connection.root(), XCB_CW_EVENT_MASK, &ofRoot);
    // The panel must not end between our finding it and our watching it.
    xcb_grab_server(xcb);
    const auto owner = connection.reply(xcb_get_selection_owner_reply, xcb_get_selection_owner(xcb, selection));
    const xcb_window_t tray = owner ? owner->owner : xcb_window_t{XCB_WINDOW_NONE};
    if (tray != XCB_WINDOW_NONE) {
        const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(xcb, tray, XCB_CW_EVENT_MASK, &mask);
    }
    xcb_ungrab_server(xcb);
    connection.flush();
    return tray;
}

bool isNewTray(Connection& connection, xcb_atom_t selection, const xcb_generic_event_t& event) {
    if (responseType(event) != XCB_CLIENT_MESSAGE) return false;
    const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(event);
    return message.window == connection.root() && message.type == connection.atom("MANAGER") &&
           message.data.data32[1] == selection;
}

bool isEndOf(xcb_window_t window, const xcb_generic_event_t& event) {
    if (window == XCB_WINDOW_NONE || responseType(event) != XCB_DESTROY_NOTIFY) return false;
    return reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window == window;
}

bool isTrayColorChange(Connection& connection, xcb_window_t tray, const xcb_generic_event_t& event) {
    if (tray == XCB_WINDOW_NONE || responseType(event) != XCB_PROPERTY_NOTIFY) return false;
    const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
    return change.window == tray && change.atom == connection.atom("_NET_SYSTEM_TRAY_COLORS");
}

}  // namespace orlamo::x11
