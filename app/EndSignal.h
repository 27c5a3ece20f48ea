#pragma once

#include <QSocketNotifier>
#include <array>
#include <functional>
#include <optional>

namespace orlamo {

/// From its creation on, the first SIGTERM (a log-out, `kill`) asks the main loop to end the program in order, as its
/// own "Quit" does. A second one ends it on the spot, also where the main loop hangs. There is one at most.
class EndSignal {
public:
    explicit EndSignal(std::function<void()> end);
    ~EndSignal();
    EndSignal(const EndSignal&) = delete;
    EndSignal& operator=(const EndSignal&) = delete;

private:
    std::array<int, 2> pipe_{-1, -1};
    std::optional<QSocketNotifier> notifier_;
};

}  // namespace orlamo
