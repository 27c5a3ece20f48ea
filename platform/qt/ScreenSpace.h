#pragma once

#include <QPoint>
#include <QRect>

#include "platform/Geometry.h"
#include "platform/WindowEffects.h"

class QScreen;

namespace orlamo::qt {

/// Between the program's screen coordinates (points, origin at the primary screen's lower left corner, y upward), Qt's
/// (points, y downward) and device pixels. In Qt's, each screen's upper left corner is where it is in device pixels,
/// and what lies on the screen is scaled from there: between scaled screens there are gaps.

Rect fromQt(const QRect& rect, const QRect& primaryScreen);
/// The lower left corner of the pixel that Qt names.
Point fromQt(QPoint point, const QRect& primaryScreen);
/// Whole points; nothing of the rectangle's size is lost.
QRect toQt(const Rect& rect, const QRect& primaryScreen);

/// Of the primary screen, in Qt's coordinates; empty without a screen.
QRect primaryScreenRect();

/// The same numbers, for Qt's own arithmetic.
QRect toQRect(const PixelRect& pixels);
/// As Qt places a window of that geometry on the screen.
PixelRect toDevicePixels(const QRect& rect, const QScreen& screen);
/// The points of that screen, going on beyond its edges, that touch these pixels.
QRect fromDevicePixels(const PixelRect& pixels, const QScreen& screen);
/// The smallest rectangle around all screens.
PixelRect desktopPixels();

/// The screen that holds the middle of the rectangle, which is in Qt's coordinates; the primary one when none does.
/// Null without a screen.
QScreen* screenWithMiddleOf(const QRect& rect);
/// The screen that these pixels lie on: with their middle, else with any of them. Null when they lie on none.
QScreen* screenOf(const PixelRect& pixels);

/// Where the pointer is, always on a screen if there is one.
QPoint pointerPosition();

}  // namespace orlamo::qt
