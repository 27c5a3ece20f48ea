#pragma once

#include <string>

struct sd_bus_message;

namespace orlamo::xdg {

/// What a desktop gives a launch or an activation, so that the window that follows is known to be the user's wish.
/// Empty where it gave none. Printable ASCII, at most 1024 bytes; anything else counts as none.
struct ActivationTicket {
    std::string startupId;        // "desktop-startup-id": of the startup notification, X11
    std::string activationToken;  // "activation-token"

    /// The environment's. To be called before the toolkit starts, which takes it for its own first window.
    static ActivationTicket ofThisLaunch();
};

/// Appends it to the message as platform data (a{sv}). Negative: the error.
int append(sd_bus_message* message, const ActivationTicket& ticket);
/// Reads platform data at the message's place; what else is in there is skipped. Negative: the error.
int read(sd_bus_message* message, ActivationTicket& ticket);

}  // namespace orlamo::xdg
