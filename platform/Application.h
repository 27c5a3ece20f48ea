#pragma once

#include "platform/Service.h"

namespace orlamo {

/// This program as the desktop sees it.
class Application : public Service<Application> {
public:
    enum class IgnoringOtherApps { no, yes };

    virtual ~Application() = default;

    /// Gives the program the input focus: its frontmost window now, or the next one that it orders to the front.
    virtual void activate(IgnoringOtherApps ignoring) = 0;
};

}  // namespace orlamo
