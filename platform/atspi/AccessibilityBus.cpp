#include "platform/atspi/AccessibilityBus.h"

#include <systemd/sd-bus.h>

#include <array>
#include <cstdlib>
#include <cstring>

#include "platform/Log.h"

namespace orlamo::atspi {
namespace {

constexpr const char* launcher = "org.a11y.Bus";
constexpr const char* launcherPath = "/org/a11y/bus";
// Some versions of the bus count as switched on only while someone listens for an event. This one is hardly ever sent,
// and is not delivered here.
constexpr const char* rareEvent = "object:property-change:accessible-table-summary";
constexpr double repairIntervalSeconds = 0.4;
constexpr int repairs = 5;

std::optional<bool> readBooleanVariant(sd_bus_message* message) {
    int value = 0;
    if (sd_bus_message_read(message, "v", "b", &value) < 0) return std::nullopt;
    return value != 0;
}

bool isError(sd_bus_message* message) {
    return message == nullptr || sd_bus_message_is_method_error(message, nullptr) > 0;
}

/// IsEnabled out of a PropertiesChanged signal of the status.
std::optional<bool> readChangedStatus(sd_bus_message* message) {
    if (sd_bus_message_skip(message, "s") < 0) return std::nullopt;
    if (sd_bus_message_enter_container(message, 'a', "{sv}") < 0) return std::nullopt;
    while (sd_bus_message_enter_container(message, 'e', "sv") > 0) {
        const char* name = nullptr;
        if (sd_bus_message_read(message, "s", &name) < 0) return std::nullopt;
        if (std::strcmp(name, "IsEnabled") == 0) return readBooleanVariant(message);
        if (sd_bus_message_skip(message, "v") < 0 || sd_bus_message_exit_container(message) < 0) return std::nullopt;
    }
    return std::nullopt;
}

}  // namespace

AccessibilityBus::AccessibilityBus() {
    connectToSession();
}

AccessibilityBus::~AccessibilityBus() {
    *isAlive_ = false;
    if (session_) session_->cancel(this);
    if (bus_) bus_->cancel(this);
}

void AccessibilityBus::connectToSession() {
    sessionWatch_.reset();
    isEnabled_.reset();
    isAskingForStatus_ = isAskingForAddress_ = false;
    session_ = Connection::toSessionBus();
    if (!session_) return;
    session_->listen(
        "type='signal',sender='org.a11y.Bus',path='/org/a11y/bus',interface='org.freedesktop.DBus.Properties',"
        "member='PropertiesChanged',arg0='org.a11y.Status'",
        [this](sd_bus_message* message) {
            if (const auto changed = readChangedStatus(message)) isEnabled_ = changed;
        });
    session_->listen(
        "type='signal',sender='org.freedesktop.DBus',interface='org.freedesktop.DBus',member='NameOwnerChanged',"
        "arg0='org.a11y.Bus'",
        [this](sd_bus_message* message) {
            const char *name = nullptr, *before = nullptr, *after = nullptr;
            if (sd_bus_message_read(message, "sss", &name, &before, &after) >= 0) handleBusOwner(after);
        });
    askForStatus();
    askForAddress();
    watch();
}

void AccessibilityBus::handleBusOwner(const std::string& newOwner) {
    isEnabled_.reset();
    if (newOwner.empty()) {
        repairLater();
        return;
    }
    askForStatus();
    if (!bus_ || !bus_->isOpen()) askForAddress();
}

void AccessibilityBus::askForStatus() {
    if (!session_ || !session_->isOpen() || isAskingForStatus_) return;
    isAskingForStatus_ = true;
    session_->call(
        {launcher, launcherPath, "org.freedesktop.DBus.Properties", "Get", {"org.a11y.Status", "IsEnabled"}},
        [this](sd_bus_message* answer) {
            isAskingForStatus_ = false;
            isEnabled_ = isError(answer) ? std::nullopt : readBooleanVariant(answer);
        },
        this);
}

void AccessibilityBus::askForAddress() {
    if (const char* const given = std::getenv("AT_SPI_BUS_ADDRESS"); given != nullptr && *given != '\0') {
        connectToBus(given);
        return;
    }
    if (!session_ || !session_->isOpen() || isAskingForAddress_) return;
    isAskingForAddress_ = true;
    session_->call(
        {launcher, launcherPath, launcher, "GetAddress"},
        [this](sd_bus_message* answer) {
            isAskingForAddress_ = false;
            const char* address = nullptr;
            if (isError(answer) || sd_bus_message_read(answer, "s", &address) < 0) return;
            connectToBus(address);
        },
        this);
}

void AccessibilityBus::connectToBus(const std::string& address) {
    busWatch_.reset();
    bus_ = Connection::toBus(address);
    if (!bus_) {
        logLine("accessibility: no connection to the bus at " + address);
        return;
    }
    if (address != address_) ++epoch_;
    address_ = address;
    bus_->call(
        {"org.a11y.atspi.Registry",
         "/org/a11y/atspi/registry",
         "org.a11y.atspi.Registry",
         "RegisterEvent",
         {rareEvent, std::vector<std::string>{}, ""}},
        [](sd_bus_message*) {}, this);
    watch();
}

/// Watches the connections that are open; a broken one is given up, to be made anew.
void AccessibilityBus::watch() {
    if (!RunLoop::isInstalled()) return;
    const auto watchOne = [this](const std::unique_ptr<Connection>& connection, auto& handle) {
        const bool isOpen = connection && connection->isOpen();
        if (!isOpen) handle.reset();
        if (!isOpen || handle) return;
        handle = RunLoop::shared().watchReadable(connection->descriptor(), [this] { handleReadable(); });
    };
    watchOne(session_, sessionWatch_);
    watchOne(bus_, busWatch_);
}

void AccessibilityBus::handleReadable() {
    const auto soon = deadlineIn(std::chrono::milliseconds(50));
    if (session_) session_->handle(soon);
    if (bus_) bus_->handle(soon);
    const bool isBroken = (session_ && !session_->isOpen()) || (bus_ && !bus_->isOpen());
    watch();
    if (isBroken) repairLater();
}

/// A few attempts shortly after a connection broke; then the next call, or the bus's return, starts anew.
void AccessibilityBus::repairLater() {
    if (!RunLoop::isInstalled() || repairsLeft_ > 0) return;
    repairsLeft_ = repairs;
    struct Attempt {
        static void schedule(AccessibilityBus& bus, std::weak_ptr<bool> alive) {
            RunLoop::shared().asyncAfter(repairIntervalSeconds, [&bus, alive] {
                const auto isAlive = alive.lock();
                if (!isAlive || !*isAlive) return;
                bus.update(Deadline::min());
                if (bus.isSettled()) bus.repairsLeft_ = 0;
                if (bus.repairsLeft_ > 0 && --bus.repairsLeft_ > 0) schedule(bus, alive);
            });
        }
    };
    Attempt::schedule(*this, isAlive_);
}

bool AccessibilityBus::isSettled() const {
    return bus_ && bus_->isOpen() && isEnabled_.has_value();
}

/// Hears what came in, starts over what is broken, and waits while it is not known how things stand.
void AccessibilityBus::update(Deadline deadline) {
    const auto soon = deadlineIn(std::chrono::milliseconds(50));
    if (session_) session_->handle(soon);
    if (bus_) bus_->handle(soon);
    if (!session_ || !session_->isOpen()) connectToSession();
    if (!isEnabled_) askForStatus();
    if (!bus_ || !bus_->isOpen()) askForAddress();
    watch();
    while (!isSettled() && wait(deadline)) {
    }
    watch();
}

/// Only the session bus is waited for: an answer there may replace the other connection.
bool AccessibilityBus::wait(Deadline deadline) {
    const std::array<Connection*, 1> connections{session_.get()};
    return session_ && waitForAnswers(connections, deadline);
}

bool AccessibilityBus::isEnabled(Deadline deadline) {
    update(deadline);
    return isEnabled_.value_or(false) && bus_ && bus_->isOpen();
}

Connection* AccessibilityBus::connection(Deadline deadline) {
    update(deadline);
    return bus_ && bus_->isOpen() ? bus_.get() : nullptr;
}

}  // namespace orlamo::atspi
