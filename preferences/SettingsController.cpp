#include "preferences/SettingsController.h"

#include <string>

#include "platform/Accessibility.h"
#include "platform/Application.h"
#include "platform/Bundle.h"
#include "platform/Log.h"
#include "preferences/InterfaceClasses.h"
#include "preferences/PopoverViewController.h"
#include "preferences/PublisherPages.h"
#include "shell/pages/WebPages.h"
#include "shell/settings/SettingsKeys.h"
#include "shell/utility/Utility.h"

namespace orlamo {

namespace {

constexpr std::string_view firstTrigger = "Command";

bool isOn(const CheckBox& box) {
    return box.state() == ControlState::on;
}

std::string_view sessionMenuTextKey(SessionMenuState state) {
    switch (state) {
        case SessionMenuState::present:
            break;
        case SessionMenuState::unknownDesktop:
            return "settings.session_menu.unknown_desktop";
        case SessionMenuState::notBound:
            return "settings.session_menu.not_bound";
        case SessionMenuState::noService:
            return "settings.session_menu.no_service";
    }
    return "settings.session_menu.description";
}

void show(const Outlet<CheckBox>& outlet, bool on) {
    if (const auto box = outlet.lock()) box->setState(on ? ControlState::on : ControlState::off);
}

}  // namespace

SettingsController::SettingsController() : ViewController("SettingsController") {}

SettingsController::~SettingsController() = default;

std::vector<OutletBinding> SettingsController::outlets() {
    return {{"showIconInDockCheckBox", &showIconInDockCheckBox},
            {"TipInstallView", &TipInstallView},
            {"hideStatusBarIconCheckBox", &hideStatusBarIconCheckBox},
            {"launchOnLoginCheckBox", &launchOnLoginCheckBox},
            {"isContainsAppleMenuBox", &isContainsAppleMenuBox},
            {"isContainsAppleMenuBoxDescription", &isContainsAppleMenuBoxDescription},
            {"isBlurStyleCheckBox", &isBlurStyleCheckBox},
            {"isAutomaticCheckUpdateBox", &isAutomaticCheckUpdateBox},
            {"modifierKeyPopUpBtn", &modifierKeyPopUpBtn},
            {"layoutPopUpBtn", &layoutPopUpBtn},
            {"ShortcutWindowColor", &ShortcutWindowColor},
            {"circleLabel", &circleLabel},
            {"CornerRadiusSlider", &CornerRadiusSlider}};
}

std::vector<ActionBinding> SettingsController::actions() {
    return {action("showApplicationDockIcons:", *this, &SettingsController::showApplicationDockIcons),
            action("startAtLogin:", *this, &SettingsController::startAtLogin),
            action("hideStatusBarIconClick:", *this, &SettingsController::hideStatusBarIconClick),
            action("UserBlurStyle:", *this, &SettingsController::UserBlurStyle),
            action("showAppleMenu:", *this, &SettingsController::showAppleMenu),
            action("automaticCheckUpdate:", *this, &SettingsController::automaticCheckUpdate),
            action("ModifierKeySelected:", *this, &SettingsController::ModifierKeySelected),
            action("ShortcutWindowBgChanged:", *this, &SettingsController::ShortcutWindowBgChanged),
            action("sliderCornerRadiusValueChanged:", *this, &SettingsController::sliderCornerRadiusValueChanged),
            action("HelpButtonClick:", *this, &SettingsController::HelpButtonClick),
            action("AuthorityAction:", *this, &SettingsController::AuthorityAction)};
}

std::vector<InterfaceClass> SettingsController::classes() {
    return interfaceClasses();
}

void SettingsController::viewDidLoad() {
    ViewController::viewDidLoad();
    show(hideStatusBarIconCheckBox, defaults.boolForKey(SettingsKeys::isHiddenStatusBar));
    show(launchOnLoginCheckBox, defaults.boolForKey(SettingsKeys::isLaunchAtLoginEnabled));
    show(isBlurStyleCheckBox, defaults.boolForKey(SettingsKeys::isBlurStyle));
    show(isContainsAppleMenuBox, defaults.boolForKey(SettingsKeys::isContainsAppleMenu));
    show(isAutomaticCheckUpdateBox, defaults.boolForKey(SettingsKeys::isEnableAutomaticCheckUpdate));
    if (const auto popUp = modifierKeyPopUpBtn.lock()) {
        const auto stored = defaults.stringForKey(SettingsKeys::doubleModifierKey);
        popUp->selectItemWithTitle(stored ? *stored : firstTrigger);
    }
}

void SettingsController::viewWillAppear() {
    ViewController::viewWillAppear();
    logLine("SettingsController 即将加入窗口时");
    showSessionMenu();
}

void SettingsController::showSessionMenu() {
    const auto box = isContainsAppleMenuBox.lock();
    if (box == nullptr) return;
    const SessionMenuState state = Accessibility::shared().sessionMenuState();
    box->setEnabled(state == SessionMenuState::present);
    if (const auto text = isContainsAppleMenuBoxDescription.lock()) {
        text->setStringValue(NSLocalizedString(sessionMenuTextKey(state)));
    }
}

void SettingsController::showApplicationDockIcons(CheckBox& sender) {
    const bool on = isOn(sender);
    defaults.setObject(SettingsKeys::dockIcon, on);
    Application& application = Application::shared();
    application.setActivationPolicy(on ? Application::ActivationPolicy::regular
                                       : Application::ActivationPolicy::accessory);
    // Keeps this window in front.
    if (!on) application.activate(Application::IgnoringOtherApps::yes);
}

void SettingsController::startAtLogin(CheckBox& sender) {
    const bool on = isOn(sender);
    Utility::shared().setLaunchAtLogin(on);
    defaults.setObject(SettingsKeys::isLaunchAtLoginEnabled, on);
}

void SettingsController::hideStatusBarIconClick(CheckBox& sender) {
    defaults.setObject(SettingsKeys::isHiddenStatusBar, isOn(sender));
}

void SettingsController::UserBlurStyle(CheckBox& sender) {
    const bool on = isOn(sender);
    if (on) logLine("使用模糊效果");
    defaults.setObject(SettingsKeys::isBlurStyle, on);
    if (!on) logLine("不使用模糊效果");
}

void SettingsController::showAppleMenu(CheckBox& sender) {
    defaults.setObject(SettingsKeys::isContainsAppleMenu, isOn(sender));
}

void SettingsController::automaticCheckUpdate(CheckBox& sender) {
    defaults.setObject(SettingsKeys::isEnableAutomaticCheckUpdate, isOn(sender));
}

void SettingsController::ModifierKeySelected(PopUpButton& sender) {
    const auto title = sender.titleOfSelectedItem();
    if (!title) return;
    logLine(*title);
    defaults.setObject(SettingsKeys::doubleModifierKey, *title);
}

void SettingsController::ShortcutWindowBgChanged(ColorWell& sender) {
    logLine("改变颜色.." + describe(sender.doubleValue()));
    Utility::shared().saveSelectedColor(sender.color());
}

void SettingsController::sliderCornerRadiusValueChanged(Slider& sender) {
    const std::int64_t radius = sender.integerValue();
    logLine("滑动的圆角半径： " + std::to_string(radius));
    defaults.setObject(SettingsKeys::CornerRadius, radius);
    if (const auto label = circleLabel.lock()) label->setStringValue(std::to_string(radius));
}

void SettingsController::HelpButtonClick(Control& sender) {
    popover_.reset();  // before what it shows
    help_ = std::make_unique<PopoverViewController>();
    popover_ = InterfaceFiles::shared().createPopover();
    popover_->behavior = Popover::Behavior::transient;
    help_->popover = popover_;
    popover_->setContentViewController(*help_);
    popover_->showRelativeToRect(sender.bounds(), sender, RectEdge::maxY);
}

void SettingsController::AuthorityAction(Control&) {
    openInBrowser(WebPages::address(WebPages::permissionHelp));
}

}  // namespace orlamo
