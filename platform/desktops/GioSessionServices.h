#pragma once

#include <chrono>
#include <functional>
#include <memory>

#include "platform/desktops/SessionServices.h"

namespace orlamo::desktops {

/// How the window manager is asked. False: there is none that can do it.
struct WindowRequests {
    std::function<bool(WindowRequest)> canDo;
    std::function<bool(WindowRequest)> ask;
};

/// Services on the session bus, the window manager, and programs of the desktop. Performing waits for no answer, and
/// for a bus that was lost as long as looking who is there does.
class GioSessionServices final : public SessionServices {
public:
    /// Looking who is there waits for the bus so long in all between one refresh() and the next.
    static constexpr std::chrono::milliseconds longestWait{150};

    explicit GioSessionServices(WindowRequests windowManager);
    ~GioSessionServices() override;

    void refresh() override;
    bool isThere(const SessionDeed& deed) override;
    bool perform(const SessionDeed& deed) override;

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

}  // namespace orlamo::desktops
