#include "platform/xdg/ActivationService.h"

#include <systemd/sd-bus.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <utility>

#include "platform/Log.h"

namespace orlamo::xdg {

namespace {

using std::chrono::microseconds;
using std::chrono::steady_clock;

constexpr const char* interface = "org.freedesktop.Application";
constexpr microseconds patience = std::chrono::seconds(1);
constexpr double searchSeconds = 0.5;
constexpr std::size_t longestShown = 100;  // bytes of a name from outside

std::string objectPath(const std::string& name) {
    std::string path = "/" + name;
    std::ranges::replace(path, '.', '/');
    std::ranges::replace(path, '-', '_');
    return path;
}

std::uint64_t left(steady_clock::time_point deadline) {
    const auto time = std::chrono::duration_cast<microseconds>(deadline - steady_clock::now());
    return static_cast<std::uint64_t>(std::max(time, microseconds(1)).count());
}

/// What an error to the caller and a line in the log say alike.
int refuse(sd_bus_message* message, const char* error, const std::string& why) {
    logLine("activation: " + why);
    return sd_bus_reply_method_errorf(message, error, "%s", why.c_str());
}

/// A method of ours as the bus's library calls it.
template <int (ActivationService::*Answer)(sd_bus_message*)>
int call(sd_bus_message* message, void* data, sd_bus_error*) {
    return (static_cast<ActivationService*>(data)->*Answer)(message);
}

}  // namespace

ActivationService::ActivationService(std::string name, std::vector<std::string> actions)
    : name_(std::move(name)), path_(objectPath(name_)), actions_(std::move(actions)) {}

ActivationService::~ActivationService() {
    close();
}

void ActivationService::close() {
    watch_.reset();
    if (bus_ == nullptr) return;
    sd_bus_flush(bus_);
    sd_bus_close(bus_);
    bus_ = sd_bus_unref(bus_);
}

/// A bus that accepts the connection and then says nothing is no bus.
int ActivationService::connect() {
    if (const int result = sd_bus_open_user(&bus_); result < 0) return result;
    const auto deadline = steady_clock::now() + patience;
    while (sd_bus_is_ready(bus_) <= 0) {
        const int result = sd_bus_process(bus_, nullptr);
        if (result < 0) return result;
        if (result > 0) continue;
        if (steady_clock::now() >= deadline) return -ETIMEDOUT;
        if (const int waited = sd_bus_wait(bus_, left(deadline)); waited < 0 && waited != -EINTR) return waited;
    }
    sd_bus_set_method_call_timeout(bus_, static_cast<std::uint64_t>(patience.count()));
    constexpr auto anybody = SD_BUS_VTABLE_UNPRIVILEGED;
    static const sd_bus_vtable methods[] = {
        SD_BUS_VTABLE_START(0),
        SD_BUS_METHOD("Activate", "a{sv}", "", call<&ActivationService::answerActivate>, anybody),
        SD_BUS_METHOD("Open", "asa{sv}", "", call<&ActivationService::answerOpen>, anybody),
        SD_BUS_METHOD("ActivateAction", "sava{sv}", "", call<&ActivationService::answerActivateAction>, anybody),
        SD_BUS_VTABLE_END,
    };
    // Before the name is ours, so that nobody finds the name without the object.
    const int result = sd_bus_add_object_vtable(bus_, nullptr, path_.c_str(), interface, methods, this);
    return std::min(result, 0);
}

int ActivationService::answerActivate(sd_bus_message* message) {
    return accept(message, {});
}

int ActivationService::answerOpen(sd_bus_message* message) {
    return refuse(message, SD_BUS_ERROR_NOT_SUPPORTED, "no files are opened");
}

int ActivationService::answerActivateAction(sd_bus_message* message) {
    const char* action = nullptr;
    int result = sd_bus_message_read(message, "s", &action);
    if (result >= 0) result = sd_bus_message_enter_container(message, 'a', "v");
    if (result < 0) return result;
    const std::string name = std::string(action).substr(0, longestShown);
    if (std::ranges::find(actions_, action) == actions_.end()) {
        return refuse(message, SD_BUS_ERROR_INVALID_ARGS, "no action " + name);
    }
    if (sd_bus_message_at_end(message, 0) == 0) {
        return refuse(message, SD_BUS_ERROR_INVALID_ARGS, "the action " + name + " takes no parameters");
    }
    result = sd_bus_message_exit_container(message);
    return result < 0 ? result : accept(message, {.action = action, .ticket = {}});
}

/// The message stands before its platform data. The caller has its answer before the handler does anything that takes
/// time.
int ActivationService::accept(sd_bus_message* message, Activation activation) {
    if (const int result = read(message, activation.ticket); result < 0) return result;
    RunLoop::shared().asyncAfter(0, [this, activation, alive = std::weak_ptr<bool>(isAlive_)] {
        if (!alive.expired() && handler_) handler_(activation);
    });
    return sd_bus_reply_method_return(message, "");
}

/// Negative: the error. The bus must not start the program for this call: it has just asked for the name itself.
int ActivationService::handOver(const ActivationTicket& ticket) {
    sd_bus_message* message = nullptr;
    int result = sd_bus_message_new_method_call(bus_, &message, name_.c_str(), path_.c_str(), interface, "Activate");
    if (result >= 0) result = sd_bus_message_set_auto_start(message, 0);
    if (result >= 0) result = append(message, ticket);
    sd_bus_error error = SD_BUS_ERROR_NULL;
    if (result >= 0) {
        result = sd_bus_call(bus_, message, static_cast<std::uint64_t>(patience.count()), &error, nullptr);
    }
    // "No reply" comes from the bus when the other one went away over the question; one that is only slow is a
    // time-out.
    const bool isGone = sd_bus_error_has_names(&error, SD_BUS_ERROR_SERVICE_UNKNOWN, SD_BUS_ERROR_NAME_HAS_NO_OWNER,
                                               SD_BUS_ERROR_NO_REPLY) > 0;
    if (result < 0 && !isGone) {
        logLine("the running program does not take this launch over: " +
                std::string(error.message != nullptr ? error.message : std::strerror(-result)));
    }
    sd_bus_error_free(&error);
    sd_bus_message_unref(message);
    return isGone ? -ESRCH : result;
}

LaunchOutcome ActivationService::launch(const ActivationTicket& ticket) {
    if (const int error = connect(); error < 0) {
        logLine(std::string("no session bus: ") + std::strerror(-error));
        close();
        return LaunchOutcome::noBus;
    }
    // The running one may end between the two questions; then it is our turn.
    const auto deadline = steady_clock::now() + patience;
    for (;;) {
        const int result = sd_bus_request_name(bus_, name_.c_str(), 0);
        if (result >= 0) return LaunchOutcome::first;
        if (result != -EEXIST) {
            logLine("the session bus does not give the name " + name_ + ": " + std::strerror(-result));
            close();
            return LaunchOutcome::noBus;
        }
        const int handed = handOver(ticket);
        if (handed == -ESRCH && steady_clock::now() < deadline) continue;
        close();
        return handed >= 0 ? LaunchOutcome::handedOver : LaunchOutcome::noAnswer;
    }
}

void ActivationService::setHandler(Handler handler) {
    handler_ = std::move(handler);
    if (bus_ != nullptr && !watch_) watch();
}

void ActivationService::watch() {
    watch_ = RunLoop::shared().watchReadable(sd_bus_get_fd(bus_), [this] { answerWaiting(); });
    // What came in so far has been read already, so the descriptor stays silent about it.
    RunLoop::shared().asyncAfter(0, [this, alive = std::weak_ptr<bool>(isAlive_)] {
        if (!alive.expired()) answerWaiting();
    });
}

void ActivationService::answerWaiting() {
    int result = 0;
    while (bus_ != nullptr && (result = sd_bus_process(bus_, nullptr)) > 0) {
    }
    if (result >= 0) return;
    lost();
}

void ActivationService::lost() {
    logLine("the session bus is gone; until it returns, a second launch will not find this program");
    close();
    search_ = RunLoop::shared().scheduleRepeatingTimer(searchSeconds, [this] { lookForBus(); });
}

/// One that lets nobody in, or says nothing, is not waited for a second time.
void ActivationService::lookForBus() {
    const int error = connect();
    const int result = error < 0 ? error : sd_bus_request_name(bus_, name_.c_str(), 0);
    if (result >= 0) {
        search_.reset();
        logLine("the session bus is there again");
        watch();
        if (returned_) returned_();
        return;
    }
    close();
    if (result != -ETIMEDOUT && result != -EACCES && result != -EPERM && result != -EEXIST) return;
    logLine(std::string("the session bus is there again, but not for this program: ") + std::strerror(-result));
    search_.reset();
}

}  // namespace orlamo::xdg
