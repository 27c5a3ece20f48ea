#include "platform/desktops/PlasmaApplets.h"

#include <algorithm>

#include "platform/desktops/Text.h"

namespace orlamo::desktops {

namespace {

constexpr std::string_view launchers[] = {"plugin=org.kde.plasma.kickoff", "plugin=org.kde.plasma.kicker",
                                          "plugin=org.kde.plasma.kickerdash"};

// "3" of "[Containments][2][Applets][3]"; empty for any other heading, as that of an applet's own settings.
std::string_view appletOfHeading(std::string_view heading) {
    constexpr std::string_view before = "[Applets][";
    const auto place = heading.rfind(before);
    if (place == std::string_view::npos) return {};
    const auto number = heading.substr(place + before.size());
    return number.find(']') + 1 == number.size() ? number.substr(0, number.size() - 1) : std::string_view();
}

}  // namespace

std::vector<std::string> plasmaLaunchers(std::string_view applets) {
    std::vector<std::string> found;
    std::string_view applet;
    for (const auto line : split(applets, '\n')) {
        if (line.starts_with('[')) applet = appletOfHeading(line);
        if (!applet.empty() && std::ranges::find(launchers, line) != std::end(launchers)) found.emplace_back(applet);
    }
    return found;
}

}  // namespace orlamo::desktops
