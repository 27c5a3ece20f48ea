#pragma once

#include <string>

namespace orlamo {

/// Points are logical pixels; y grows upward. On screen the origin is the primary screen's lower left corner.
struct Point {
    double x = 0;
    double y = 0;
    bool operator==(const Point&) const = default;
};

struct Size {
    double width = 0;
    double height = 0;
    bool operator==(const Size&) const = default;
};

struct Rect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    bool operator==(const Rect&) const = default;

    double maxX() const { return x + width; }
    double maxY() const { return y + height; }
    Size size() const { return {width, height}; }
    /// Minimum edges belong to the rectangle, maximum edges do not.
    bool contains(Point p) const { return p.x >= x && p.x < maxX() && p.y >= y && p.y < maxY(); }
    /// The smallest rectangle that holds both; an empty one adds nothing.
    Rect united(const Rect& other) const;
};

using CGPoint = Point;
using CGRect = Rect;

/// Shortest decimal text that reads back as the same number, always with a fraction: "30.0", "12.5".
std::string describe(double number);
/// "(x, y)"
std::string describe(Point point);
/// "(x, y, width, height)"
std::string describe(const Rect& rect);

}  // namespace orlamo
