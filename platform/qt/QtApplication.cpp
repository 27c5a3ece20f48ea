#include "platform/qt/QtApplication.h"

#include <utility>

namespace orlamo::qt {

namespace {

void giveFocus(NativeWindow window) {
    if (WindowEffects::isInstalled()) WindowEffects::shared().giveFocus(window);
}

}  // namespace

void QtApplication::activate(IgnoringOtherApps) {
    activationWaits_ = visible_.empty();
    if (!activationWaits_) giveFocus(visible_.back());
}

void QtApplication::windowCameToFront(NativeWindow window) {
    std::erase(visible_, window);
    visible_.push_back(window);
    if (std::exchange(activationWaits_, false)) giveFocus(window);
}

void QtApplication::windowWentAway(NativeWindow window) {
    if (WindowEffects::isInstalled()) WindowEffects::shared().keepFocus(window);
    std::erase(visible_, window);
}

}  // namespace orlamo::qt
