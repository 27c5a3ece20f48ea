#pragma once

#include <memory>
#include <optional>

#include "platform/EventMonitors.h"
#include "platform/x11/Connection.h"
#include "platform/x11/CoreKeyboard.h"
#include "platform/x11/MonitorList.h"
#include "platform/x11/Windows.h"

namespace orlamo::x11 {

/// Modifier changes come from the keyboard's state and presses as raw events, so that both arrive while another
/// program holds a grab. Key presses are asked for only while a window of this program has the focus.
class EventMonitors final : public orlamo::EventMonitors {
public:
    EventMonitors(Connection& connection, CoreKeyboard& keyboard, Windows& windows);
    ~EventMonitors() override;

    /// A press elsewhere while this program has the focus is told once the focus has left, or after 100 ms: the window
    /// manager has to move it first, and the handler asks at once who is in front.
    std::optional<MonitorToken> addLocalMonitor(EventMask mask, LocalHandler handler) override;
    std::optional<MonitorToken> addGlobalMonitor(EventMask mask, GlobalHandler handler) override;

private:
    bool canMonitor(EventMask mask) const;
    void received(const xcb_generic_event_t& event);
    void modifiersChanged(std::uint64_t flags);
    void buttonPressed(std::uint32_t physicalButton);
    void keyPressed(std::uint32_t keycode);
    void focusMoved();
    void focusing(bool comes);
    /// Whether this program has the focus; raw keys are selected accordingly.
    bool checkFocus();
    void deliverWaitingPress();
    void selectRawEvents();
    bool isLeftButton(std::uint32_t physicalButton);

    Connection& connection_;
    CoreKeyboard& keyboard_;
    Windows& windows_;
    MonitorList monitors_;
    EventMask wanted_ = 0;
    std::uint32_t selected_ = 0;
    bool hasFocus_ = false;
    xcb_window_t watched_ = 0;
    std::optional<Event> waitingPress_;
    std::shared_ptr<bool> life_ = std::make_shared<bool>(true);  // delayed tasks check it
    Connection::Subscription subscription_;
};

}  // namespace orlamo::x11
