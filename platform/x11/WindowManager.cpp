#include "platform/x11/WindowManager.h"

namespace orlamo::x11 {

std::string WindowManager::name() {
    if (!windows_.hasWindowManager()) return {};
    const auto check = windows_.numbers(connection_.root(), "_NET_SUPPORTING_WM_CHECK");
    return check.empty() ? "" : windows_.text(check.front(), "_NET_WM_NAME");
}

std::string WindowManager::configuration() {
    return windows_.text(connection_.root(), "_OB_CONFIG_FILE");
}

}  // namespace orlamo::x11
