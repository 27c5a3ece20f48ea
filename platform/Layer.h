#pragma once

#include <vector>

#include "platform/Color.h"
#include "platform/Geometry.h"

namespace orlamo {

/// What is painted behind a view's own drawing.
struct Layer {
    virtual ~Layer() = default;
    Color backgroundColor = Color::clearColor();
    double cornerRadius = 0;  // points
    bool masksToBounds = false;
    float opacity = 1;
};

struct GradientLayer : Layer {
    std::vector<Color> colors;
    std::vector<double> locations;  // one for each colour, 0 to 1, ascending
    Point startPoint{0.5, 0};       // in units of the layer's size, y upward
    Point endPoint{0.5, 1};
};

}  // namespace orlamo
