#pragma once

#include <filesystem>
#include <string>

#include "platform/LoginItems.h"

namespace orlamo::xdg {

/// $XDG_CONFIG_HOME, else ~/.config; empty when there is neither.
std::filesystem::path userConfigFolder();

/// What a desktop entry starts and how it shows it.
struct StartedProgram {
    std::filesystem::path executable;  // absolute; an entry does not follow a program that is moved
    std::string name = "Orlamo";
    std::string icon = "app.orlamo.Orlamo";
};

/// Login items as files <identifier>.desktop in the folder "autostart", which the session starts. A file appears whole
/// or not at all. False, with a line in the log, when it cannot be written or removed.
class Autostart final : public LoginItems {
public:
    explicit Autostart(StartedProgram program, const std::filesystem::path& configFolder = userConfigFolder());

    bool SMLoginItemSetEnabled(std::string_view identifier, bool enabled) override;

private:
    bool add(const std::filesystem::path& entry) const;

    StartedProgram program_;
    std::filesystem::path folder_;  // empty when the user has no configuration folder
};

/// The text of such a file.
std::string desktopEntry(const StartedProgram& program);

}  // namespace orlamo::xdg
