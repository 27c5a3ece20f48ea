#pragma once

#include <QRect>
#include <optional>
#include <vector>

#include "platform/qt/DisplayList.h"

namespace orlamo::qt {

class TextCache;

/// Device pixels that an item may colour, for a window that is `height` points high.
QRect pixelsOf(const DisplayList& list, const DisplayList::Item& item, double height, double scale, TextCache& texts);

/// Where the picture of `after` differs from that of `before`: a few rectangles in device pixels, none when the two
/// draw the same. No value when painting everything is the simpler way.
std::optional<std::vector<QRect>> damage(const DisplayList& before, const DisplayList& after, double height,
                                         double scale, TextCache& texts);

}  // namespace orlamo::qt
