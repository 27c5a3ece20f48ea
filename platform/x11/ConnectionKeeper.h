#pragma once

#include <sys/types.h>

namespace orlamo::x11 {

/// A process of its own that holds a connection to the X server open, so that the server goes on with what it has been
/// sent when this program is killed: at the end of a connection it drops what it has not done yet. Ends with this
/// object, or by itself after 100 ms. Without one, where there is no process to be had, everything goes on as it would.
class ConnectionKeeper {
public:
    /// Does not own the descriptor.
    explicit ConnectionKeeper(int descriptor);
    ~ConnectionKeeper();
    ConnectionKeeper(const ConnectionKeeper&) = delete;
    ConnectionKeeper& operator=(const ConnectionKeeper&) = delete;

private:
    pid_t process_ = -1;
};

}  // namespace orlamo::x11
