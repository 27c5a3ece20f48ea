#pragma once

#include <vector>

#include "platform/Application.h"
#include "platform/WindowEffects.h"

namespace orlamo::qt {

/// Knows which of the program's windows are on screen, and gives the frontmost one the input focus when asked.
class QtApplication final : public Application {
public:
    void activate(IgnoringOtherApps ignoring) override;
    void setActivationPolicy(ActivationPolicy) override {}
    void terminate() override {}

    // For the windows' hosts.
    /// The window is viewable and in front of the others.
    void windowCameToFront(NativeWindow window);
    /// It is about to leave the screen; the focus it has stays with the program until somebody takes or returns it.
    void windowWentAway(NativeWindow window);

private:
    std::vector<NativeWindow> visible_;  // frontmost last
    bool activationWaits_ = false;       // for the next window to come to the front
};

}  // namespace orlamo::qt
