#pragma once

#include "platform/RunLoop.h"

namespace orlamo::qt {

/// Qt's event loop of the main thread. Needs a QCoreApplication.
class QtRunLoop final : public RunLoop {
public:
    void asyncAfter(double seconds, Task task) override;
    std::unique_ptr<Handle> scheduleRepeatingTimer(double seconds, Task task) override;
    std::unique_ptr<Handle> watchReadable(int descriptor, Task task) override;
};

}  // namespace orlamo::qt
