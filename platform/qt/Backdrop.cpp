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

// What fills the panel, in one colour or from the screen.
QColor plainMaterial(const BackdropStyle& style) {
    if (style.material == VisualEffectView::Material::sheet) return toQColor(plain);
    const bool isBlurred = style.behind == BackdropStyle::Behind::blurred;
    return toQColor({tint.red, tint.green, tint.blue, isBlurred ? tint.alpha : 1});
}

bool showsScreen(const BackdropStyle& style, const QImage& screen) {
    return style.material == VisualEffectView::Material::fullScreenUI &&
           style.behind != BackdropStyle::Behind::blurred && !screen.isNull();
}

QImage material(const BackdropStyle& style, const QImage& screen, QPoint screenCorner) {
    QImage picture;
    if (showsScreen(style, screen)) {
        const int shrink = std::max(2, static_cast<int>(std::lround(shrinkPoints * style.scale)));
        picture = blurredThroughTint(screen, shrink, tint);
    }
    if (picture.size() == style.size) return picture;
    QImage whole(style.size, QImage::Format_ARGB32_Premultiplied);
    whole.fill(plainMaterial(style));
    if (!picture.isNull()) QPainter(&whole).drawImage(screenCorner, picture);
    return whole;
}

// Takes away what of `corner` lies outside the panel, and puts what lies behind it there.
void cutCorner(QImage& picture, QRect corner, const BackdropStyle& style, const QImage& screen, QPoint screenCorner) {
    corner = corner.intersected(picture.rect());
    if (corner.isEmpty()) return;
    QImage cut(corner.size(), QImage::Format_ARGB32_Premultiplied);
    cut.fill(Qt::transparent);
    QPainter painter(&cut);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-corner.topLeft());
    QPainterPath outline;
    outline.addRoundedRect(style.panel, style.cornerRadius, style.cornerRadius);
    painter.fillPath(outline, Qt::black);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.drawImage(corner.topLeft(), picture, corner);
    if (style.behind == BackdropStyle::Behind::covered) {
        painter.setCompositionMode(QPainter::CompositionMode_DestinationOver);
        if (!screen.isNull()) painter.drawImage(screenCorner, screen);
        painter.fillRect(corner, Qt::black);
    }
    painter.end();
    QPainter onto(&picture);
    onto.setCompositionMode(QPainter::CompositionMode_Source);
    onto.drawImage(corner.topLeft(), cut);
}

}  // namespace

QImage makeBackdrop(const BackdropStyle& style, const QImage& screen, QPoint screenCorner) {
    QImage picture = material(style, screen, screenCorner);
    // The same 32 bits; what was opaque stays so.
    picture.reinterpretAsFormat(QImage::Format_ARGB32_Premultiplied);

    const QRect panel = style.panel.toAlignedRect();
    const int reach = static_cast<int>(std::ceil(style.cornerRadius));
    const QSize corner(reach, reach);
    for (const QPoint at : {panel.topLeft(), QPoint(panel.right() + 1 - reach, panel.top()),
                            QPoint(panel.left(), panel.bottom() + 1 - reach),
                            QPoint(panel.right() + 1 - reach, panel.bottom() + 1 - reach)}) {
        cutCorner(picture, QRect(at, corner), style, screen, screenCorner);
    }

    // A hairline lifts the panel off a background that is as dark as itself.
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(255, 255, 255, 26), 1));
    const double radius = std::max(0.0, style.cornerRadius - 0.5);
    painter.drawRoundedRect(style.panel.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    painter.end();
    if (style.behind == BackdropStyle::Behind::covered) picture.reinterpretAsFormat(QImage::Format_RGB32);
    return picture;
}

}  // namespace orlamo::qt
