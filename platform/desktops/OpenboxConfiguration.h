#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orlamo::desktops {

struct OpenboxAction {
    std::string name;
    std::map<std::string, std::string, std::less<>> options;  // texts of its direct elements, the first of each name
};

/// Every key does all the actions. Without actions: the keys begin a chain.
struct OpenboxBinding {
    std::vector<std::string> keys;  // such as "C-A-Left"
    std::vector<OpenboxAction> actions;
};

inline constexpr std::size_t maximumConfigurationSize = 1024 * 1024;  // bytes

/// The key bindings of an rc.xml in their order, keys inside a chain left out. Absent for what is larger, deeper than
/// 64 elements or no such file; then `error` says why.
std::optional<std::vector<OpenboxBinding>> openboxBindings(std::string_view xml, std::string& error);

}  // namespace orlamo::desktops
