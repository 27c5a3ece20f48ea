#pragma once

#include <utility>
#include <vector>

#include "platform/EventPoster.h"

namespace orlamo {

class FakeEventPoster : public EventPoster {
public:
    struct Posted {
        EventTapLocation tap;
        KeyboardEvent event;
    };

    void CGEventPost(EventTapLocation tap, const KeyboardEvent& event) override { posted.push_back({tap, event}); }
    void CGEventPost(EventTapLocation tap, const PointerEvent& event) override { pointer.push_back({tap, event}); }

    std::vector<Posted> posted;
    std::vector<std::pair<EventTapLocation, PointerEvent>> pointer;

private:
    Installation installation_{*this};
};

}  // namespace orlamo
