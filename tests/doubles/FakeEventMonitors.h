#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "platform/EventMonitors.h"

namespace orlamo {

/// Delivers the events that a test makes up.
class FakeEventMonitors : public EventMonitors {
public:
    std::optional<MonitorToken> addLocalMonitor(EventMask mask, LocalHandler handler) override {
        local_.push_back({mask, std::move(handler)});
        return ++lastToken_;
    }
    std::optional<MonitorToken> addGlobalMonitor(EventMask mask, GlobalHandler handler) override {
        global_.push_back({mask, std::move(handler)});
        return ++lastToken_;
    }

    /// The event as it went on to the window.
    Event deliverLocal(Event event) {
        for (std::size_t i = 0; i < local_.size(); ++i) {
            const auto [mask, handler] = local_[i];
            if ((mask & bit(event)) != 0) event = handler(event);
        }
        return event;
    }
    void deliverGlobal(const Event& event) {
        for (std::size_t i = 0; i < global_.size(); ++i) {
            const auto [mask, handler] = global_[i];
            if ((mask & bit(event)) != 0) handler(event);
        }
    }

    std::vector<EventMask> localMasks() const { return masks(local_); }
    std::vector<EventMask> globalMasks() const { return masks(global_); }

private:
    static EventMask bit(const Event& event) { return EventMask{1} << static_cast<unsigned>(event.type); }

    template <class Monitors>
    static std::vector<EventMask> masks(const Monitors& monitors) {
        std::vector<EventMask> masks;
        for (const auto& monitor : monitors) masks.push_back(monitor.first);
        return masks;
    }

    std::vector<std::pair<EventMask, LocalHandler>> local_;
    std::vector<std::pair<EventMask, GlobalHandler>> global_;
    MonitorToken lastToken_ = 0;
    Installation installation_{*this};
};

}  // namespace orlamo
