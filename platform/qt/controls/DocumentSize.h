#pragma once

class QWidget;

namespace orlamo::qt {

/// Points that a loaded view needs when it is `width` points wide: what its layout asks for, or, without a layout, its
/// present height.
int neededHeight(const QWidget& view, int width);
/// The least width at which nothing of the view is cut off.
int neededWidth(const QWidget& view);

}  // namespace orlamo::qt
