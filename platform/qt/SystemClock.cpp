#include "platform/qt/SystemClock.h"

#include <chrono>
#include <thread>

namespace orlamo::qt {

double SystemClock::secondsSince1970() {
    return std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch()).count();
}

void SystemClock::sleepUntil(double date) {
    const double left = date - secondsSince1970();
    if (left > 0) std::this_thread::sleep_for(std::chrono::duration<double>(left));
}

}  // namespace orlamo::qt
