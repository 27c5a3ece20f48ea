#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Log.h"

namespace orlamo {

/// Keeps the lines. Installs itself, as every fake of this folder does: an object of it in a fixture is enough.
class FakeLog : public Log {
public:
    void write(std::string_view line) override { lines.emplace_back(line); }

    bool contains(std::string_view line) const { return std::ranges::find(lines, line) != lines.end(); }
    std::ptrdiff_t count(std::string_view line) const { return std::ranges::count(lines, line); }

    std::vector<std::string> lines;

private:
    Installation installation_{*this};
};

}  // namespace orlamo
