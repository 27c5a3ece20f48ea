#include "Relay.h"

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <thread>

namespace orlamo::hostile {
namespace {

bool sendAll(int to, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t sent = ::send(to, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (sent <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
    return true;
}

}  // namespace

int Relay::carry(int outside) {
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) return -1;
    std::thread([this, outside, inside = ends[1]] {
        std::array<pollfd, 2> polled{{{inside, POLLIN, 0}, {outside, POLLIN, 0}}};
        std::string buffer(1 << 16, '\0');
        bool isOpen = true;
        while (isOpen && poll(polled.data(), polled.size(), -1) > 0) {
            for (const pollfd& ready : polled) {
                if (ready.revents == 0) continue;
                const ssize_t size = recv(ready.fd, buffer.data(), buffer.size(), 0);
                const std::string bytes = buffer.substr(0, static_cast<std::size_t>(std::max<ssize_t>(size, 0)));
                isOpen = isOpen && size > 0 && (ready.fd == inside ? send(outside, bytes) : sendAll(inside, bytes));
            }
        }
        close(inside);
        close(outside);
    }).detach();
    return ends[0];
}

bool Relay::send(int outside, std::string bytes) {
    for (std::size_t at = 0; !marker.empty() && (at = bytes.find(marker, at)) != std::string::npos;) {
        bytes.replace(at, marker.size(), replacement);
    }
    if (isRubbish) std::ranges::for_each(bytes, [](char& byte) { byte = static_cast<char>(byte * 31 + 7); });
    if (allowance >= 0) {
        bytes.resize(std::min(bytes.size(), static_cast<std::size_t>(allowance.load())));
        allowance -= static_cast<long>(bytes.size());
        if (allowance == 0 && closesWhenSpent) return false;
    }
    if (dripMicroseconds == 0) return sendAll(outside, bytes);
    for (const char& byte : bytes) {
        if (!sendAll(outside, {&byte, 1})) return false;
        usleep(static_cast<useconds_t>(dripMicroseconds));
    }
    return true;
}

}  // namespace orlamo::hostile
