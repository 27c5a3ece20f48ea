#pragma once

#include <QImage>

#include "platform/Color.h"

namespace orlamo::qt {

/// The picture blurred strongly and shown through `tint`, at one `shrink`th of its size (rounded up): to be scaled up
/// by exactly `shrink`. A point spreads over about 7 `shrink` pixels. Edges count as going on outward.
/// `picture` is 32 bits a pixel; its alpha is not looked at.
QImage blurredThroughTint(const QImage& picture, int shrink, const Color& tint);

}  // namespace orlamo::qt
