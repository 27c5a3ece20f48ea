#pragma once

#include <QImage>

#include "platform/Color.h"

namespace orlamo::qt {

/// The picture blurred strongly and shown through `tint`, in its own size. A point spreads over about 7 `shrink`
/// pixels; edges count as going on outward. 32 bits a pixel; alpha is not looked at, and opaque in the result.
QImage blurredThroughTint(const QImage& picture, int shrink, const Color& tint);

}  // namespace orlamo::qt
