#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "platform/x11/Connection.h"

namespace orlamo::x11 {

/// The colour of a panel's texts, as the panel tells it for the icons in its notification area. Hears of changes, and
/// of panels that come and go.
class PanelColor {
public:
    /// `changed` runs when the answer is another one.
    PanelColor(Connection& connection, std::function<void()> changed);

    /// 0xRRGGBB; none when there is no such panel or it does not tell.
    std::optional<std::uint32_t> foreground() const { return foreground_; }

private:
    void find();
    void read();
    void handle(const xcb_generic_event_t& event);

    Connection& connection_;
    std::function<void()> changed_;
    xcb_atom_t selection_;
    xcb_window_t tray_ = XCB_WINDOW_NONE;
    std::optional<std::uint32_t> foreground_;
    Connection::Subscription events_;
};

}  // namespace orlamo::x11
