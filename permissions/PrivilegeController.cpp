#include "permissions/PrivilegeController.h"

#include "platform/Accessibility.h"
#include "platform/Bundle.h"
#include "platform/EventPoster.h"
#include "platform/Log.h"
#include "platform/Window.h"
#include "platform/WindowSystem.h"
#include "platform/Workspace.h"
#include "shell/pages/WebPages.h"

namespace orlamo {

namespace {

constexpr double refreshInterval = 1.0;  // seconds
constexpr std::string_view accessibilitySettings =
    "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility";
constexpr std::string_view screenRecordingSettings =
    "x-apple.systempreferences:com.apple.preference.security?Privacy_ScreenCapture";

void openAccessibilitySettings() {
    Workspace::shared().openURL(accessibilitySettings);
    const Point pointer = WindowSystem::shared().mouseLocation();
    const PointerEvent press = CGEventCreateMouseEvent(PointerEvent::Type::leftMouseDown, pointer);
    EventPoster::shared().CGEventPost(EventTapLocation::hid, press);
}

}  // namespace

std::vector<OutletBinding> PrivilegeController::outlets() {
    return {{"accessibilityCheckBox", &accessibilityCheckBox},
            {"screenRecordingCheckBox", &screenRecordingCheckBox},
            {"fullDiskAccessCheckBox", &fullDiskAccessCheckBox},
            {"accessibilityAuthorizationButton", &accessibilityAuthorizationButton},
            {"screenRecordingAuthorizationButton", &screenRecordingAuthorizationButton}};
}

std::vector<ActionBinding> PrivilegeController::actions() {
    return {action("toggleAccessibility:", *this, &PrivilegeController::toggleAccessibility),
            action("getPermissions:", *this, &PrivilegeController::getPermissions),
            action("WatchingPermissionsConfiguration:", *this, &PrivilegeController::WatchingPermissionsConfiguration),
            action("closeWindow:", *this, &PrivilegeController::closeWindow)};
}

void PrivilegeController::viewWillAppear() {
    ViewController::viewWillAppear();
    timer = RunLoop::shared().scheduleRepeatingTimer(refreshInterval, [this] { checkPermission(); });
}

// However the window goes: nobody looks at what would be refreshed.
void PrivilegeController::viewWillDisappear() {
    timer.reset();
}

void PrivilegeController::toggleAccessibility(CheckBox& sender) {
    if (sender.state() == ControlState::on) openAccessibilitySettings();
}

void PrivilegeController::getPermissions(Button& sender) {
    sender.setState(ControlState::on);
    switch (sender.tag()) {
        case 1:
            logLine("授权----辅助功能");
            openAccessibilitySettings();
            return;
        case 2:
            logLine("授权----屏幕录制");
            if (!Accessibility::shared().AXIsProcessTrustedWithOptions(kAXTrustedCheckOptionPrompt::yes)) {
                Workspace::shared().openURL(screenRecordingSettings);
            }
            return;
        case 3:
            logLine("授权----全盘访问");
            return;
        default:
            return;
    }
}

void PrivilegeController::WatchingPermissionsConfiguration(Button&) {
    WebPages::open(WebPages::address(WebPages::permissionHelp));
}

void PrivilegeController::closeWindow(Button&) {
    stopAndClose();
}

void PrivilegeController::checkPermission() {
    if (type != PermissionType::accessibility) return;
    logLine("辅助功能");
    const bool isTrusted = Accessibility::shared().AXIsProcessTrusted();
    showObtained(isTrusted);
    if (isTrusted) stopAndClose();
}

void PrivilegeController::showObtained(bool isTrusted) {
    if (const auto box = accessibilityCheckBox.lock()) {
        box->setState(isTrusted ? ControlState::on : ControlState::off);
        box->setTitle(
            NSLocalizedString(isTrusted ? "accessibility.permission.gained" : "accessibility.permission.not.obtained"));
    }
    if (const auto button = accessibilityAuthorizationButton.lock()) button->setHidden(isTrusted);
}

void PrivilegeController::stopAndClose() {
    timer.reset();
    if (Window* const shown = view().window) shown->close();
}

}  // namespace orlamo
