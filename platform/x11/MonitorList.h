#pragma once

#include <utility>
#include <vector>

#include "platform/EventMonitors.h"

namespace orlamo::x11 {

enum class Destination { local, global };

/// The registered handlers and which of them an event is for.
class MonitorList {
public:
    EventMonitors::MonitorToken add(EventMask mask, EventMonitors::LocalHandler handler) {
        local_.emplace_back(mask, std::move(handler));
        return ++lastToken_;
    }
    EventMonitors::MonitorToken add(EventMask mask, EventMonitors::GlobalHandler handler) {
        global_.emplace_back(mask, std::move(handler));
        return ++lastToken_;
    }

    /// A handler may add others; they get the next event.
    void dispatch(const Event& event, Destination destination) const {
        const EventMask bit = EventMask{1} << static_cast<unsigned>(event.type);
        if (destination == Destination::local) {
            for (const auto& [mask, handler] : std::vector(local_)) {
                if ((mask & bit) != 0) handler(event);
            }
        } else {
            for (const auto& [mask, handler] : std::vector(global_)) {
                if ((mask & bit) != 0) handler(event);
            }
        }
    }

private:
    std::vector<std::pair<EventMask, EventMonitors::LocalHandler>> local_;
    std::vector<std::pair<EventMask, EventMonitors::GlobalHandler>> global_;
    EventMonitors::MonitorToken lastToken_ = 0;
};

}  // namespace orlamo::x11
