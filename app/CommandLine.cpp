#include "app/CommandLine.h"

#include <iostream>
#include <string_view>

namespace orlamo {

namespace {

constexpr int done = 0;
constexpr int wrongUse = 2;

constexpr std::string_view usage =
    "Usage: orlamo [--help | --version]\n"
    "Shows every keyboard shortcut of the application in front: press Ctrl twice.\n"
    "\n"
    "  -h, --help     say this, and end\n"
    "      --version  say which version this is, and end\n"
    "\n"
    "Without an option it runs in the background of an X11 session and shows its\n"
    "settings; started again, it brings them back. More: man orlamo\n";

}  // namespace

std::optional<int> answerCommandLine(std::span<char* const> words) {
    if (words.empty()) return std::nullopt;
    const std::string_view word = words.front();
    if (words.size() == 1 && (word == "--help" || word == "-h")) {
        std::cout << usage << std::flush;
        return done;
    }
    if (words.size() == 1 && word == "--version") {
        std::cout << "orlamo " ORLAMO_VERSION "\n" << std::flush;
        return done;
    }
    const bool isKnown = word == "--help" || word == "-h" || word == "--version";
    std::cerr << "orlamo: unknown argument '" << (isKnown ? words[1] : words[0]) << "'; see orlamo --help\n";
    return wrongUse;
}

}  // namespace orlamo
