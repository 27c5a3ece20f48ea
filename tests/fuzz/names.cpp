// Names that other programs give: menu items, window classes and titles.
#include "platform/atspi/Utf8.h"
#include "platform/x11/ApplicationName.h"
#include "tests/fuzz/FuzzInput.h"

using namespace orlamo;
using fuzz::require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t limit = 100;
    const std::string_view text = fuzz::textOf(data, size);
    const std::string clean = atspi::cleanName(text, limit);
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
    fuzz::FuzzInput lines(data, size);
    const std::string_view windowClass = lines.line();
    require(x11::applicationName(windowClass, lines.line()).size() <= size, "an application's name is a part");
    return 0;
}
