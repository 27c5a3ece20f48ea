#pragma once

#include "platform/Service.h"

namespace orlamo {

/// The date and the sleep of the calling thread.
class Clock : public Service<Clock> {
public:
    virtual ~Clock() = default;
    /// Seconds since 1 January 1970 UTC, with fractions.
    virtual double secondsSince1970() = 0;
    /// Blocks the calling thread until that date; returns at once when it has passed.
    virtual void sleepUntil(double secondsSince1970) = 0;
};

}  // namespace orlamo
