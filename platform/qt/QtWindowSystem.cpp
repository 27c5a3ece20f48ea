#include "platform/qt/QtWindowSystem.h"

#include <QGuiApplication>
#include <QScreen>
#include <optional>

#include "platform/Window.h"
#include "platform/qt/QtWindowHost.h"
#include "platform/qt/ScreenSpace.h"

namespace orlamo::qt {

namespace {

// Qt keeps a screen of no size while the display has none.
bool isUsable(const QScreen* screen) {
    return screen != nullptr && !screen->geometry().isEmpty();
}

Screen describe(const QScreen& screen) {
    return {fromQt(screen.geometry(), primaryScreenRect()), screen.name().toStdString()};
}

// The one where the user works: where the window lies that the keys go to. Where no window has them, the desktop's
// primary screen.
const QScreen* screenInUse() {
    const auto focused =
        WindowEffects::isInstalled() ? WindowEffects::shared().focusedArea() : std::optional<PixelRect>();
    const QScreen* const screen = focused ? screenOf(*focused) : nullptr;
    return isUsable(screen) ? screen : QGuiApplication::primaryScreen();
}

}  // namespace

std::unique_ptr<WindowHost> QtWindowSystem::createHost(Window& window) {
    if (window.contentViewController() != nullptr && controlsHost_) return controlsHost_(window, application_);
    return std::make_unique<QtWindowHost>(window, texts_, application_);
}

std::optional<Screen> QtWindowSystem::mainScreen() {
    const QScreen* const screen = screenInUse();
    return isUsable(screen) ? std::optional(describe(*screen)) : std::nullopt;
}

std::vector<Screen> QtWindowSystem::screens() {
    std::vector<Screen> all;
    for (const QScreen* const screen : QGuiApplication::screens()) {
        if (isUsable(screen)) all.push_back(describe(*screen));
    }
    return all;
}

Point QtWindowSystem::mouseLocation() {
    return fromQt(pointerPosition(), primaryScreenRect());
}

}  // namespace orlamo::qt
