#pragma once

#include <string>
#include <string_view>

namespace orlamo::desktops {

/// KDE's service for global shortcuts, and the interface of its components.
inline constexpr auto kdeService = "org.kde.kglobalaccel";
inline constexpr auto kdeComponentInterface = "org.kde.kglobalaccel.Component";

/// The service names a component's object after the component, with an underscore for what a path may not hold.
std::string kdeComponentPath(std::string_view component);

}  // namespace orlamo::desktops
