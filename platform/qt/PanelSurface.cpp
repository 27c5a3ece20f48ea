#include "platform/qt/PanelSurface.h"

#include <xcb/xcb.h>

#include <QCursor>
#include <QGuiApplication>
#include <QImage>
#include <QMetaObject>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QSurfaceFormat>

namespace orlamo::qt {

PanelSurface::PanelSurface(Listener& listener, Look look, Stacking stacking)
    : listener_(&listener), store_(this), pointerWhenShown_(QCursor::pos()) {
    setSurfaceType(QSurface::RasterSurface);
    Qt::WindowFlags flags = Qt::Window | Qt::FramelessWindowHint | Qt::BypassWindowManagerHint;
    if (stacking == Stacking::aboveAll) flags |= Qt::WindowStaysOnTopHint;
    setFlags(flags);
    setTitle(QCoreApplication::applicationName());
    QSurfaceFormat wanted = format();
    wanted.setAlphaBufferSize(look == Look::translucent ? 8 : 0);
    setFormat(wanted);
    watchScreens();
}

void PanelSurface::watchScreens() {
    const auto changed = [this] {
        if (listener_ != nullptr) listener_->screensChanged();
    };
    const auto watch = [this, changed](QScreen* screen) {
        connect(screen, &QScreen::geometryChanged, this, changed);
        connect(screen, &QScreen::logicalDotsPerInchChanged, this, changed);
    };
    for (QScreen* const screen : QGuiApplication::screens()) watch(screen);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, watch);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, changed);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, changed);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, changed);
}

void PanelSurface::retire() {
    listener_ = nullptr;
    hide();
    deleteLater();
}

void PanelSurface::show(const QRegion& part, const std::function<void(QPainter&, const QRegion&)>& paint) {
    if (store_.size() != size()) store_.resize(size());
    // The store reckons in whole points, and erases what it is told will be painted.
    const double scale = devicePixelRatio();
    QRegion points;
    QRegion pixels;
    for (const QRect& rect : part) {
        const QRectF exact(rect.x() / scale, rect.y() / scale, rect.width() / scale, rect.height() / scale);
        const QRect whole = exact.toAlignedRect().intersected(QRect(QPoint(), size()));
        if (whole.isEmpty()) continue;
        points += whole;
        const QRectF again(whole.x() * scale, whole.y() * scale, whole.width() * scale, whole.height() * scale);
        pixels += again.toAlignedRect().adjusted(-1, -1, 1, 1);
    }
    store_.beginPaint(points);
    QPaintDevice* const device = store_.paintDevice();
    if (device != nullptr && device->devType() == QInternal::Image) {
        auto& image = *static_cast<QImage*>(device);
        // The same pixels, addressed as such.
        QImage picture(image.bits(), image.width(), image.height(), image.bytesPerLine(), image.format());
        QPainter painter(&picture);
        paint(painter, pixels);
    }
    store_.endPaint();
    store_.flush(points);
}

void PanelSurface::showAgain() {
    if (store_.size() == size()) store_.flush(QRegion(QRect(QPoint(), size())));
}

void PanelSurface::callBack() {
    const auto call = [this] {
        if (listener_ != nullptr) listener_->calledBack();
    };
    QMetaObject::invokeMethod(this, call, Qt::QueuedConnection);
}

void PanelSurface::pointerEntered(const QEnterEvent& event) {
    // A window that comes up under a resting pointer is entered too; the pointer did nothing.
    if (event.globalPosition().toPoint() != pointerWhenShown_) listener_->pointerMoved(event.position());
}

// No key is for the toolkit to handle. It would tell assistive technologies of each, and lose the memory of those whose
// answer comes when the window is gone.
bool PanelSurface::nativeEvent(const QByteArray& kind, void* message, qintptr* result) {
    constexpr int synthetic = 0x80;
    if (kind != "xcb_generic_event_t") return QWindow::nativeEvent(kind, message, result);
    const int type = static_cast<const xcb_generic_event_t*>(message)->response_type & ~synthetic;
    return type == XCB_KEY_PRESS || type == XCB_KEY_RELEASE;
}

bool PanelSurface::event(QEvent* event) {
    if (listener_ == nullptr) return QWindow::event(event);
    switch (event->type()) {
        case QEvent::Expose:
            if (isExposed()) listener_->exposed();
            return true;
        case QEvent::Enter:
            pointerEntered(*static_cast<QEnterEvent*>(event));
            return true;
        case QEvent::Leave:
            listener_->pointerLeft();
            return true;
        case QEvent::MouseMove:
            listener_->pointerMoved(static_cast<QMouseEvent*>(event)->position());
            return true;
        case QEvent::MouseButtonPress: {
            const auto& press = *static_cast<QMouseEvent*>(event);
            if (press.button() == Qt::LeftButton) listener_->pointerPressed(press.position());
            return true;
        }
        default:
            return QWindow::event(event);
    }
}

}  // namespace orlamo::qt
