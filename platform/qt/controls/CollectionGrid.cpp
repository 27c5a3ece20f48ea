#include "platform/qt/controls/CollectionGrid.h"

#include <algorithm>
#include <cmath>

namespace orlamo::qt {

CollectionGrid arrange(const FlowLayout& layout, const std::vector<int>& itemsInSection, double width) {
    const double stepX = std::max(layout.itemSize.width + layout.minimumInteritemSpacing, 1.0);
    const double stepY = layout.itemSize.height + layout.minimumLineSpacing;
    CollectionGrid grid;
    grid.columns = std::max(1, static_cast<int>((width + layout.minimumInteritemSpacing) / stepX));
    const double lineWidth = grid.columns * stepX - layout.minimumInteritemSpacing;
    const double left = std::max(0.0, std::floor((width - lineWidth) / 2));
    int line = 0;
    for (const int items : itemsInSection) {
        for (int i = 0; i < items; ++i) {
            const int column = i % grid.columns;
            const int row = line + i / grid.columns;
            grid.frames.push_back({left + column * stepX, row * stepY, layout.itemSize.width, layout.itemSize.height});
        }
        line += (items + grid.columns - 1) / grid.columns;
    }
    grid.height = line > 0 ? line * stepY - layout.minimumLineSpacing : 0;
    return grid;
}

}  // namespace orlamo::qt
