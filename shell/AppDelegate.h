#pragma once

#include "panel/CanvasWindowController.h"
#include "platform/UserDefaults.h"

namespace orlamo {

/// Owns the long-lived objects and runs the launch. There is one for the life of the process.
class AppDelegate {
public:
    AppDelegate();
    ~AppDelegate();
    AppDelegate(const AppDelegate&) = delete;
    AppDelegate& operator=(const AppDelegate&) = delete;

    /// The application's delegate; null before it is created.
    static AppDelegate* current();

    bool isOpen = false;  // whether the delegate itself last asked for the panel to be open
    UserDefaults& defaults;
    CanvasWindowController canvasWindowController;

    /// First-launch settings, the trigger, the click-elsewhere rule, the default modifier: in this order.
    void applicationDidFinishLaunching();

    /// Writes the default settings once per user account.
    void checkFirstLaunch();

    /// A press in another application: closes the panel when the pointer is on one of the screens.
    void hideShortcutWindowFromClick();
    void closeShortcutWindow();
};

}  // namespace orlamo
