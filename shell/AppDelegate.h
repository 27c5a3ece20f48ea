#pragma once

#include <array>
#include <memory>
#include <string_view>

#include "panel/CanvasWindowController.h"
#include "platform/Application.h"
#include "platform/StatusBar.h"
#include "platform/Updater.h"
#include "platform/UserDefaults.h"
#include "preferences/Preferences.h"

namespace orlamo {

/// Owns the long-lived objects, runs the launch, keeps the status icon in step with the settings, and hides the panel
/// when the user presses elsewhere. There is one for the life of the process.
class AppDelegate : public ApplicationDelegate {
public:
    /// Creates and starts the updater.
    AppDelegate();

    std::unique_ptr<SPUStandardUpdaterController> updaterController;
    bool isOpen = false;  // whether the delegate itself last asked for the panel to be open
    Preferences preferences;
    std::unique_ptr<StatusItem> statusBarItem;  // null until the launch creates it
    Menu mainMenu;
    UserDefaults& defaults;
    CanvasWindowController canvasWindowController;

    void applicationWillFinishLaunching() override;
    /// The launch, step by step, in a fixed order.
    void applicationDidFinishLaunching() override;
    bool applicationShouldHandleReopen(bool hasVisibleWindows) override;
    void applicationWillTerminate() override {}
    bool applicationSupportsSecureRestorableState() override { return true; }

    /// Shows the preferences, in front of every other program.
    void openSettings();
    void updateApp();

    /// Whether the launch before lies far enough back to look for updates; then the stamp of this one.
    bool shouldCheckForUpdates();
    void recordUpdateCheckDate();

    /// Writes the default settings once per user account.
    void checkFirstLaunch();
    void setupStatusItem();
    void observeValueForKeyPath(std::string_view keyPath);

    /// A press in another application: closes the panel when the pointer is on one of the screens.
    void hideShortcutWindowFromClick();
    void closeShortcutWindow();

private:
    void setDefaultTrigger();
    void observeSettings();
    void updateStatusBarIcon();
    void copyStatusItemPosition();

    std::array<std::unique_ptr<UserDefaults::Observation>, 2> observations_;
};

}  // namespace orlamo
