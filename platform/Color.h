#pragma once

namespace orlamo {

/// sRGB components and alpha, each 0 to 1, not premultiplied.
struct Color {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;
    bool operator==(const Color&) const = default;

    static constexpr Color white(double alpha) { return {1, 1, 1, alpha}; }
    static constexpr Color grey(double alpha) { return {0.5, 0.5, 0.5, alpha}; }
    static constexpr Color black() { return {0, 0, 0, 1}; }
    static constexpr Color clearColor() { return {0, 0, 0, 0}; }

    // The system palette in its dark appearance, the only one the program's windows use.
    static constexpr Color systemTealColor() { return {106 / 255.0, 196 / 255.0, 220 / 255.0, 1}; }
    static constexpr Color systemBlueColor(double alpha = 1) { return {10 / 255.0, 132 / 255.0, 1, alpha}; }
    static constexpr Color textBackgroundColor() { return {30 / 255.0, 30 / 255.0, 30 / 255.0, 1}; }
};

}  // namespace orlamo
