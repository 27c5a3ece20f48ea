#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Color.h"
#include "platform/EventMonitors.h"

namespace orlamo {

class ApplicationDelegate;
class CanvasWindowController;

/// What the trigger remembers of one modifier. One per trigger modifier, whichever is configured.
struct ModifierLatch {
    bool pressed = false;      // it went down alone
    double lastReleaseMs = 0;  // the latest counted release, milliseconds since 1 January 1970
};

/// The trigger gesture, and small services over the settings and the bundle.
class Utility {
public:
    /// Created on first use, when the application's delegate must exist.
    static Utility& shared();
    explicit Utility(ApplicationDelegate& delegate);

    ApplicationDelegate& appDelegate;

    /// Installs the monitors that open, close and recolour the panel; they stay for the life of the process.
    void startMonitoring(CanvasWindowController& controller);

    /// One change of the held modifiers (EventFlags) for the trigger named "Command", "Shift" or "Control"; any other
    /// name does nothing. Two releases under 500 ms apart, each after a press of that modifier alone, toggle the panel.
    void handleModifierFlags(CanvasWindowController& controller, std::string_view name, std::uint64_t flags);

    /// Registers or removes the login helper; the outcome is only logged.
    void setLaunchAtLogin(bool enable);
    void saveSelectedColor(const Color& color);
    Color loadSelectedColor();
    /// The bundle's CFBundleShortVersionString, or empty text.
    std::string appVersion() const;

private:
    Event localModifiersChanged(CanvasWindowController& controller, const Event& event);
    void triggerModifiersChanged(CanvasWindowController& controller, const Event& event);
};

}  // namespace orlamo
