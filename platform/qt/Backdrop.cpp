#include "platform/qt/Backdrop.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "platform/qt/Blur.h"

namespace orlamo::qt {

namespace {

// Over a white document the tint leaves a grey of 67; a bar over that is 86, where 89 is the lightest allowed.
constexpr Color tint{24 / 255.0, 24 / 255.0, 28 / 255.0, 0.81};
constexpr Color plain{43 / 255.0, 43 / 255.0, 47 / 255.0, 1};
constexpr double shrinkPoints = 8;

QColor toQColor(const Color& color) {
    return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
                            static_cast<float>(color.blue), static_cast<float>(color.alpha));
}

// What fills the panel, opaque unless the compositor blurs behind it.
QBrush material(const BackdropStyle& style, const QImage& screen, QPoint screenCorner) {
    if (style.material == VisualEffectView::Material::sheet) return toQColor(plain);
    if (style.behind == BackdropStyle::Behind::blurred) return toQColor(tint);
    const QColor unlit = toQColor({tint.red, tint.green, tint.blue, 1});
    if (screen.isNull()) return unlit;
    const int shrink = std::max(2, static_cast<int>(std::lround(shrinkPoints * style.scale)));
    const QImage small = blurredThroughTint(screen, shrink, tint);
    QImage full(style.size, QImage::Format_RGB32);
    full.fill(unlit);
    QPainter painter(&full);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setClipRect(QRect(screenCorner, screen.size()));
    painter.drawImage(QRect(screenCorner, small.size() * shrink), small);
    return full;
}

}  // namespace

QImage makeBackdrop(const BackdropStyle& style, const QImage& screen, QPoint screenCorner) {
    const bool covered = style.behind == BackdropStyle::Behind::covered;
    QImage picture(style.size, covered ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
    picture.fill(covered ? Qt::black : Qt::transparent);
    QPainter painter(&picture);
    if (covered && !screen.isNull()) painter.drawImage(screenCorner, screen);

    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(style.opacity);
    QPainterPath outline;
    outline.addRoundedRect(style.panel, style.cornerRadius, style.cornerRadius);
    painter.fillPath(outline, material(style, screen, screenCorner));

    // A hairline lifts the panel off a background that is as dark as itself.
    painter.setPen(QPen(QColor(255, 255, 255, 26), 1));
    const double radius = std::max(0.0, style.cornerRadius - 0.5);
    painter.drawRoundedRect(style.panel.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    return picture;
}

}  // namespace orlamo::qt
