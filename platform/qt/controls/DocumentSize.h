#pragma once

class QSize;
class QWidget;

namespace orlamo::qt {

/// Points that a loaded view needs when it is `width` points wide: what its layout asks for, or, without a layout, its
/// present height.
int neededHeight(const QWidget& view, int width);
/// The least width at which nothing of the view is cut off.
int neededWidth(const QWidget& view);
/// What a loaded view needs that has not appeared yet, when it is as wide as it is now, or wider if it must.
QSize neededSize(QWidget& view);

}  // namespace orlamo::qt
