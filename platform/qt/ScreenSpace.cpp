#include "platform/qt/ScreenSpace.h"

#include <QScreen>
#include <cmath>

namespace orlamo::qt {

Rect fromQt(const QRect& rect, const QRect& mainScreen) {
    const int mainBottom = mainScreen.y() + mainScreen.height();
    return {static_cast<double>(rect.x() - mainScreen.x()), static_cast<double>(mainBottom - rect.y() - rect.height()),
            static_cast<double>(rect.width()), static_cast<double>(rect.height())};
}

Point fromQt(QPoint point, const QRect& mainScreen) {
    const Rect pixel = fromQt(QRect(point, QSize(1, 1)), mainScreen);
    return {pixel.x, pixel.y};
}

QRect toQt(const Rect& rect, const QRect& mainScreen) {
    const double top = mainScreen.y() + mainScreen.height() - rect.maxY();
    return {static_cast<int>(std::lround(mainScreen.x() + rect.x)), static_cast<int>(std::lround(top)),
            static_cast<int>(std::ceil(rect.width)), static_cast<int>(std::ceil(rect.height))};
}

PixelRect toDevicePixels(const QRect& rect, const QScreen& screen) {
    const double scale = screen.devicePixelRatio();
    // Screens keep their origin in device pixels; what lies on them is scaled.
    const QPoint origin = screen.geometry().topLeft();
    const QPoint corner = (QPointF(rect.topLeft() - origin) * scale + origin).toPoint();
    const QSize size = (QSizeF(rect.size()) * scale).toSize();
    return {corner.x(), corner.y(), size.width(), size.height()};
}

}  // namespace orlamo::qt
