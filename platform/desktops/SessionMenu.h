#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "platform/Accessibility.h"
#include "platform/desktops/KeyBinding.h"
#include "platform/desktops/SessionServices.h"
#include "platform/desktops/SettingsSource.h"

namespace orlamo::desktops {

struct SessionCommand {
    std::string_view title;  // a key of the string table
    KeyCombination key;      // one that a menu can say
    SessionDeed deed;
};

/// Four commands when it is present, in the order in which they are shown, else none.
struct SessionMenu {
    SessionMenuState state = SessionMenuState::unknownDesktop;
    std::vector<SessionCommand> commands;
};

/// To lock the screen, to log out, and the first two others in the desktop's table, each of which the desktop has
/// bound to a key now and has somebody to perform. The keys of the two others are letters, digits, signs, or one of
/// Space, Tab, Backspace, Return and Escape. Refreshes both collaborators.
SessionMenu readSessionMenu(std::optional<Desktop> desktop, SettingsSource& source, SessionServices& services);

}  // namespace orlamo::desktops
