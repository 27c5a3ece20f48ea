#include "platform/atspi/Connection.h"

#include <poll.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <systemd/sd-bus.h>

#include <algorithm>
#include <utility>

#include "platform/Log.h"

namespace orlamo::atspi {
namespace {

// A program works through its queue anyway; more in flight only fills the buffers between.
constexpr std::size_t mostInFlight = 512;
// The caches of large programs are below 2 MiB. A message beyond this is not read to its end.
constexpr std::size_t longestMessage = 8U << 20;
// Longer than any reading: its deadline is what ends a wait, and cancel() the calls.
constexpr std::uint64_t callTimeoutMicroseconds = 20'000'000;

bool append(sd_bus_message* message, const Call::Argument& argument) {
    if (const auto* const text = std::get_if<std::string>(&argument)) {
        return sd_bus_message_append_basic(message, 's', text->c_str()) >= 0;
    }
    if (const auto* const number = std::get_if<std::int32_t>(&argument)) {
        return sd_bus_message_append_basic(message, 'i', number) >= 0;
    }
    if (const auto* const truth = std::get_if<bool>(&argument)) {
        return sd_bus_message_append(message, "v", "b", static_cast<int>(*truth)) >= 0;
    }
    if (sd_bus_message_open_container(message, 'a', "s") < 0) return false;
    for (const std::string& text : std::get<std::vector<std::string>>(argument)) {
        if (sd_bus_message_append_basic(message, 's', text.c_str()) < 0) return false;
    }
    return sd_bus_message_close_container(message) >= 0;
}

/// Sockets of this machine only. Other addresses would have a command run, or a host's name looked up.
bool areSockets(std::string_view addresses) {
    while (!addresses.empty()) {
        const std::string_view first = addresses.substr(0, addresses.find(';'));
        if (!first.starts_with("unix:path=") && !first.starts_with("unix:abstract=")) return false;
        addresses.remove_prefix(std::min(addresses.size(), first.size() + 1));
    }
    return true;
}

int processBehind(int socket) {
    ucred peer{};
    socklen_t size = sizeof peer;
    return getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 ? peer.pid : -1;
}

}  // namespace

Connection::Connection(sd_bus* bus, bool isBus) : bus_(bus), isBus_(isBus) {
    const auto wholeMessage = [](sd_bus_message*, void* data, sd_bus_error*) {
        static_cast<Connection*>(data)->unhandledBytes_ = 0;
        return 0;
    };
    sd_bus_add_filter(bus, nullptr, wholeMessage, this);
}

Connection::~Connection() {
    close();
    sd_bus_unref(bus_);
}

std::unique_ptr<Connection> Connection::start(sd_bus* bus, bool isBus, const std::string& address) {
    std::unique_ptr<Connection> connection(new Connection(bus, isBus));
    sd_bus_negotiate_fds(bus, 0);  // none are asked for, so none are taken
    const bool isStarted = areSockets(address) && sd_bus_set_address(bus, address.c_str()) >= 0 &&
                           sd_bus_set_bus_client(bus, isBus ? 1 : 0) >= 0 && sd_bus_start(bus) >= 0;
    return isStarted ? std::move(connection) : nullptr;
}

std::unique_ptr<Connection> Connection::toSessionBus() {
    sd_bus* bus = nullptr;
    if (sd_bus_open_user(&bus) < 0) return nullptr;
    return std::unique_ptr<Connection>(new Connection(bus, true));
}

std::unique_ptr<Connection> Connection::toBus(const std::string& address) {
    sd_bus* bus = nullptr;
    return sd_bus_new(&bus) < 0 ? nullptr : start(bus, true, address);
}

std::unique_ptr<Connection> Connection::toProgram(const std::string& address, int processIdentifier) {
    sd_bus* bus = nullptr;
    auto connection = sd_bus_new(&bus) < 0 ? nullptr : start(bus, false, address);
    const bool isItsOwn = connection && processBehind(connection->descriptor()) == processIdentifier;
    return isItsOwn ? std::move(connection) : nullptr;
}

int Connection::descriptor() const {
    return isOpen_ ? sd_bus_get_fd(bus_) : -1;
}

void Connection::call(Call call, Reply reply, const void* owner) {
    waiting_.push_back({std::move(call), std::move(reply), owner});
    if (pending_.size() < mostInFlight) sendWaiting();
}

void Connection::cancel(const void* owner) {
    std::erase_if(waiting_, [owner](const Waiting& waiting) { return waiting.owner == owner; });
    std::erase_if(pending_, [owner](const auto& entry) {
        if (entry.second->owner != owner) return false;
        sd_bus_slot_unref(entry.second->slot);
        return true;
    });
}

void Connection::listen(const std::string& rule, Signal signal) {
    if (!isOpen_) return;
    auto& listener = listeners_.emplace_back(new Listener{std::move(signal)});
    const auto receive = [](sd_bus_message* message, void* data, sd_bus_error*) {
        static_cast<Listener*>(data)->signal(message);
        return 0;
    };
    sd_bus_add_match_async(bus_, nullptr, rule.c_str(), receive, nullptr, listener.get());
}

/// Calls whose sending fails are answered with nothing, here and now.
void Connection::sendWaiting() {
    while (!waiting_.empty() && pending_.size() < mostInFlight) {
        Waiting next = std::move(waiting_.front());
        waiting_.pop_front();
        if (!isOpen_ || !send(next)) next.reply(nullptr);
    }
}

bool Connection::send(Waiting& waiting) {
    const Call& call = waiting.call;
    sd_bus_message* message = nullptr;
    const char* const destination = isBus_ ? call.destination.c_str() : nullptr;
    if (sd_bus_message_new_method_call(bus_, &message, destination, call.path.c_str(), call.interface, call.member) <
        0) {
        return false;
    }
    bool isSent =
        std::ranges::all_of(call.arguments, [message](const auto& argument) { return append(message, argument); });

    auto pending = std::make_unique<Pending>(Pending{this, nullptr, std::move(waiting.reply), waiting.owner});
    const auto receive = [](sd_bus_message* answer, void* data, sd_bus_error*) {
        auto* const self = static_cast<Pending*>(data);
        Connection& connection = *self->connection;
        auto node = connection.pending_.extract(self);
        sd_bus_slot_unref(self->slot);
        self->reply(answer);
        return 0;
    };
    isSent = isSent &&
             sd_bus_call_async(bus_, &pending->slot, message, receive, pending.get(), callTimeoutMicroseconds) >= 0;
    sd_bus_message_unref(message);
    if (!isSent) {
        waiting.reply = std::move(pending->reply);
        return false;
    }
    pending_.emplace(pending.get(), std::move(pending));
    return true;
}

/// Counts what is there to read; too much without a whole message means that the message is too long.
bool Connection::isFlooded() {
    int readable = 0;
    if (ioctl(sd_bus_get_fd(bus_), FIONREAD, &readable) == 0 && readable > 0) {
        unhandledBytes_ += static_cast<std::size_t>(readable);
    }
    return unhandledBytes_ > longestMessage;
}

void Connection::handle(Deadline deadline) {
    while (isOpen_ && std::chrono::steady_clock::now() < deadline) {
        if (isFlooded()) {
            logLine("accessibility: a message longer than 8 MiB was not read; the connection is closed");
            close();
            return;
        }
        const int result = sd_bus_process(bus_, nullptr);
        if (result < 0) close();
        sendWaiting();
        if (result <= 0) return;
    }
}

void Connection::close() {
    if (!isOpen_) return;
    isOpen_ = false;
    // A destroyed slot's callback cannot run any more, so the replies are told here.
    auto pending = std::exchange(pending_, {});
    auto waiting = std::exchange(waiting_, {});
    for (auto& entry : pending) sd_bus_slot_unref(entry.second->slot);
    sd_bus_close(bus_);
    for (auto& entry : pending) entry.second->reply(nullptr);
    for (auto& entry : waiting) entry.reply(nullptr);
}

bool waitForAnswers(std::span<Connection* const> connections, Deadline deadline) {
    using std::chrono::milliseconds;
    const bool isAwaiting = std::ranges::any_of(connections, [](const Connection* c) { return c->isAwaiting(); });
    if (!isAwaiting || std::chrono::steady_clock::now() >= deadline) return false;

    std::vector<pollfd> polled;
    for (Connection* const connection : connections) {
        if (!connection->isOpen()) continue;
        const int events = sd_bus_get_events(connection->bus_);
        polled.push_back({sd_bus_get_fd(connection->bus_), static_cast<short>(std::max(events, 0)), 0});
    }
    const auto left = std::chrono::ceil<milliseconds>(deadline - std::chrono::steady_clock::now());
    const int ready =
        poll(polled.data(), polled.size(), static_cast<int>(std::max(left.count(), milliseconds::rep{0})));
    if (ready == 0) return false;
    for (Connection* const connection : connections) connection->handle(deadline);
    return true;
}

}  // namespace orlamo::atspi
