#pragma once

#include "platform/RunLoop.h"

namespace orlamo::qt {

/// Qt's event loop of the main thread. Needs a QCoreApplication.
class QtRunLoop final : public RunLoop {
public:
    QtRunLoop() = default;
    /// Ends what was given up after the last turn of the loop: nobody else does.
    ~QtRunLoop() override;
    QtRunLoop(const QtRunLoop&) = delete;
    QtRunLoop& operator=(const QtRunLoop&) = delete;

    void asyncAfter(double seconds, Task task) override;
    std::unique_ptr<Handle> scheduleRepeatingTimer(double seconds, Task task) override;
    std::unique_ptr<Handle> watchReadable(int descriptor, Task task) override;
};

}  // namespace orlamo::qt
