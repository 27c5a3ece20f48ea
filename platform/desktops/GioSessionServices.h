#pragma once

#include <functional>
#include <memory>

#include "platform/desktops/SessionServices.h"

namespace orlamo::desktops {

/// How the window manager is asked. False: there is none that can do it.
struct WindowRequests {
    std::function<bool(WindowRequest)> canDo;
    std::function<bool(WindowRequest)> ask;
};

/// Services on the session bus, the window manager, and programs of the desktop. Looking who is there waits for the bus
/// 150 ms in all between one refresh() and the next. Performing waits for no answer, and as long for a bus that was
/// lost.
class GioSessionServices final : public SessionServices {
public:
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
