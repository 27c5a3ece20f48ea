#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orlamo::desktops {

/// Where Plasma keeps which applets its panels hold, below the folder for the configuration of programs.
inline constexpr std::string_view plasmaAppletsFile = "plasma-org.kde.plasma.desktop-appletsrc";

/// The numbers of the application launchers in that file's text.
std::vector<std::string> plasmaLaunchers(std::string_view applets);

}  // namespace orlamo::desktops
