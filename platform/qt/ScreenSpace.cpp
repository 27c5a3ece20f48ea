#include "platform/qt/ScreenSpace.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <cmath>

namespace orlamo::qt {

namespace {

QRect pixelsOf(const QScreen& screen) {
    return toQRect(toDevicePixels(screen.geometry(), screen));
}

}  // namespace

Rect fromQt(const QRect& rect, const QRect& primaryScreen) {
    const int primaryBottom = primaryScreen.y() + primaryScreen.height();
    return {static_cast<double>(rect.x() - primaryScreen.x()),
            static_cast<double>(primaryBottom - rect.y() - rect.height()), static_cast<double>(rect.width()),
            static_cast<double>(rect.height())};
}

Point fromQt(QPoint point, const QRect& primaryScreen) {
    const Rect pixel = fromQt(QRect(point, QSize(1, 1)), primaryScreen);
    return {pixel.x, pixel.y};
}

QRect toQt(const Rect& rect, const QRect& primaryScreen) {
    const double top = primaryScreen.y() + primaryScreen.height() - rect.maxY();
    return {static_cast<int>(std::lround(primaryScreen.x() + rect.x)), static_cast<int>(std::lround(top)),
            static_cast<int>(std::ceil(rect.width)), static_cast<int>(std::ceil(rect.height))};
}

QRect primaryScreenRect() {
    const QScreen* const screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? screen->geometry() : QRect();
}

QRect toQRect(const PixelRect& pixels) {
    return {pixels.x, pixels.y, pixels.width, pixels.height};
}

PixelRect toDevicePixels(const QRect& rect, const QScreen& screen) {
    const double scale = screen.devicePixelRatio();
    const QPoint origin = screen.geometry().topLeft();
    const QPoint corner = (QPointF(rect.topLeft() - origin) * scale + origin).toPoint();
    const QSize size = (QSizeF(rect.size()) * scale).toSize();
    return {corner.x(), corner.y(), size.width(), size.height()};
}

QRect fromDevicePixels(const PixelRect& pixels, const QScreen& screen) {
    const double scale = screen.devicePixelRatio();
    const QPointF origin = screen.geometry().topLeft();
    const QPointF corner = (QPointF(pixels.x, pixels.y) - origin) / scale + origin;
    return QRectF(corner, QSizeF(pixels.width, pixels.height) / scale).toAlignedRect();
}

PixelRect desktopPixels() {
    QRect all;
    for (const QScreen* const screen : QGuiApplication::screens()) all |= pixelsOf(*screen);
    return {all.x(), all.y(), all.width(), all.height()};
}

QScreen* screenWithMiddleOf(const QRect& rect) {
    QScreen* const found = QGuiApplication::screenAt(rect.center());
    return found != nullptr ? found : QGuiApplication::primaryScreen();
}

QScreen* screenOf(const PixelRect& pixels) {
    const QRect area = toQRect(pixels);
    QScreen* touched = nullptr;
    for (QScreen* const screen : QGuiApplication::screens()) {
        const QRect there = pixelsOf(*screen);
        if (there.contains(area.center())) return screen;
        if (touched == nullptr && there.intersects(area)) touched = screen;
    }
    return touched;
}

// Qt rounds the position: at a scale of 2 the screen's last pixel has one beyond its last point.
QPoint pointerPosition() {
    const QPoint position = QCursor::pos();
    for (const QPoint back : {QPoint(0, 0), QPoint(1, 0), QPoint(0, 1), QPoint(1, 1)}) {
        if (QGuiApplication::screenAt(position - back) != nullptr) return position - back;
    }
    return position;
}

}  // namespace orlamo::qt
