#pragma once

#include <string>
#include <variant>

#include "platform/desktops/SessionTables.h"

namespace orlamo::desktops {

/// A command line that a key runs, and the service that it needs, if any.
struct CommandLine {
    std::string text;
    std::string_view service = {};
};

using SessionDeed = std::variant<BusMethod, WindowRequest, KdeAction, CommandLine>;

/// The desktop's services that perform commands about the session.
class SessionServices {
public:
    virtual ~SessionServices() = default;

    /// Who is there is looked up anew from now on; a new stretch of time for that begins.
    virtual void refresh() = 0;
    /// Whether who performs it is there.
    virtual bool isThere(const SessionDeed& deed) = 0;
    /// Asks for it and returns at once. False, with a line in the log, when nobody could be asked; what is answered
    /// later is a line in the log when it is an error.
    virtual bool perform(const SessionDeed& deed) = 0;
};

}  // namespace orlamo::desktops
