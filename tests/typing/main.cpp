// Types on the display of the environment what it reads, as the program does. First it tells its keys, a line each:
// code, keysym and other keysym. Then a line "CODE FLAGS 1" is a key-down, "CODE FLAGS 0" a key-up; an empty line asks
// what the log says of those before it, once the server has done them. An empty line ends each answer.
#include <cstdio>
#include <iostream>
#include <sstream>

#include "platform/x11/EventPoster.h"
#include "platform/x11/KeyTable.h"
#include "tests/doubles/FakeLog.h"
#include "tests/doubles/FakeRunLoop.h"

using namespace orlamo;

int main() {
    FakeLog log;
    const FakeRunLoop runLoop;
    std::string error;
    const auto connection = x11::Connection::open(error);
    if (!connection) {
        std::fprintf(stderr, "%s\n", error.c_str());
        return 2;
    }
    x11::CoreKeyboard keyboard(*connection);
    x11::Windows windows(*connection);
    x11::WindowManager manager(*connection, windows);
    x11::EventPoster poster(*connection, keyboard, manager);

    for (std::uint16_t code = 0; code < 128; ++code) {
        const x11::KeyRow* const row = x11::keyRow(code);
        if (row != nullptr) std::cout << code << ' ' << row->keysym << ' ' << row->other << '\n';
    }
    std::cout << std::endl;
    for (std::string line; std::getline(std::cin, line);) {
        if (line.empty()) {
            connection->serverTime();
            for (const std::string& each : log.lines) std::cout << each << '\n';
            std::cout << std::endl;
            log.lines.clear();
            continue;
        }
        std::uint16_t code = 0;
        std::uint64_t flags = 0;
        bool isDown = false;
        std::istringstream(line) >> code >> flags >> isDown;
        KeyboardEvent event = CGEventCreateKeyboardEvent(code, isDown);
        CGEventSetFlags(event, flags);
        poster.CGEventPost(EventTapLocation::session, event);
    }
}
