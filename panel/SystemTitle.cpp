#include "panel/SystemTitle.h"

#include <vector>

namespace orlamo {

SystemTitle splitSystemTitle(std::string_view title) {
    constexpr std::string_view separator = "//";
    std::vector<std::string_view> parts;
    std::string_view rest = title;
    for (auto at = rest.find(separator); at != std::string_view::npos; at = rest.find(separator)) {
        parts.push_back(rest.substr(0, at));
        rest.remove_prefix(at + separator.size());
    }
    parts.push_back(rest);
    if (parts.size() == 1) return {std::string(title), std::string(title)};
    if (parts.size() == 2) return {std::string(parts[0]), std::string(parts[1])};
    return {std::string(parts[0]) + "/" + std::string(parts[1]), std::string(parts[2])};
}

}  // namespace orlamo
