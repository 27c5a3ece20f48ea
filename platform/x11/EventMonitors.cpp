#include "platform/x11/EventMonitors.h"

#include <xcb/xinput.h>

#include "platform/Log.h"
#include "platform/RunLoop.h"
#include "platform/x11/KeyTable.h"

namespace orlamo::x11 {

namespace {

constexpr double settlingSeconds = 0.1;

}  // namespace

EventMonitors::EventMonitors(Connection& connection, CoreKeyboard& keyboard, Windows& windows)
    : connection_(connection), keyboard_(keyboard), windows_(windows) {
    keyboard_.onModifiersChanged([this](std::uint64_t flags) { modifiersChanged(flags); });
    windows_.onFocusing([this](bool comes) { focusing(comes); });
    subscription_ = connection_.subscribe([this](const xcb_generic_event_t& event) { received(event); });
}

EventMonitors::~EventMonitors() {
    keyboard_.onModifiersChanged(nullptr);
    windows_.onFocusing(nullptr);
}

std::optional<EventMonitors::MonitorToken> EventMonitors::addLocalMonitor(EventMask mask, LocalHandler handler) {
    if (!canMonitor(mask)) return std::nullopt;
    wanted_ |= mask;
    checkFocus();
    return monitors_.add(mask, std::move(handler));
}

std::optional<EventMonitors::MonitorToken> EventMonitors::addGlobalMonitor(EventMask mask, GlobalHandler handler) {
    if (!canMonitor(mask)) return std::nullopt;
    wanted_ |= mask & ~keyDownMask;  // keys in other programs are none of ours
    checkFocus();
    return monitors_.add(mask, std::move(handler));
}

bool EventMonitors::canMonitor(EventMask mask) const {
    const bool needsKeyboard = (mask & (flagsChangedMask | keyDownMask)) != 0;
    const bool needsRawEvents = (mask & (leftMouseDownMask | keyDownMask)) != 0;
    return !(needsKeyboard && !keyboard_.isAvailable()) && !(needsRawEvents && !connection_.extensions().xinput);
}

void EventMonitors::received(const xcb_generic_event_t& event) {
    switch (event.response_type & 0x7f) {
        case XCB_FOCUS_IN:
        case XCB_FOCUS_OUT: {
            // A keyboard grab does not move the focus.
            const auto& focus = reinterpret_cast<const xcb_focus_in_event_t&>(event);
            if (focus.mode != XCB_NOTIFY_MODE_GRAB && focus.mode != XCB_NOTIFY_MODE_UNGRAB) focusMoved();
            break;
        }
        case XCB_GE_GENERIC: {
            const auto& generic = reinterpret_cast<const xcb_ge_generic_event_t&>(event);
            if (generic.extension != connection_.extensions().xinputOpcode) break;
            const auto& raw = reinterpret_cast<const xcb_input_raw_button_press_event_t&>(event);
            if (raw.event_type == XCB_INPUT_RAW_BUTTON_PRESS) buttonPressed(raw.detail);
            if (raw.event_type == XCB_INPUT_RAW_KEY_PRESS) keyPressed(raw.detail);
            break;
        }
        default:
            break;
    }
}

void EventMonitors::modifiersChanged(std::uint64_t flags) {
    const auto destination = checkFocus() ? Destination::local : Destination::global;
    monitors_.dispatch({Event::Type::flagsChanged, flags, 0}, destination);
}

void EventMonitors::buttonPressed(std::uint32_t physicalButton) {
    if (!isLeftButton(physicalButton)) return;
    const Event press{Event::Type::leftMouseDown, keyboard_.modifierFlags(), 0};
    const bool focused = checkFocus();
    if (windows_.pointerIsOverOwnWindow()) return monitors_.dispatch(press, Destination::local);
    if (!focused) return monitors_.dispatch(press, Destination::global);

    const bool alreadyWaiting = waitingPress_.has_value();
    waitingPress_ = press;
    if (alreadyWaiting) return;
    RunLoop::shared().asyncAfter(settlingSeconds, [this, life = std::weak_ptr<bool>(life_)] {
        if (!life.expired()) deliverWaitingPress();
    });
}

void EventMonitors::deliverWaitingPress() {
    if (!waitingPress_) return;
    const Event press = *waitingPress_;
    waitingPress_.reset();
    monitors_.dispatch(press, Destination::global);
}

void EventMonitors::keyPressed(std::uint32_t keycode) {
    if (keycode > 255 || !keyboard_.layout().isEscape(static_cast<std::uint8_t>(keycode))) return;
    if (!checkFocus()) return;
    monitors_.dispatch({Event::Type::keyDown, keyboard_.modifierFlags(), escapeKeyCode}, Destination::local);
}

void EventMonitors::focusMoved() {
    if (!checkFocus()) deliverWaitingPress();
}

// The news of the focus is read after the panel's first drawing pass; an Escape before that would be lost.
void EventMonitors::focusing(bool comes) {
    if (!comes) return static_cast<void>(checkFocus());
    hasFocus_ = true;
    selectRawEvents();
}

bool EventMonitors::checkFocus() {
    const auto window = windows_.focus();
    hasFocus_ = window && windows_.isOwn(*window);
    if (hasFocus_ && *window != watched_) {
        watched_ = *window;
        windows_.watch(*window);
    }
    selectRawEvents();
    return hasFocus_;
}

void EventMonitors::selectRawEvents() {
    if (!connection_.extensions().xinput) return;
    std::uint32_t mask = 0;
    if ((wanted_ & leftMouseDownMask) != 0) mask |= XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS;
    if ((wanted_ & keyDownMask) != 0 && hasFocus_) mask |= XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS;
    if (mask == selected_) return;
    selected_ = mask;
    const struct {
        xcb_input_event_mask_t head;
        std::uint32_t mask;
    } selection{{XCB_INPUT_DEVICE_ALL_MASTER, 1}, mask};
    xcb_input_xi_select_events(connection_.xcb(), connection_.root(), 1, &selection.head);
    connection_.flush();
}

bool EventMonitors::isLeftButton(std::uint32_t physicalButton) {
    // Raw events come before the user's own order of the buttons.
    const auto mapping = connection_.reply(xcb_get_pointer_mapping_reply, xcb_get_pointer_mapping(connection_.xcb()));
    if (!mapping || physicalButton == 0 || physicalButton > mapping->map_len) return physicalButton == 1;
    return xcb_get_pointer_mapping_map(mapping.get())[physicalButton - 1] == 1;
}

}  // namespace orlamo::x11
