#include "platform/NotificationCenter.h"

#include <algorithm>

namespace orlamo {

NotificationCenter& NotificationCenter::defaultCenter() {
    static NotificationCenter center;
    return center;
}

std::unique_ptr<NotificationCenter::Observation> NotificationCenter::addObserver(std::string name, Handler handler) {
    observers_.push_back({++lastId_, std::move(name), std::move(handler)});
    return std::make_unique<Observation>(*this, lastId_);
}

void NotificationCenter::post(std::string_view name) {
    // A handler may add or remove observers, so each is looked up again by its id.
    std::vector<std::uint64_t> ids;
    for (const Observer& observer : observers_) {
        if (observer.name == name) ids.push_back(observer.id);
    }
    for (const std::uint64_t id : ids) {
        const auto found = std::ranges::find(observers_, id, &Observer::id);
        if (found == observers_.end()) continue;
        const Handler handler = found->handler;
        handler();
    }
}

void NotificationCenter::remove(std::uint64_t id) {
    std::erase_if(observers_, [id](const Observer& observer) { return observer.id == id; });
}

}  // namespace orlamo
