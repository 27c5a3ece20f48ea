#include "platform/qt/controls/ViewPainter.h"

#include <QColor>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRegion>
#include <algorithm>
#include <cmath>

#include "platform/View.h"
#include "platform/qt/Replay.h"
#include "platform/qt/TextCache.h"

namespace orlamo::qt {

QColor toQColor(const Color& color) {
    const auto component = [](double value) { return static_cast<float>(std::clamp(value, 0.0, 1.0)); };
    return QColor::fromRgbF(component(color.red), component(color.green), component(color.blue),
                            component(color.alpha));
}

Point toViewPoint(QPointF position, double height, double devicePixelRatio) {
    return {position.x(), height - position.y() - 1 / devicePixelRatio};
}

void paintLayer(QPainter& painter, const Layer& layer, Size size) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(painter.opacity() * std::clamp(static_cast<double>(layer.opacity), 0.0, 1.0));
    QPainterPath outline;
    const double radius = std::min({layer.cornerRadius, size.width / 2, size.height / 2});
    outline.addRoundedRect(QRectF(0, 0, size.width, size.height), radius, radius);
    if (layer.backgroundColor.alpha > 0) painter.fillPath(outline, toQColor(layer.backgroundColor));
    const auto* const gradient = dynamic_cast<const GradientLayer*>(&layer);
    if (gradient != nullptr && !gradient->colors.empty()) {
        const auto place = [&](Point unit) { return QPointF(unit.x * size.width, (1 - unit.y) * size.height); };
        QLinearGradient fill(place(gradient->startPoint), place(gradient->endPoint));
        const std::size_t count = gradient->colors.size();
        for (std::size_t i = 0; i < count; ++i) {
            const double even = count > 1 ? static_cast<double>(i) / static_cast<double>(count - 1) : 0;
            const double at = i < gradient->locations.size() ? gradient->locations[i] : even;
            fill.setColorAt(std::clamp(at, 0.0, 1.0), toQColor(gradient->colors[i]));
        }
        painter.fillPath(outline, fill);
    }
    painter.restore();
}

ViewPainter::ViewPainter() = default;

ViewPainter::~ViewPainter() = default;

void ViewPainter::paint(QPainter& painter, View& view) {
    const Size size = view.bounds().size();
    list_.clear();
    view.display(list_);
    list_.finish();
    const bool hasLayer = view.wantsLayer && view.layer != nullptr;
    if (hasLayer) paintLayer(painter, *view.layer, size);
    if (list_.items().empty()) return;

    // In device pixels, where texts and edges can be placed exactly.
    const double scale = painter.deviceTransform().m11();
    QImage picture(static_cast<int>(std::ceil(size.width * scale)), static_cast<int>(std::ceil(size.height * scale)),
                   QImage::Format_ARGB32_Premultiplied);
    if (picture.isNull()) return;  // an empty view
    picture.fill(Qt::transparent);
    if (texts_ == nullptr) texts_ = std::make_unique<TextCache>();
    QPainter drawing(&picture);
    drawing.scale(scale, scale);
    replay(list_, drawing, size.height, scale, picture.rect(), *texts_);
    drawing.end();
    picture.setDevicePixelRatio(scale);
    painter.save();
    if (hasLayer)
        painter.setOpacity(painter.opacity() * std::clamp(static_cast<double>(view.layer->opacity), 0.0, 1.0));
    painter.drawImage(QPointF(0, 0), picture);
    painter.restore();
}

}  // namespace orlamo::qt
