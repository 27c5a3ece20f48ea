#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <unordered_map>
#include <variant>
#include <vector>

struct sd_bus;
struct sd_bus_message;
struct sd_bus_slot;

namespace orlamo::atspi {

using Deadline = std::chrono::steady_clock::time_point;

inline Deadline deadlineIn(std::chrono::milliseconds time) {
    return std::chrono::steady_clock::now() + time;
}

/// A method call. The destination is ignored by a connection straight to a program. A boolean goes as a property's
/// value does: inside a variant.
struct Call {
    using Argument = std::variant<std::string, std::int32_t, std::vector<std::string>, bool>;

    std::string destination;
    std::string path;
    const char* interface = "";
    const char* member = "";
    std::vector<Argument> arguments = {};
};

/// A connection to a message bus, or straight to one program. Nothing blocks but waitForAnswers. Not movable: replies
/// find their way back by its address.
class Connection {
public:
    /// Gets the answer, which lives until it returns; null when the connection broke or the call could not be sent.
    using Reply = std::function<void(sd_bus_message*)>;
    using Signal = std::function<void(sd_bus_message*)>;

    static std::unique_ptr<Connection> toSessionBus();
    static std::unique_ptr<Connection> toBus(const std::string& address);
    /// Only where that process itself has opened the socket; the address is what a program claims.
    static std::unique_ptr<Connection> toProgram(const std::string& address, int processIdentifier);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    bool isOpen() const { return isOpen_; }
    /// Readable when there is something to handle; -1 when closed.
    int descriptor() const;
    /// The reply runs inside a later handle() or waitForAnswers(). Only so many calls are sent at a time; the rest wait
    /// here. `owner`: for cancel().
    void call(Call call, Reply reply, const void* owner = nullptr);
    /// Forgets the owner's calls: their replies never run.
    void cancel(const void* owner);
    /// From now on, for as long as the connection lives. The rule must be a valid one.
    void listen(const std::string& rule, Signal signal);
    bool isAwaiting() const { return !pending_.empty() || !waiting_.empty(); }
    /// Handles what has come in, without waiting for more, and stops at the deadline.
    void handle(Deadline deadline);

private:
    struct Pending {
        Connection* connection;
        sd_bus_slot* slot;
        Reply reply;
        const void* owner;
    };
    struct Waiting {
        Call call;
        Reply reply;
        const void* owner;
    };
    struct Listener {
        Signal signal;
    };
    friend bool waitForAnswers(std::span<Connection* const> connections, Deadline deadline);

    explicit Connection(sd_bus* bus, bool isBus);
    static std::unique_ptr<Connection> start(sd_bus* bus, bool isBus, const std::string& address);
    void sendWaiting();
    bool send(Waiting& waiting);
    bool isFlooded();
    void close();

    sd_bus* bus_;
    bool isBus_;
    bool isOpen_ = true;
    std::size_t unhandledBytes_ = 0;  // read since the last whole message
    std::unordered_map<Pending*, std::unique_ptr<Pending>> pending_;
    std::deque<Waiting> waiting_;
    std::vector<std::unique_ptr<Listener>> listeners_;
};

/// Waits until something came in on one of the connections, and handles it. False: nothing is awaited on any of them,
/// or the deadline has passed.
bool waitForAnswers(std::span<Connection* const> connections, Deadline deadline);

}  // namespace orlamo::atspi
