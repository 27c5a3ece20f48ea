#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "platform/EventFlags.h"
#include "platform/Service.h"

namespace orlamo {

struct Event {
    enum class Type { leftMouseDown = 1, keyDown = 10, flagsChanged = 12 };
    Type type = Type::flagsChanged;
    std::uint64_t modifierFlags = 0;  // EventFlags
    std::uint16_t keyCode = 0;        // virtual key code; keyDown only
};

/// One bit per event type.
using EventMask = std::uint64_t;
inline constexpr EventMask leftMouseDownMask = 1U << 1;
inline constexpr EventMask keyDownMask = 1U << 10;
inline constexpr EventMask flagsChangedMask = 1U << 12;

/// Sees the user's events without taking them away, whoever holds a grab.
/// An event is local while this program has the input focus (a press: when it falls on one of its windows), else
/// global. Of key presses only Escape is looked at, and only while the program has the focus.
class EventMonitors : public Service<EventMonitors> {
public:
    using MonitorToken = std::uint64_t;
    /// Returns the event for the window to receive, as it came.
    using LocalHandler = std::function<Event(const Event&)>;
    using GlobalHandler = std::function<void(const Event&)>;

    virtual ~EventMonitors() = default;

    /// Handlers run on the main thread in order of registration; local ones first. No value: cannot monitor here.
    virtual std::optional<MonitorToken> addLocalMonitor(EventMask mask, LocalHandler handler) = 0;
    virtual std::optional<MonitorToken> addGlobalMonitor(EventMask mask, GlobalHandler handler) = 0;
};

}  // namespace orlamo
