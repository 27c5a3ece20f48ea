#include "platform/qt/controls/QtControlsWindowHost.h"

#include <cmath>

#include "platform/ViewController.h"
#include "platform/qt/QtApplication.h"
#include "platform/qt/ScreenSpace.h"
#include "platform/qt/Synchronization.h"
#include "platform/qt/controls/QtInterfaceView.h"

namespace orlamo::qt {

namespace {

Qt::WindowFlags flags(const Window& window) {
    const auto has = [&window](unsigned bit) { return (window.styleMask() & bit) != 0; };
    Qt::WindowFlags flags = Qt::Window;
    if (has(Window::titled)) {
        flags |= Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint;
    } else {
        flags |= Qt::FramelessWindowHint;
    }
    if (has(Window::closable)) flags |= Qt::WindowCloseButtonHint;
    if (has(Window::miniaturizable)) flags |= Qt::WindowMinimizeButtonHint;
    if (has(Window::resizable)) flags |= Qt::WindowMaximizeButtonHint;
    if (!window.hasShadow) flags |= Qt::NoDropShadowWindowHint;
    if (window.level > Window::normalLevel) flags |= Qt::WindowStaysOnTopHint;
    return flags;
}

bool isClear(const Window& window) {
    return !window.isOpaque && window.backgroundColor.alpha < 1;
}

bool isComposited() {
    return WindowEffects::isInstalled() && WindowEffects::shared().isComposited();
}

}  // namespace

void QtControlsWindowHost::frameChanged(const Rect&) {
    if (shell_ != nullptr) place();
}

void QtControlsWindowHost::orderFront() {
    if (shell_ == nullptr) create();
    if (!shell_->isVisible()) {
        // The window manager forgets what it knew of a window that went away.
        application_.managedWindowWillAppear(shell_->winId());
        shell_->show();
    } else if (shell_->isMinimized()) {
        shell_->setWindowState(shell_->windowState() & ~Qt::WindowMinimized);
    }
    shell_->raise();
    synchronize();
    application_.managedWindowCameToFront(shell_->winId());
}

void QtControlsWindowHost::create() {
    QWidget& content = native(window_.contentViewController()->view()).widget();
    const bool translucent = isClear(window_) && isComposited();
    shell_.reset(new ControlsWindow(*this, content, flags(window_),
                                    translucent ? ControlsWindow::Backdrop::clear : ControlsWindow::Backdrop::opaque));
    shell_->setWindowTitle(QString::fromStdString(window_.title));
    // Tells window managers' rules, and whoever looks for it, one window of the program from another.
    shell_->setWindowRole(QString::fromStdString(window_.contentViewController()->interfaceName()));
    // A window without a title bar comes by itself, to ask: the key that the user was about to type is no answer.
    if ((window_.styleMask() & Window::titled) == 0) shell_->setFocus();
    place();
    shell_->winId();  // makes the native window, for what must be known of it before it appears
    synchronize();
    if (translucent && cornerRadius() > 0) shell_->roundCorners(cornerRadius());
    cutCorners();
}

void QtControlsWindowHost::place() {
    const QRect frame = toQt(window_.frame(), primaryScreenRect());
    isPlacing_ = true;
    if ((window_.styleMask() & Window::resizable) == 0) {
        shell_->setFixedSize(frame.size());
    } else {
        shell_->setMinimumSize(static_cast<int>(window_.minSize.width), static_cast<int>(window_.minSize.height));
    }
    shell_->setGeometry(frame);
    isPlacing_ = false;
    cutCorners();
}

double QtControlsWindowHost::cornerRadius() const {
    const InterfaceView& view = window_.contentViewController()->view();
    return view.wantsLayer && view.layer.masksToBounds ? view.layer.cornerRadius : 0;
}

// Where nothing is blended, the window ends at its corners.
void QtControlsWindowHost::cutCorners() {
    if (!isClear(window_) || isComposited() || !WindowEffects::isInstalled() || cornerRadius() <= 0) return;
    if (!shell_->testAttribute(Qt::WA_WState_Created)) return;
    const double scale = shell_->devicePixelRatioF();
    const QSize pixels = (QSizeF(shell_->size()) * scale).toSize();
    WindowEffects::shared().shapeRounded(shell_->winId(), pixels.width(), pixels.height(),
                                         static_cast<int>(std::lround(cornerRadius() * scale)));
}

void QtControlsWindowHost::makeKey() {
    if (shell_ == nullptr) return;
    if (WindowEffects::isInstalled()) {
        WindowEffects::shared().giveFocus(shell_->winId());
    } else {
        shell_->activateWindow();
    }
}

void QtControlsWindowHost::orderOut() {
    if (shell_ == nullptr) return;
    application_.managedWindowWentAway(shell_->winId());
    shell_.reset();
}

void QtControlsWindowHost::geometryChanged() {
    if (isPlacing_ || shell_ == nullptr || !shell_->isVisible()) return;
    window_.frameChangedByUser(fromQt(shell_->geometry(), primaryScreenRect()));
    cutCorners();
}

void QtControlsWindowHost::becameActive() {
    application_.managedWindowCameToFront(shell_->winId());
}

}  // namespace orlamo::qt
