#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/desktops/ActionTables.h"

namespace orlamo::desktops {

/// A command line that a key runs.
struct Command {
    std::string program;             // without its folder
    std::string options;             // letters, those of the known long options too
    std::vector<std::string> words;  // all that is no option
};

/// The words of a command line, quoted as for a shell, the first without its folder; none when it cannot be taken
/// apart.
std::vector<std::string> argumentsOf(std::string_view text);
/// "/usr/bin/xfce4-screenshooter -r --clipboard" is the program and the letters "rc". Quoted as for a shell; what
/// cannot be taken apart is no program.
Command commandOf(std::string_view text);
bool runs(const Command& command, const CommandRow& row);

}  // namespace orlamo::desktops
