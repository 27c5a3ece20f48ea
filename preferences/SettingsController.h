#pragma once

#include <memory>

#include "platform/RunLoop.h"
#include "platform/UserDefaults.h"
#include "platform/ViewController.h"

namespace orlamo {

class PopoverViewController;

/// The settings page. Shows the stored settings of the moment when it loads, and stores every change at once.
class SettingsController : public ViewController {
public:
    SettingsController();
    ~SettingsController() override;

    Outlet<CheckBox> showIconInDockCheckBox;
    Outlet<Control> TipInstallView;
    Outlet<CheckBox> hideStatusBarIconCheckBox;
    Outlet<CheckBox> launchOnLoginCheckBox;
    Outlet<CheckBox> isContainsAppleMenuBox;
    /// Below it: what it does, or why it is disabled.
    Outlet<TextField> isContainsAppleMenuBoxDescription;
    Outlet<CheckBox> isBlurStyleCheckBox;
    Outlet<CheckBox> isAutomaticCheckUpdateBox;
    Outlet<PopUpButton> modifierKeyPopUpBtn;
    Outlet<PopUpButton> layoutPopUpBtn;
    Outlet<ColorWell> ShortcutWindowColor;
    Outlet<TextField> circleLabel;
    Outlet<Slider> CornerRadiusSlider;
    UserDefaults& defaults = UserDefaults::standardUserDefaults();
    std::unique_ptr<RunLoop::Handle> timer;
    bool pluginInstallationTriggered = false;

    std::vector<OutletBinding> outlets() override;
    std::vector<ActionBinding> actions() override;
    std::vector<InterfaceClass> classes() override;
    void viewDidLoad() override;
    void viewWillAppear() override;

    // Each stores the sender's state, selection or value under its key. Only the state `on` counts as on.
    /// On: the program's windows appear in the taskbar and the switcher.
    void showApplicationDockIcons(CheckBox& sender);
    void startAtLogin(CheckBox& sender);
    /// Who observes the key hides or shows the icon.
    void hideStatusBarIconClick(CheckBox& sender);
    void UserBlurStyle(CheckBox& sender);
    void showAppleMenu(CheckBox& sender);
    void automaticCheckUpdate(CheckBox& sender);
    /// Counts from the next modifier event on.
    void ModifierKeySelected(PopUpButton& sender);
    void ShortcutWindowBgChanged(ColorWell& sender);
    /// Shows the number too.
    void sliderCornerRadiusValueChanged(Slider& sender);
    /// Shows the help beside the sender.
    void HelpButtonClick(Control& sender);
    /// Opens the page about granting the permission.
    void AuthorityAction(Control& sender);

private:
    /// The box follows what the desktop has now.
    void showSessionMenu();

    std::unique_ptr<PopoverViewController> help_;
    std::shared_ptr<Popover> popover_;  // shows it
};

}  // namespace orlamo
