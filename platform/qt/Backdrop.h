#pragma once

#include <QImage>
#include <QRectF>
#include <QSize>

#include "platform/VisualEffectView.h"

namespace orlamo::qt {

/// How the material behind a panel's texts is made. Device pixels.
struct BackdropStyle {
    enum class Behind {
        covered,  // the window cannot be seen through: its picture holds what lies outside the corners
        blended,  // outside the corners the picture is transparent
        blurred,  // as blended, and the compositor blurs what lies behind the material: only its tint is painted
    };
    VisualEffectView::Material material = VisualEffectView::Material::fullScreenUI;
    Behind behind = Behind::covered;
    QSize size;        // of the picture
    QRectF panel;      // the whole panel; a part of it may lie outside the picture
    double scale = 1;  // device pixels in a point
    double cornerRadius = 0;
};

/// Dark enough that white text on it, and on a bar of white at a tenth over it, has a contrast of 7:1 whatever lies
/// behind. `screen` is what the screen shows there, its corner at `screenCorner` of the picture; null when not known.
QImage makeBackdrop(const BackdropStyle& style, const QImage& screen, QPoint screenCorner);

}  // namespace orlamo::qt
