#pragma once

#include <string>
#include <string_view>

namespace orlamo::x11 {

/// A name for people out of a window class: its last part when it is a desktop-file id such as "org.gnome.TextEditor",
/// the first letter upper case. The window's title when there is no class.
std::string applicationName(std::string_view windowClass, std::string_view title);

}  // namespace orlamo::x11
