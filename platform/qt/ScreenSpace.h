#pragma once

#include <QPoint>
#include <QRect>

#include "platform/Geometry.h"
#include "platform/WindowEffects.h"

class QScreen;

namespace orlamo::qt {

/// Between the program's screen coordinates (points, origin at the main screen's lower left corner, y upward), Qt's
/// (points, origin at its upper left corner, y downward) and device pixels.

Rect fromQt(const QRect& rect, const QRect& mainScreen);
/// The lower left corner of the pixel that Qt names.
Point fromQt(QPoint point, const QRect& mainScreen);
/// Whole points; nothing of the rectangle's size is lost.
QRect toQt(const Rect& rect, const QRect& mainScreen);

/// As Qt places a window of that geometry on the screen.
PixelRect toDevicePixels(const QRect& rect, const QScreen& screen);

}  // namespace orlamo::qt
