#include "platform/x11/RoundedShape.h"

#include <algorithm>
#include <cmath>

namespace orlamo::x11 {

namespace {

/// How far the row is cut in from the side. The corner's centre is at (radius, radius); the row's edge nearest to it
/// decides, since a pixel is touched as soon as a part of it is inside.
int indentOfRow(int row, int radius) {
    const double distance = radius - (row + 1);
    if (distance <= 0) return 0;
    const double reach = std::sqrt(static_cast<double>(radius) * radius - distance * distance);
    return static_cast<int>(std::floor(radius - reach));
}

}  // namespace

std::vector<PixelRect> roundedBands(int width, int height, int radius) {
    std::vector<PixelRect> bands;
    if (width <= 0 || height <= 0) return bands;
    radius = std::clamp(radius, 0, std::min(width, height) / 2);
    for (int y = 0; y < height; ++y) {
        const int indent = indentOfRow(std::min(y, height - 1 - y), radius);
        if (!bands.empty() && bands.back().x == indent) {
            ++bands.back().height;
        } else {
            bands.push_back({indent, y, width - 2 * indent, 1});
        }
    }
    return bands;
}

}  // namespace orlamo::x11
