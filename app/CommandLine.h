#pragma once

#include <optional>
#include <span>

namespace orlamo {

/// Answers words on the command line (the program's own name is not one of them): what was asked goes to standard
/// output, complaints to standard error. The exit status then; none when the program is to run. Needs no display.
std::optional<int> answerCommandLine(std::span<char* const> words);

}  // namespace orlamo
