#include "platform/qt/QtWindowSystem.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

#include "platform/Window.h"
#include "platform/qt/QtWindowHost.h"
#include "platform/qt/ScreenSpace.h"

namespace orlamo::qt {

namespace {

Screen describe(const QScreen& screen, const QRect& main) {
    return {fromQt(screen.geometry(), main), screen.name().toStdString()};
}

// Qt keeps a screen of no size while the display has none.
const QScreen* usableMainScreen() {
    const QScreen* const screen = QGuiApplication::primaryScreen();
    return screen != nullptr && !screen->geometry().isEmpty() ? screen : nullptr;
}

}  // namespace

std::unique_ptr<WindowHost> QtWindowSystem::createHost(Window& window) {
    if (window.contentViewController() != nullptr && controlsHost_) return controlsHost_(window, application_);
    return std::make_unique<QtWindowHost>(window, texts_, application_);
}

std::optional<Screen> QtWindowSystem::mainScreen() {
    const QScreen* const main = usableMainScreen();
    if (main == nullptr) return std::nullopt;
    return describe(*main, main->geometry());
}

std::vector<Screen> QtWindowSystem::screens() {
    std::vector<Screen> all;
    const QScreen* const main = usableMainScreen();
    if (main == nullptr) return all;
    for (const QScreen* screen : QGuiApplication::screens()) all.push_back(describe(*screen, main->geometry()));
    return all;
}

Point QtWindowSystem::mouseLocation() {
    const QScreen* const main = usableMainScreen();
    return main != nullptr ? fromQt(QCursor::pos(), main->geometry()) : Point{};
}

}  // namespace orlamo::qt
