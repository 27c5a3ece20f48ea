#pragma once

#include <chrono>
#include <string>

#include "platform/desktops/GioPointers.h"

namespace orlamo::desktops {

/// Calls over the session bus that together take no longer than a stretch of time.
class SessionBus {
public:
    /// Callbacks of the connecting run in `context`. `budget` is each stretch of time.
    SessionBus(GMainContext* context, std::chrono::milliseconds budget);
    ~SessionBus();

    /// A new stretch of time begins.
    void restartClock();
    /// Connects when there is a bus and no connection to it; tries once in a stretch of time. Losing the bus later does
    /// not end the program.
    bool connect();
    /// The answer when it has that type, or null. Starts no service. `parameters` may be floating.
    Owned<GVariant> call(const std::string& service, const std::string& path, const std::string& interface,
                         const std::string& method, GVariant* parameters, const char* answerType);
    /// Sends a call and waits for no answer; one that is an error is a line in the log. Starts the service where the
    /// bus can. False, with a line in the log, when there is no bus. `parameters` may be floating.
    bool send(const std::string& service, const std::string& path, const std::string& interface,
              const std::string& method, GVariant* parameters);

private:
    std::chrono::milliseconds timeLeft() const;

    GMainContext* context_;
    std::chrono::milliseconds budget_;
    Owned<GDBusConnection> connection_;
    std::chrono::steady_clock::time_point deadline_;
    bool hasFailed_ = false;  // to connect
    bool hasRunOut_ = false;  // of time, and the log says so
};

}  // namespace orlamo::desktops
