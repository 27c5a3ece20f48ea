#pragma once

#include <string_view>

#include "platform/Service.h"

namespace orlamo {

/// Where the program's diagnostic lines go: standard output in the program, a list in tests.
class Log : public Service<Log> {
public:
    virtual ~Log() = default;
    /// One line of UTF-8 without its line end. Never fails and never blocks for long.
    virtual void write(std::string_view line) = 0;
};

inline void logLine(std::string_view line) {
    Log::shared().write(line);
}

}  // namespace orlamo
