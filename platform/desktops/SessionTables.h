#pragma once

#include <span>
#include <string_view>
#include <variant>

#include "platform/desktops/Desktop.h"

// The commands about the session that each desktop can give keys to, and how the desktop performs them.
namespace orlamo::desktops {

/// A call over the session bus.
struct BusMethod {
    std::string_view service;
    std::string_view path;
    std::string_view interface;
    std::string_view method;
    std::string_view arguments = "()";  // a tuple in GVariant's text format; %h is the address of the user's folder
    bool mayStartService = false;       // the desktop starts that service when it is called
};

/// What the window manager does when it is asked in the convention of all window managers.
enum class WindowRequest { showDesktop, minimize };

/// What KDE's service for global shortcuts performs when it is asked to.
struct KdeAction {
    std::string_view component;
    std::string_view action;
};

/// The desktop performs it only by running the command line that the user bound: that line is run, as it is.
struct BoundCommand {
    std::string_view service = {};  // must be on the session bus for the command to do anything; empty: no such need
};

using Performer = std::variant<BusMethod, WindowRequest, KdeAction, BoundCommand>;

enum class SessionRole { lock, logOut, further };

struct SessionRow {
    SessionRole role;
    std::string_view title;  // a key of the string table; rows of one title are ways to the same, and neighbours
    std::string_view place;  // a schema of GSettings; a component of KDE; "/xfwm4" or "/commands" of Xfce
    std::string_view name;   // a key; an action; a command line
    Performer performer;
};

/// In the order of preference; empty for a desktop whose commands are not known.
std::span<const SessionRow> sessionRows(Desktop desktop);

}  // namespace orlamo::desktops
