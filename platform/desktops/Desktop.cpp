#include "platform/desktops/Desktop.h"

#include <cstdlib>

#include "platform/desktops/Text.h"

namespace orlamo::desktops {

namespace {

struct NamedDesktop {
    std::string_view name;
    Desktop desktop;
};
constexpr NamedDesktop namedDesktops[] = {
    {"GNOME", Desktop::gnome},       {"GNOME-Flashback", Desktop::flashback},
    {"Unity", Desktop::gnomeBased},  {"Pantheon", Desktop::gnomeBased},
    {"Budgie", Desktop::budgie},     {"X-Cinnamon", Desktop::cinnamon},
    {"Cinnamon", Desktop::cinnamon}, {"MATE", Desktop::mate},
    {"XFCE", Desktop::xfce},         {"KDE", Desktop::kde},
};

}  // namespace

std::optional<Desktop> desktopOfNames(std::string_view colonSeparatedNames) {
    for (const auto name : split(colonSeparatedNames, ':')) {
        for (const auto& each : namedDesktops) {
            if (equalIgnoringCase(each.name, name)) return each.desktop;
        }
    }
    return std::nullopt;
}

std::string desktopNamesOfEnvironment() {
    const char* const names = std::getenv("XDG_CURRENT_DESKTOP");
    return names == nullptr ? "" : names;
}

}  // namespace orlamo::desktops
