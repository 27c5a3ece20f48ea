#pragma once

#include <string>
#include <string_view>

#include "platform/Log.h"

namespace orlamo::qt {

/// The text as one line of valid UTF-8 with its line end; control characters are spaces.
std::string logLineBytes(std::string_view text);

/// Writes each line at once. A reader that is gone is ignored, as is SIGPIPE in the whole process; one that does not
/// read any more costs 0.1 s once, then lines are dropped until it does.
class StandardOutputLog final : public Log {
public:
    explicit StandardOutputLog(int descriptor = 1);
    void write(std::string_view line) override;

private:
    bool canWrite();

    int descriptor_;
    bool isStalled_ = false;
};

}  // namespace orlamo::qt
