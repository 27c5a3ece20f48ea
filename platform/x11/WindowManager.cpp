#include "platform/x11/WindowManager.h"

#include <algorithm>

namespace orlamo::x11 {

namespace {

constexpr std::string_view showingDesktop = "_NET_SHOWING_DESKTOP";

}  // namespace

std::string WindowManager::name() {
    if (!windows_.hasWindowManager()) return {};
    const auto check = windows_.numbers(connection_.root(), "_NET_SUPPORTING_WM_CHECK");
    return check.empty() ? "" : windows_.text(check.front(), "_NET_WM_NAME");
}

std::string WindowManager::configuration() {
    return windows_.text(connection_.root(), "_OB_CONFIG_FILE");
}

bool WindowManager::canShowDesktop() {
    if (!windows_.hasWindowManager()) return false;
    const auto supported = windows_.numbers(connection_.root(), "_NET_SUPPORTED");
    return std::ranges::find(supported, connection_.atom(showingDesktop)) != supported.end();
}

bool WindowManager::toggleShowingDesktop() {
    if (!canShowDesktop()) return false;
    const auto now = windows_.numbers(connection_.root(), showingDesktop);
    const bool isShowing = !now.empty() && now.front() != 0;
    windows_.sendToManager(connection_.root(), showingDesktop, {isShowing ? 0U : 1U});
    return true;
}

bool WindowManager::minimizeWindowInFront(const FocusMemory& memory) {
    constexpr std::uint32_t iconicState = 3;
    const auto former = memory.former();
    const auto window = former ? std::optional(windows_.applicationWindow(former->window)) : windows_.activeWindow();
    if (!window) return false;
    windows_.sendToManager(*window, "WM_CHANGE_STATE", {iconicState});
    return true;
}

}  // namespace orlamo::x11
