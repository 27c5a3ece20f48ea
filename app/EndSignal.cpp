#include "app/EndSignal.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <utility>

#include "platform/Log.h"

namespace orlamo {

namespace {

volatile std::sig_atomic_t wakingEnd = -1;

/// May run between any two instructions: nothing but a system call.
void wakeMainLoop(int) {
    const int error = errno;
    (void)!::write(wakingEnd, "", 1);
    errno = error;
}

}  // namespace

EndSignal::EndSignal(std::function<void()> end) {
    if (::pipe2(pipe_.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        logLine("SIGTERM ends this program on the spot: no pipe to wake it");
        return;
    }
    notifier_.emplace(pipe_[0], QSocketNotifier::Read);
    QObject::connect(&*notifier_, &QSocketNotifier::activated, [this, end = std::move(end)] {
        notifier_->setEnabled(false);
        end();
    });
    wakingEnd = pipe_[1];
    struct sigaction action {};
    action.sa_handler = wakeMainLoop;
    action.sa_flags = SA_RESTART | SA_RESETHAND;
    ::sigaction(SIGTERM, &action, nullptr);
}

EndSignal::~EndSignal() {
    if (!notifier_) return;
    std::signal(SIGTERM, SIG_DFL);
    notifier_.reset();
    for (const int end : pipe_) ::close(end);
}

}  // namespace orlamo
