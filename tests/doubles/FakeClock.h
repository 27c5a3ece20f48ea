#pragma once

#include <functional>
#include <vector>

#include "platform/Clock.h"

namespace orlamo {

/// A clock that stands still. A sleep moves it on at once and is recorded.
class FakeClock : public Clock {
public:
    double secondsSince1970() override { return now; }
    void sleepUntil(double date) override {
        sleeps.push_back(date);
        if (whileAsleep) whileAsleep();
        if (date > now) now = date;
    }

    double now = 1'700'000'000;
    std::vector<double> sleeps;         // the dates asked for
    std::function<void()> whileAsleep;  // what happens elsewhere meanwhile

private:
    Installation installation_{*this};
};

}  // namespace orlamo
