#include "platform/x11/PanelColor.h"

#include <string>
#include <utility>

#include "platform/x11/Tray.h"
#include "platform/x11/TrayInk.h"
#include "platform/x11/Windows.h"

namespace orlamo::x11 {

PanelColor::PanelColor(Connection& connection, std::function<void()> changed)
    : connection_(connection),
      changed_(std::move(changed)),
      selection_(traySelection(connection)),
      events_(connection.subscribe([this](const xcb_generic_event_t& event) { handle(event); })) {
    find();
}

void PanelColor::find() {
    tray_ = watchTray(connection_, selection_);
    read();
}

void PanelColor::read() {
    std::optional<std::uint32_t> foreground;
    if (tray_ != XCB_WINDOW_NONE) {
        foreground = panelForeground(Windows(connection_).numbers(tray_, "_NET_SYSTEM_TRAY_COLORS"));
    }
    if (foreground == foreground_) return;
    foreground_ = foreground;
    changed_();
}

void PanelColor::handle(const xcb_generic_event_t& event) {
    if (isNewTray(connection_, selection_, event) || isEndOf(tray_, event)) find();
    if (isTrayColorChange(connection_, tray_, event)) read();
}

}  // namespace orlamo::x11
