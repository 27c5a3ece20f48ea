#pragma once

#include <map>
#include <string>
#include <string_view>

namespace orlamo::desktops {

/// The channel of xfconf that holds Xfce's shortcuts.
inline constexpr std::string_view xfceChannel = "xfce4-keyboard-shortcuts";

/// Of that channel's properties, the bindings below "/commands" or "/xfwm4" that are in force: accelerator to action.
std::map<std::string, std::string> xfceBindings(const std::map<std::string, std::string>& properties,
                                                const std::string& root);

}  // namespace orlamo::desktops
