#include "platform/qt/QtApplication.h"

#include <QCoreApplication>
#include <utility>

#include "platform/Bundle.h"

namespace orlamo::qt {

namespace {

void giveFocus(NativeWindow window) {
    if (WindowEffects::isInstalled()) WindowEffects::shared().giveFocus(window);
}

void moveToFront(std::vector<NativeWindow>& windows, NativeWindow window) {
    std::erase(windows, window);
    windows.push_back(window);
}

}  // namespace

void QtApplication::activate(IgnoringOtherApps) {
    activationWaits_ = visible_.empty();
    if (!activationWaits_) return giveFocus(visible_.back());
    QMetaObject::invokeMethod(
        &context_, [this] { turnEnded(); }, Qt::QueuedConnection);
}

void QtApplication::turnEnded() {
    if (managed_.empty() || !std::exchange(activationWaits_, false)) return;
    giveFocus(managed_.back());
}

void QtApplication::setActivationPolicy(ActivationPolicy policy) {
    if (std::exchange(policy_, policy) == policy) return;
    for (const NativeWindow window : managed_) introduce(window);
}

void QtApplication::terminate() {
    if (delegate != nullptr) delegate->applicationWillTerminate();
    // To quit would ask every window whether it agrees.
    QCoreApplication::exit();
}

void QtApplication::windowCameToFront(NativeWindow window) {
    moveToFront(visible_, window);
    if (std::exchange(activationWaits_, false)) giveFocus(window);
}

void QtApplication::windowWentAway(NativeWindow window) {
    if (WindowEffects::isInstalled()) WindowEffects::shared().keepFocus(window);
    std::erase(visible_, window);
}

void QtApplication::managedWindowWillAppear(NativeWindow window) {
    introduce(window);
}

void QtApplication::managedWindowCameToFront(NativeWindow window) {
    moveToFront(managed_, window);
    if (std::exchange(activationWaits_, false)) giveFocus(window);
}

void QtApplication::managedWindowWentAway(NativeWindow window) {
    std::erase(managed_, window);
}

void QtApplication::introduce(NativeWindow window) {
    if (!WindowEffects::isInstalled()) return;
    const Listing listing = policy_ == ActivationPolicy::regular ? Listing::listed : Listing::unlisted;
    WindowEffects::shared().introduce(window, Bundle::shared().bundleIdentifier(), listing);
}

}  // namespace orlamo::qt
