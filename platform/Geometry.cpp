#include "platform/Geometry.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace orlamo {

Rect Rect::united(const Rect& other) const {
    if (width <= 0 || height <= 0) return other;
    if (other.width <= 0 || other.height <= 0) return *this;
    const double left = std::min(x, other.x);
    const double bottom = std::min(y, other.y);
    return {left, bottom, std::max(maxX(), other.maxX()) - left, std::max(maxY(), other.maxY()) - bottom};
}

std::string describe(double number) {
    std::array<char, 32> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr;
    std::string text(buffer.data(), end);
    if (text.find_first_not_of("-0123456789") == std::string::npos) text += ".0";
    return text;
}

std::string describe(Point point) {
    return "(" + describe(point.x) + ", " + describe(point.y) + ")";
}

std::string describe(const Rect& rect) {
    return "(" + describe(rect.x) + ", " + describe(rect.y) + ", " + describe(rect.width) + ", " +
           describe(rect.height) + ")";
}

}  // namespace orlamo
