// Formats of the string tables: a first line with the format, each further line an argument.
#include <vector>

#include "preferences/LocalizedText.h"
#include "tests/fuzz/FuzzInput.h"

using namespace orlamo;
using fuzz::require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::FuzzInput input(data, size);
    const std::string_view format = input.line();
    std::vector<std::string_view> arguments;
    std::size_t longest = 0;
    while (!input.isEmpty()) {
        arguments.push_back(input.line());
        longest = std::max(longest, arguments.back().size());
    }
    const std::string text = formatted(format, arguments);
    require(text.size() <= format.size() * (longest + 1), "a placeholder becomes one argument");
    if (format.find('%') == std::string_view::npos) require(text == format, "a text without placeholders stays");
    if (arguments.empty() && format.find("%%") == std::string_view::npos) {
        require(text == format, "placeholders without arguments stay");
    }
    return 0;
}
