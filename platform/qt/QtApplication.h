#pragma once

#include <QObject>
#include <vector>

#include "platform/Application.h"
#include "platform/WindowEffects.h"

namespace orlamo::qt {

/// Knows which of the program's windows are on screen, and gives the frontmost one the input focus when asked. The
/// panel's windows, which no window manager sees, come before those that one manages.
class QtApplication final : public Application {
public:
    /// Waits for a window that comes to the front within this turn of the event loop; then a managed one that is
    /// already there gets the focus.
    void activate(IgnoringOtherApps ignoring) override;
    void setActivationPolicy(ActivationPolicy policy) override;
    void terminate() override;

    // For the windows' hosts.
    /// The window is viewable and in front of the others.
    void windowCameToFront(NativeWindow window);
    /// It is about to leave the screen; the focus it has stays with the program until somebody takes or returns it.
    void windowWentAway(NativeWindow window);

    // For the hosts of windows that the window manager manages.
    void managedWindowWillAppear(NativeWindow window);
    /// By the program or by the user.
    void managedWindowCameToFront(NativeWindow window);
    void managedWindowWentAway(NativeWindow window);

private:
    void introduce(NativeWindow window);
    void turnEnded();

    QObject context_;                    // of what waits for the turn's end
    std::vector<NativeWindow> visible_;  // frontmost last
    std::vector<NativeWindow> managed_;  // frontmost last
    bool activationWaits_ = false;       // for the next window to come to the front
    ActivationPolicy policy_ = ActivationPolicy::accessory;
};

}  // namespace orlamo::qt
