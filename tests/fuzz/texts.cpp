// Texts that others give.
#include <vector>

#include "platform/atspi/Utf8.h"
#include "platform/x11/ApplicationName.h"
#include "preferences/LocalizedText.h"
#include "tests/fuzz/FuzzInput.h"

namespace orlamo::fuzz {

/// Formats of the string tables: a first line with the format, each further line an argument.
void formats(std::string_view bytes) {
    FuzzInput input(bytes);
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
}

/// Names that other programs give: menu items, window classes and titles.
void names(std::string_view bytes) {
    constexpr std::size_t limit = 100;
    const std::string clean = atspi::cleanName(bytes, limit);
    require(clean.size() <= limit, "a name is bounded");
    require(atspi::cleanName(clean, limit) == clean, "a clean name stays");
    std::string again;
    for (std::string_view rest = clean; !rest.empty();) {
        const auto character = atspi::takeCharacter(rest);
        require(character.has_value(), "a clean name is UTF-8");
        require(*character >= 0x20 && (*character < 0x7f || *character >= 0xa0), "a clean name has no controls");
        require(*character < 0x202a || *character > 0x202e, "a clean name turns no direction");
        again += atspi::toUtf8(*character);
    }
    require(again == clean, "characters are written as they were read");
    FuzzInput lines(bytes);
    const std::string_view windowClass = lines.line();
    require(x11::applicationName(windowClass, lines.line()).size() <= bytes.size(), "an application's name is a part");
}

}  // namespace orlamo::fuzz
