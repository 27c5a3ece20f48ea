#include <array>

#include "core/SystemShortcuts.h"

namespace orlamo {

namespace {

constexpr std::array<std::string_view, 44> rows{
    "52:Launchpad & Dock//Turn Dock Hiding On/Off",
    "160:Launchpad & Dock//Show Launchpad",
    "32:Mission Contrl//Mission Contrl",
    "163:Mission Contrl//Show Notification Center",
    "175:Mission Contrl//Turn Do Not Disturb On/Off",
    "33:Mission Contrl//Application Windows",
    "36:Mission Contrl//Show Desktop",
    "62:Mission Contrl//Show Dashboard",
    "79:Mission Contrl//Mission Contrl//Move left a space",
    "81:Mission Contrl//Mission Contrl//Move right a space",
    "118:Mission Contrl//Mission Contrl//Switch to Desktop 1",
    "119:Mission Contrl//Mission Contrl//Switch to Desktop 2",
    "120:Mission Contrl//Mission Contrl//Switch to Desktop 3",
    "121:Mission Contrl//Mission Contrl//Switch to Desktop 4",
    "13:Keyboard//Change the way Tab moves focus",
    "12:Keyboard//Turn keyboard access on or off",
    "7:Keyboard//Move focus to the menu bar",
    "8:Keyboard//Move focus to the Dock",
    "9:Keyboard//Move focus to active or next window",
    "10:Keyboard//Move focus to window toolbar",
    "11:Keyboard//Move focus to floating window",
    "27:Keyboard//Move focus to next window",
    "51:Keyboard//Move focus to the window drawer",
    "57:Keyboard//Move focus to the status menus",
    "156:Keyboard//Show/Hide Trackpad Handwriting",
    "60:Input Sources//Select the previous input source",
    "61:Input Sources//Select next source in the Input Menu",
    "28:Screen Shots//Save picture of screen as file",
    "29:Screen Shots//Copy picture of screen to the clipboard",
    "30:Screen Shots//Save picture of selected area as file",
    "31:Screen Shots//Copy picture of selected area to clipboard",
    "64:Spotlight//Show Spotlight search",
    "64:Spotlight//Show Finder search window",
    "15:Accessibility//Zoom//Turn zoom on or off",
    "23:Accessibility//Zoom//Turn image smoothing on or off",
    "19:Accessibility//Zoom//Zoom out",
    "17:Accessibility//Zoom//Zoom in",
    "179:Accessibility//Zoom//Turn focus following on or off",
    "25:Accessibility//Contrast//Increase contrast",
    "26:Accessibility//Contrast//Decrease contrast",
    "21:Accessibility//Invert colors",
    "59:Accessibility//Turn VoiceOver on or off",
    "162:Accessibility//Show Accessibility controls",
    "98:App Shortcuts//All Applications//Show Help Menu",
};

}  // namespace

constinit const std::span<const std::string_view> systemShortcutIDTable = rows;

}  // namespace orlamo
