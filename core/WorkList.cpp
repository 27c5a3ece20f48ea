#include "core/WorkList.h"

#include <utility>

namespace orlamo {

void WorkList::append(AXUIElementRef element) {
    ++elements_[element].live;
    ++live_;
    entries_.push_back({std::move(element), ++lastSequence_});
}

AXUIElementRef WorkList::take() {
    for (;;) {
        Entry front = std::move(entries_.front());
        entries_.pop_front();
        const auto state = elements_.find(front.element);
        Element& element = state->second;
        if (front.sequence <= element.deadUpTo) continue;

        live_ -= element.live;
        element.live = 0;
        element.deadUpTo = lastSequence_;
        if (live_ == 0) {
            entries_.clear();
            elements_.clear();
        }
        return std::move(front.element);
    }
}

}  // namespace orlamo
