#pragma once

#include <vector>

#include "platform/CollectionViewItem.h"
#include "platform/Geometry.h"

namespace orlamo::qt {

/// Where the items of a flow layout stand: points from the upper left corner, y downward.
struct CollectionGrid {
    std::vector<Rect> frames;  // section after section
    int columns = 1;
    double height = 0;  // of all lines together
};

/// Lines as wide as fits, at least one item each, in the middle of `width`. A section begins a new line.
CollectionGrid arrange(const FlowLayout& layout, const std::vector<int>& itemsInSection, double width);

}  // namespace orlamo::qt
