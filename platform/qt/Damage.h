#pragma once

#include <QRect>
#include <QRegion>
#include <optional>

#include "platform/qt/DisplayList.h"

namespace orlamo::qt {

class TextCache;

/// Device pixels that an item may colour, for a window that is `height` points high.
QRect pixelsOf(const DisplayList& list, const DisplayList::Item& item, double height, double scale, TextCache& texts);

/// Where the picture of `after` differs from that of `before`: in device pixels, empty when the two draw the same.
/// No value when so much differs that painting everything is the simpler way.
std::optional<QRegion> damage(const DisplayList& before, const DisplayList& after, double height, double scale,
                              TextCache& texts);

}  // namespace orlamo::qt
