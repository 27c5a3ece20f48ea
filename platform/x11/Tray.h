#pragma once

#include "platform/x11/Connection.h"

namespace orlamo::x11 {

/// What announces a notification area: whoever owns this selection is its panel.
xcb_atom_t traySelection(Connection& connection);
/// Its panel's window, from now on watched for its end and its properties; XCB_WINDOW_NONE when there is none. In both
/// cases the connection hears of panels that come.
xcb_window_t watchTray(Connection& connection, xcb_atom_t selection);

/// A panel has come.
bool isNewTray(Connection& connection, xcb_atom_t selection, const xcb_generic_event_t& event);
bool isEndOf(xcb_window_t window, const xcb_generic_event_t& event);
/// The panel has other colours.
bool isTrayColorChange(Connection& connection, xcb_window_t tray, const xcb_generic_event_t& event);

}  // namespace orlamo::x11
