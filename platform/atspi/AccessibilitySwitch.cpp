#include "platform/atspi/AccessibilitySwitch.h"

#include <systemd/sd-bus.h>

#include <array>
#include <string>

#include "platform/Log.h"

namespace orlamo::atspi {
namespace {

constexpr std::chrono::milliseconds answerTime{250};

/// Empty: it did as it was told.
std::string errorOf(sd_bus_message* answer) {
    if (answer == nullptr) return "no answer";
    if (sd_bus_message_is_method_error(answer, nullptr) <= 0) return "";
    const sd_bus_error* const error = sd_bus_message_get_error(answer);
    return error != nullptr && error->message != nullptr ? error->message : "refused";
}

}  // namespace

AccessibilitySwitch::AccessibilitySwitch() = default;
AccessibilitySwitch::~AccessibilitySwitch() = default;

bool AccessibilitySwitch::switchOn() {
    watch_.reset();
    session_ = Connection::toSessionBus();
    if (!session_) {
        logLine("accessibility: there is no session bus to switch it on");
        return false;
    }
    const auto refused = std::make_shared<bool>(false);
    session_->call({"org.a11y.Bus",
                    "/org/a11y/bus",
                    "org.freedesktop.DBus.Properties",
                    "Set",
                    {"org.a11y.Status", "IsEnabled", true}},
                   [refused](sd_bus_message* answer) {
                       const std::string error = errorOf(answer);
                       *refused = !error.empty();
                       if (*refused) logLine("accessibility: it cannot be switched on: " + error);
                   });
    const std::array<Connection*, 1> connections{session_.get()};
    const Deadline deadline = deadlineIn(answerTime);
    while (waitForAnswers(connections, deadline)) {
    }
    if (session_->isAwaiting() && RunLoop::isInstalled()) {
        watch_ = RunLoop::shared().watchReadable(session_->descriptor(), [this] {
            session_->handle(deadlineIn(std::chrono::milliseconds(50)));
            if (!session_->isAwaiting()) watch_.reset();
        });
    }
    return !*refused;
}

}  // namespace orlamo::atspi
