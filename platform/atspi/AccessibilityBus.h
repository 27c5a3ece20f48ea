#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/RunLoop.h"
#include "platform/atspi/Connection.h"

namespace orlamo::atspi {

/// The way to the accessibility bus: where it is, whether the user has switched it on, and a connection that is kept
/// open. Hears of changes through the run loop where there is one, and finds a restarted bus again by itself; else, and
/// at the latest, with the next call.
class AccessibilityBus {
public:
    AccessibilityBus();
    ~AccessibilityBus();
    AccessibilityBus(const AccessibilityBus&) = delete;
    AccessibilityBus& operator=(const AccessibilityBus&) = delete;

    /// Whether the bus is there and switched on. Answers from what is known; waits, at most until the deadline, only
    /// while that is nothing.
    bool isEnabled(Deadline deadline);
    /// An open connection; null when there is none by the deadline. Valid until the next call here.
    Connection* connection(Deadline deadline);
    /// A new number for each life of the bus: what was read in another one is gone.
    unsigned epoch() const { return epoch_; }

private:
    void connectToSession();
    void askForStatus();
    void askForAddress();
    void connectToBus(const std::string& address);
    void handleBusOwner(const std::string& newOwner);
    void watch();
    void handleReadable();
    void repairLater();
    bool isSettled() const;
    void update(Deadline deadline);
    bool wait(Deadline deadline);

    std::unique_ptr<Connection> session_;
    std::unique_ptr<Connection> bus_;
    std::unique_ptr<RunLoop::Handle> sessionWatch_;
    std::unique_ptr<RunLoop::Handle> busWatch_;
    std::optional<bool> isEnabled_;
    bool isAskingForStatus_ = false;
    bool isAskingForAddress_ = false;
    unsigned epoch_ = 0;
    std::string address_;  // of the last connection; it holds the bus's own identifier
    int repairsLeft_ = 0;
    std::shared_ptr<bool> isAlive_ = std::make_shared<bool>(true);  // for delayed tasks
};

}  // namespace orlamo::atspi
