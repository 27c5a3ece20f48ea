#include "platform/x11/ApplicationName.h"

#include <algorithm>
#include <cctype>

namespace orlamo::x11 {

std::string applicationName(std::string_view windowClass, std::string_view title) {
    if (windowClass.empty()) return std::string(title);
    // One dot may stand in a plain name; an id has two and more.
    const auto lastDot = windowClass.rfind('.');
    const bool isIdentifier = std::ranges::count(windowClass, '.') >= 2 && lastDot + 1 < windowClass.size();
    std::string name(isIdentifier ? windowClass.substr(lastDot + 1) : windowClass);
    name.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(name.front())));
    return name;
}

}  // namespace orlamo::x11
