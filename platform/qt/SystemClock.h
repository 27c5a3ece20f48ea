#pragma once

#include "platform/Clock.h"

namespace orlamo::qt {

/// The system's wall clock.
class SystemClock final : public Clock {
public:
    double secondsSince1970() override;
    /// Sleeps for the time that is left at the call; setting the clock meanwhile does not prolong it.
    void sleepUntil(double secondsSince1970) override;
};

}  // namespace orlamo::qt
