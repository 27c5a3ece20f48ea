#include "platform/x11/Workspace.h"

#include <unistd.h>

#include <algorithm>

#include "platform/x11/ApplicationName.h"

namespace orlamo::x11 {

RunningApplication Workspace::ownApplication() const {
    return {::getpid(), ownIdentifier_, ownIdentifier_};
}

RunningApplication Workspace::describe(xcb_window_t window) {
    const xcb_window_t owner = windows_.transientOwner(window);
    if (windows_.isOwn(owner)) return ownApplication();
    RunningApplication application;
    application.processIdentifier = windows_.processIdentifier(owner);
    const std::string windowClass = windows_.windowClass(owner);
    std::string identifier = windows_.text(owner, "_GTK_APPLICATION_ID");
    if (identifier.empty()) identifier = windowClass;
    if (!identifier.empty()) application.bundleIdentifier = identifier;
    std::string title = windows_.text(owner, "_NET_WM_NAME");
    if (title.empty()) title = windows_.text(owner, "WM_NAME");
    application.localizedName = applicationName(windowClass, title);
    return application;
}

std::optional<RunningApplication> Workspace::frontmostApplication() {
    const FocusHolder holder = windows_.focusHolder();
    if (!connection_.isAlive()) return std::nullopt;
    if (memory_.isFrontmost(holder)) return ownApplication();
    const auto window = windows_.frontmostWindow();
    if (!window) return std::nullopt;
    RunningApplication application = describe(*window);
    if (application.processIdentifier == 0) return std::nullopt;
    return application;
}

std::vector<xcb_window_t> Workspace::recentWindows() {
    auto recent = windows_.stackedWindows();
    std::ranges::reverse(recent);
    const auto moveToFront = [&recent](xcb_window_t window) {
        const auto found = std::ranges::find(recent, window);
        if (found != recent.end()) std::rotate(recent.begin(), found, found + 1);
    };
    if (const auto window = windows_.frontmostWindow()) moveToFront(*window);
    if (const auto former = memory_.former()) moveToFront(windows_.applicationWindow(former->window));
    return recent;
}

std::vector<RunningApplication> Workspace::runningApplicationsWithBundleIdentifier(std::string_view identifier) {
    std::vector<RunningApplication> running;
    if (identifier.empty()) return running;
    for (const xcb_window_t window : recentWindows()) {
        RunningApplication application = describe(window);
        if (application.bundleIdentifier != identifier || application.processIdentifier == 0) continue;
        const bool known = std::ranges::any_of(running, [&application](const RunningApplication& other) {
            return other.processIdentifier == application.processIdentifier;
        });
        if (!known) running.push_back(std::move(application));
    }
    return running;
}

bool Workspace::activateWithOptions(const RunningApplication& application, unsigned) {
    const int process = application.processIdentifier;
    if (process == 0) return false;
    const auto focus = windows_.focus();
    if (focus && windows_.applicationProcess(*focus) == process) {
        memory_.settled();
        return true;
    }
    if (returnFocus(process)) return true;
    if (formerIsPutAway(process)) {
        memory_.settled();
        return false;
    }
    for (const xcb_window_t window : recentWindows()) {
        if (windows_.applicationProcess(window) != process) continue;
        windows_.activate(window);
        memory_.settled();
        return true;
    }
    return false;
}

bool Workspace::returnFocus(int processIdentifier) {
    const auto former = memory_.former();
    if (!former || former->processIdentifier != processIdentifier) return false;
    if (!windows_.setFocus(former->window)) return false;
    memory_.settled();
    // The window manager may have made another window the active one meanwhile.
    const auto active = windows_.activeWindow();
    const xcb_window_t wanted = windows_.applicationWindow(former->window);
    if (active && *active != wanted) windows_.activate(wanted);
    return true;
}

// The user may just have told the desktop to show itself, or another workspace; to bring the window back would undo
// that.
bool Workspace::formerIsPutAway(int processIdentifier) {
    const auto former = memory_.former();
    if (!former || former->processIdentifier != processIdentifier) return false;
    const xcb_window_t window = windows_.applicationWindow(former->window);
    const auto managed = windows_.stackedWindows();
    return std::ranges::find(managed, window) != managed.end() && !windows_.isViewable(window);
}

}  // namespace orlamo::x11
