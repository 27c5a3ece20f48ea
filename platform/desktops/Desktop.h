#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orlamo::desktops {

/// Desktops whose shortcuts can be read. gnomeBased has GNOME's settings but a shell and a panel of its own.
enum class Desktop { gnome, gnomeBased, flashback, budgie, cinnamon, mate, xfce, kde };

/// The window manager that runs; empty texts for what is not known.
struct WindowManager {
    std::string name;           // as it calls itself
    std::string configuration;  // the file that it was told to read
};

/// From XDG_CURRENT_DESKTOP, a list such as "ubuntu:GNOME": the first known name counts.
std::optional<Desktop> desktopOfNames(std::string_view colonSeparatedNames);
/// XDG_CURRENT_DESKTOP, or an empty text.
std::string desktopNamesOfEnvironment();

}  // namespace orlamo::desktops
