#include "platform/x11/ConnectionKeeper.h"

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <ctime>

namespace orlamo::x11 {

namespace {

constexpr timespec longestStay{0, 100'000'000};

/// Runs beside threads that are not there any more: nothing but system calls.
[[noreturn]] void stay(unsigned descriptor) {
    if (descriptor > 0) ::close_range(0, descriptor - 1, 0);
    ::close_range(descriptor + 1, ~0U, 0);
    ::nanosleep(&longestStay, nullptr);
    ::_exit(0);
}

}  // namespace

ConnectionKeeper::ConnectionKeeper(int descriptor) {
    if (descriptor < 0) return;
    // The program's own handlers of signals are not for this process.
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    ::pthread_sigmask(SIG_SETMASK, &all, &before);
    process_ = ::_Fork();
    if (process_ == 0) stay(static_cast<unsigned>(descriptor));
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

ConnectionKeeper::~ConnectionKeeper() {
    if (process_ <= 0) return;
    ::kill(process_, SIGKILL);
    ::waitpid(process_, nullptr, 0);
}

}  // namespace orlamo::x11
