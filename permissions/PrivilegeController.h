#pragma once

#include <memory>
#include <string_view>

#include "permissions/PermissionType.h"
#include "platform/RunLoop.h"
#include "platform/ViewController.h"

namespace orlamo {

/// Shows whether the permission is there, leads to where it is given, and closes its window once it is.
class PrivilegeController : public ViewController {
public:
    PrivilegeController() : ViewController("PrivilegeController") {}

    Outlet<CheckBox> accessibilityCheckBox;
    Outlet<CheckBox> screenRecordingCheckBox;
    Outlet<CheckBox> fullDiskAccessCheckBox;
    Outlet<Button> accessibilityAuthorizationButton;
    Outlet<Button> screenRecordingAuthorizationButton;
    std::unique_ptr<RunLoop::Handle> timer;  // refreshes every second while the window is shown
    PermissionType type = PermissionType::accessibility;

    std::vector<OutletBinding> outlets() override;
    std::vector<ActionBinding> actions() override;
    void viewWillAppear() override;
    void viewWillDisappear() override;

    void toggleAccessibility(CheckBox& sender);
    /// By the sender's tag: 1 accessibility, 2 screen recording, 3 full disk access.
    void getPermissions(Button& sender);
    void WatchingPermissionsConfiguration(Button& sender);
    void closeWindow(Button& sender);
    void checkPermission();

private:
    void showObtained(bool isTrusted);
    void stopAndClose();
};

}  // namespace orlamo
