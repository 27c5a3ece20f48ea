#pragma once

#include <functional>
#include <string_view>

namespace orlamo {

/// Stands between the program and the C library: while one lives, it is asked before each system call on files that
/// this process makes, and decides what becomes of it.
class SystemCalls {
public:
    struct Answer {
        int error = 0;         // the call fails with it; 0: the call is made
        bool isShort = false;  // of a read or write: one byte only
    };
    /// The number of the call, from 1, and its name.
    using Plan = std::function<Answer(int number, std::string_view name)>;

    explicit SystemCalls(Plan plan);
    ~SystemCalls();
    SystemCalls(const SystemCalls&) = delete;
    SystemCalls& operator=(const SystemCalls&) = delete;

    int made() const { return made_; }
    Answer ask(std::string_view name);

private:
    Plan plan_;
    int made_ = 0;
    bool isAsking_ = false;  // what the plan itself calls is left alone
};

}  // namespace orlamo
