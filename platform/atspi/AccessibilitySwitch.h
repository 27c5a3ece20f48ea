#pragma once

#include <memory>

#include "platform/RunLoop.h"
#include "platform/atspi/Connection.h"

namespace orlamo::atspi {

/// The user's switch for the accessibility bus: IsEnabled of org.a11y.Status.
class AccessibilitySwitch {
public:
    AccessibilitySwitch();
    ~AccessibilitySwitch();

    /// Asks the bus's launcher, which the session bus starts where need be. Waits at most 250 ms; a launcher that takes
    /// longer switches on when it is up, as long as this object lives. False, with a line in the log, when there is no
    /// session bus or the launcher refused.
    bool switchOn();

private:
    std::unique_ptr<Connection> session_;
    std::unique_ptr<RunLoop::Handle> watch_;
};

}  // namespace orlamo::atspi
