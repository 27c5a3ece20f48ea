#include "permissions/PrivilegeManager.h"

#include "platform/Accessibility.h"
#include "platform/Log.h"

namespace orlamo {

namespace {

constexpr double popupDelay = 2.0;  // seconds

}  // namespace

// Never destroyed: a delayed task may refer to it as long as the main loop runs.
PrivilegeManager& PrivilegeManager::shared() {
    static auto* const manager = new PrivilegeManager(*Application::shared().delegate);
    return *manager;
}

PrivilegeManager::PrivilegeManager(ApplicationDelegate& delegate) : appDelegate(delegate) {
    timer = RunLoop::shared().scheduleRepeatingTimer(timeInterval, [this] { checkPermission(); });
}

void PrivilegeManager::checkPermission() {
    switch (type) {
        case PermissionType::accessibility:
            return checkAccessibilityPermissions();
        case PermissionType::screenRecording:
        case PermissionType::fullDiskAccess:
            return;
    }
}

void PrivilegeManager::checkAccessibilityPermissions() {
    if (Accessibility::shared().AXIsProcessTrusted()) {
        logLine("已开启辅助功能");
        timer.reset();
        return;
    }
    logLine("没有开启辅助功能");
    if (isPopupShown) return;
    RunLoop::shared().asyncAfter(popupDelay, [this] { priviegeWindow.showWindow(); });
    isPopupShown = true;
}

}  // namespace orlamo
