#pragma once

#include <functional>
#include <memory>

#include "platform/Service.h"

namespace orlamo {

/// The main thread's event loop: delayed tasks, timers, readable descriptors. Tasks run on the main thread.
class RunLoop : public Service<RunLoop> {
public:
    using Task = std::function<void()>;

    /// Destroying it stops the timer or the watch; safe from inside its own task.
    class Handle {
    public:
        virtual ~Handle() = default;
    };

    virtual ~RunLoop() = default;

    /// Runs the task once, `seconds` from now. Cannot be cancelled: let the task check what it needs.
    virtual void asyncAfter(double seconds, Task task) = 0;
    /// First firing after one interval.
    virtual std::unique_ptr<Handle> scheduleRepeatingTimer(double seconds, Task task) = 0;
    /// Runs the task whenever the descriptor is readable. Does not own the descriptor.
    virtual std::unique_ptr<Handle> watchReadable(int descriptor, Task task) = 0;
};

}  // namespace orlamo
