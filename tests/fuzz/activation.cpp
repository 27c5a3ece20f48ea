// The platform data of an activation that another program sends: a{sv} with whatever keys and types.
#include "platform/xdg/ActivationTicket.h"

#include <sys/socket.h>
#include <systemd/sd-bus.h>

#include <algorithm>
#include <array>

#include "tests/fuzz/FuzzInput.h"

using namespace orlamo;
using fuzz::require;

namespace {

/// A bus that nobody answers on: messages can be made with it.
sd_bus* silentBus() {
    static sd_bus* const bus = [] {
        std::array<int, 2> ends{};
        require(::socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data()) == 0, "there is a pair of sockets");
        sd_bus* made = nullptr;
        sd_bus_new(&made);
        sd_bus_set_fd(made, ends[0], ends[0]);
        require(sd_bus_start(made) >= 0, "the bus starts");
        return made;
    }();
    return bus;
}

int appendEntry(sd_bus_message* message, fuzz::FuzzInput& input) {
    constexpr std::array keys{"desktop-startup-id", "activation-token", "", "other"};
    const char* const key = keys[input.below(keys.size())];
    switch (input.below(4)) {
        case 0:
            return sd_bus_message_append(message, "{sv}", key, "u", static_cast<unsigned>(input.number(4)));
        case 1:
            return sd_bus_message_append(message, "{sv}", key, "as", 2, "a", "b");
        case 2:
            return sd_bus_message_append(message, "{sv}", key, "v", "s", "inner");
        default:
            return sd_bus_message_append(message, "{sv}", key, "s", std::string(input.line()).c_str());
    }
}

bool isUsable(const std::string& text) {
    return text.size() <= 1024 && std::ranges::all_of(text, [](char c) { return c > ' ' && c < 0x7f; });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::FuzzInput input(data, size);
    sd_bus_message* message = nullptr;
    require(sd_bus_message_new_signal(silentBus(), &message, "/app", "org.example.App", "Sent") >= 0, "a message");
    sd_bus_message_open_container(message, 'a', "{sv}");
    // A text that the bus would not carry leaves its entry half written: such a message cannot arrive.
    bool canArrive = true;
    while (!input.isEmpty() && canArrive) canArrive = appendEntry(message, input) >= 0;
    if (canArrive) {
        sd_bus_message_close_container(message);
        sd_bus_message_append(message, "s", "after");
        sd_bus_message_seal(message, 1, 0);
        xdg::ActivationTicket ticket;
        const char* after = nullptr;
        require(xdg::read(message, ticket) >= 0, "well-formed platform data is read");
        require(sd_bus_message_read(message, "s", &after) > 0, "the place is behind the platform data");
        require(isUsable(ticket.startupId) && isUsable(ticket.activationToken), "a ticket is printable ASCII");
    }
    sd_bus_message_unref(message);
    return 0;
}
