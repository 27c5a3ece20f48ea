#include "platform/qt/Replay.h"

#include <QPainter>
#include <QPainterPath>
#include <QRegion>
#include <cmath>

#include "platform/qt/Damage.h"
#include "platform/qt/DisplayList.h"
#include "platform/qt/TextCache.h"

namespace orlamo::qt {

namespace {

QColor toQColor(const Color& color) {
    return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
                            static_cast<float>(color.blue), static_cast<float>(color.alpha));
}

// From the start angle, in the direction asked for, at most once around.
double sweep(const Path::Element& arc) {
    const double turn = arc.endAngle - arc.startAngle;
    if (arc.clockwise) return turn > 0 ? turn - 360 * std::ceil(turn / 360) : std::fmax(turn, -360);
    return turn < 0 ? turn + 360 * std::ceil(-turn / 360) : std::fmin(turn, 360);
}

// `origin` is where the path's coordinates start, `height` the window's; y turns downward.
QPainterPath toPainterPath(const Path& path, Point origin, double height) {
    QPainterPath result;
    result.setFillRule(Qt::WindingFill);
    const auto place = [&](Point p) { return QPointF(origin.x + p.x, height - origin.y - p.y); };
    for (const Path::Element& element : path.elements) {
        switch (element.verb) {
            case Path::Verb::move:
                result.moveTo(place(element.point));
                break;
            case Path::Verb::line:
                result.lineTo(place(element.point));
                break;
            case Path::Verb::arc: {
                const QPointF centre = place(element.point);
                const double radius = element.radius;
                const QRectF circle(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius);
                if (&element == &path.elements.front()) result.arcMoveTo(circle, element.startAngle);
                result.arcTo(circle, element.startAngle, sweep(element));
                break;
            }
            case Path::Verb::roundedRect: {
                const Rect& rect = element.rect;
                const QPointF corner = place({rect.x, rect.maxY()});
                result.addRoundedRect(QRectF(corner.x(), corner.y(), rect.width, rect.height), element.radius,
                                      element.radius);
                break;
            }
            case Path::Verb::close:
                result.closeSubpath();
                break;
        }
    }
    return result;
}

double snapped(double points, double scale) {
    return std::round(points * scale) / scale;
}

// Moves the outline's outer edges to the nearest device pixels: bars stay sharp at scales such as 1.25. Points are
// rounded to a fraction of a pixel, since an edge that is level but for the last digit costs the rasterizer a hundred
// times what a level one does.
void snapToPixels(QPainterPath& path, double scale) {
    constexpr double fraction = 1024;
    const QRectF box = path.controlPointRect();
    const QRectF target(QPointF(snapped(box.left(), scale), snapped(box.top(), scale)),
                        QPointF(snapped(box.right(), scale), snapped(box.bottom(), scale)));
    const bool stretches = box.width() > 0 && box.height() > 0 && target.width() > 0 && target.height() > 0;
    const double stretchX = stretches ? target.width() / box.width() : 1;
    const double stretchY = stretches ? target.height() / box.height() : 1;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        const double x = stretches ? target.left() + (element.x - box.left()) * stretchX : element.x;
        const double y = stretches ? target.top() + (element.y - box.top()) * stretchY : element.y;
        path.setElementPositionAt(i, snapped(x, scale * fraction), snapped(y, scale * fraction));
    }
}

// Where a text's pen stands, in device pixels of the window.
QPoint penOf(const DisplayList& list, const DisplayList::Item& item, double height, double scale, TextCache& texts) {
    const Point origin = list.origin(item);
    const double baseline = height - origin.y - item.origin.y - texts.lineBox(item.pointSize).descent;
    return {static_cast<int>(std::round((origin.x + item.origin.x) * scale)),
            static_cast<int>(std::round(baseline * scale))};
}

const TextPicture& pictureOf(std::string_view text, const DisplayList::Item& item, QPoint pen, QRect pixels,
                             double scale, TextCache& texts) {
    const TextPictures::Key key{std::string(text), item.pointSize, item.color, scale};
    if (const TextPicture* const known = texts.pictures().find(key)) return *known;
    QImage picture(pixels.size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(toQColor(item.color));
    painter.translate(pen - pixels.topLeft());
    painter.scale(scale, scale);
    const SetText& set = texts.setText(text, item.pointSize);
    for (const QGlyphRun& run : set.runs) painter.drawGlyphRun(QPointF(0, -set.baseline), run);
    painter.end();
    return texts.pictures().insert(key, picture, pixels.topLeft() - pen);
}

}  // namespace

void replay(const DisplayList& list, QPainter& painter, double height, double scale, const QRegion& part,
            TextCache& texts) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    // Outlines are in points, pictures of texts in device pixels.
    const QTransform points = painter.worldTransform();
    const QTransform pixels = QTransform::fromTranslate(points.dx(), points.dy());
    painter.setWorldTransform(pixels);
    for (const DisplayList::Item& item : list.items()) {
        const QRect reach = pixelsOf(list, item, height, scale, texts);
        if (!part.intersects(reach)) continue;
        if (!item.path.elements.empty()) {
            QPainterPath path = toPainterPath(item.path, list.origin(item), height);
            snapToPixels(path, scale);
            painter.setWorldTransform(points);
            painter.fillPath(path, toQColor(item.color));
            painter.setWorldTransform(pixels);
            continue;
        }
        const QPoint pen = penOf(list, item, height, scale, texts);
        const TextPicture& picture = pictureOf(list.text(item), item, pen, reach, scale, texts);
        if (!picture.image.isNull()) painter.drawImage(pen + picture.offset, picture.image);
    }
    painter.setWorldTransform(points);
}

}  // namespace orlamo::qt
