#pragma once

#include <memory>

#include "permissions/PermissionType.h"
#include "permissions/PrivilegeWindowController.h"
#include "platform/Application.h"
#include "platform/RunLoop.h"

namespace orlamo {

/// Looks every 5 seconds whether the program may read other applications, until it may; then never again. The first
/// time that it may not, the permission window follows 2 seconds later.
class PrivilegeManager {
public:
    /// Created on first use, when the application's delegate must exist. Lives as long as the process.
    static PrivilegeManager& shared();
    /// Starts polling: the first look comes one interval later.
    explicit PrivilegeManager(ApplicationDelegate& delegate);

    PermissionType type = PermissionType::accessibility;
    ApplicationDelegate& appDelegate;
    std::unique_ptr<RunLoop::Handle> timer;  // null once polling has ended
    bool isPopupShown = false;               // the permission window has been scheduled
    double timeInterval = 5.0;               // seconds
    PrivilegeWindowController priviegeWindow;

    void checkPermission();
    void checkAccessibilityPermissions();
};

}  // namespace orlamo
