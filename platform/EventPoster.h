#pragma once

#include <cstdint>

#include "platform/EventFlags.h"
#include "platform/Geometry.h"
#include "platform/Service.h"

namespace orlamo {

struct KeyboardEvent {
    std::uint16_t keyCode = 0;  // virtual key code
    bool keyDown = false;
    std::uint64_t flags = 0;  // EventFlags the event carries
};

enum class EventTapLocation { hid = 0, session = 1, annotatedSession = 2 };

inline KeyboardEvent CGEventCreateKeyboardEvent(std::uint16_t keyCode, bool keyDown) {
    return {keyCode, keyDown, 0};
}
inline void CGEventSetFlags(KeyboardEvent& event, std::uint64_t flags) {
    event.flags = flags;
}

struct PointerEvent {
    enum class Type { leftMouseDown = 1, leftMouseUp = 2 };
    Type type = Type::leftMouseDown;
    Point location;  // as it was given; points
};

inline PointerEvent CGEventCreateMouseEvent(PointerEvent::Type type, Point location) {
    return {type, location};
}

/// Synthesizes input. What the active layout cannot type, or what would disturb keys the user is holding, is refused
/// with a log line and nothing is posted.
class EventPoster : public Service<EventPoster> {
public:
    virtual ~EventPoster() = default;
    virtual void CGEventPost(EventTapLocation tap, const KeyboardEvent& event) = 0;
    /// A lone press is dropped where it would leave the button held down for every program.
    virtual void CGEventPost(EventTapLocation tap, const PointerEvent& event) = 0;
};

}  // namespace orlamo
