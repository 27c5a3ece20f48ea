#include "platform/qt/Blur.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

namespace orlamo::qt {

namespace {

using Pixel = std::array<float, 3>;  // red, green, blue, 0 to 255

struct Picture {
    int width = 0;
    int height = 0;
    std::vector<Pixel> pixels;
};

// The average of each square of `shrink` pixels; those at the right and lower edges may be smaller.
Picture shrunk(const QImage& source, int shrink) {
    Picture small{(source.width() + shrink - 1) / shrink, (source.height() + shrink - 1) / shrink, {}};
    small.pixels.resize(static_cast<std::size_t>(small.width) * static_cast<std::size_t>(small.height));
    struct Sum {
        unsigned red, green, blue, count;
    };
    std::vector<Sum> sums(static_cast<std::size_t>(small.width));
    for (int row = 0; row < small.height; ++row) {
        std::fill(sums.begin(), sums.end(), Sum{});
        const int end = std::min((row + 1) * shrink, source.height());
        for (int y = row * shrink; y < end; ++y) {
            const auto* const line = reinterpret_cast<const QRgb*>(source.constScanLine(y));
            for (int x = 0; x < source.width();) {
                Sum& sum = sums[static_cast<std::size_t>(x / shrink)];
                const int stop = std::min(x + shrink, source.width());
                sum.count += static_cast<unsigned>(stop - x);
                for (; x < stop; ++x) {
                    sum.red += (line[x] >> 16) & 0xFF;
                    sum.green += (line[x] >> 8) & 0xFF;
                    sum.blue += line[x] & 0xFF;
                }
            }
        }
        Pixel* out = small.pixels.data() + static_cast<std::ptrdiff_t>(row) * small.width;
        for (const Sum& sum : sums) {
            const float part = 1.0F / static_cast<float>(sum.count);
            *out++ = {static_cast<float>(sum.red) * part, static_cast<float>(sum.green) * part,
                      static_cast<float>(sum.blue) * part};
        }
    }
    return small;
}

// One line of `count` pixels, `step` apart: each becomes the average of itself and `radius` neighbours on either side.
void boxBlurLine(Pixel* line, std::ptrdiff_t step, int count, int radius, std::vector<Pixel>& before) {
    before.resize(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) before[static_cast<std::size_t>(i)] = line[i * step];
    const auto at = [&](int i) -> const Pixel& {
        return before[static_cast<std::size_t>(std::clamp(i, 0, count - 1))];
    };
    Pixel sum{};
    for (int i = -radius; i <= radius; ++i) {
        for (std::size_t c = 0; c < sum.size(); ++c) sum[c] += at(i)[c];
    }
    const float part = 1.0F / static_cast<float>(2 * radius + 1);
    for (int i = 0; i < count; ++i) {
        for (std::size_t c = 0; c < sum.size(); ++c) {
            line[i * step][c] = sum[c] * part;
            sum[c] += at(i + radius + 1)[c] - at(i - radius)[c];
        }
    }
}

void boxBlur(Picture& picture, int radius) {
    std::vector<Pixel> before;
    for (int y = 0; y < picture.height; ++y) {
        boxBlurLine(picture.pixels.data() + static_cast<std::ptrdiff_t>(y) * picture.width, 1, picture.width, radius,
                    before);
    }
    for (int x = 0; x < picture.width; ++x) {
        boxBlurLine(picture.pixels.data() + x, picture.width, picture.height, radius, before);
    }
}

}  // namespace

QImage blurredThroughTint(const QImage& picture, int shrink, const Color& tint) {
    if (picture.isNull()) return {};
    constexpr int radius = 3;
    constexpr int passes = 3;  // three boxes come close to a bell curve
    Picture small = shrunk(picture, shrink);
    for (int pass = 0; pass < passes; ++pass) boxBlur(small, radius);

    const auto alpha = static_cast<float>(tint.alpha);
    const std::array<float, 3> cover{static_cast<float>(tint.red * 255 * tint.alpha),
                                     static_cast<float>(tint.green * 255 * tint.alpha),
                                     static_cast<float>(tint.blue * 255 * tint.alpha)};
    QImage result(small.width, small.height, QImage::Format_RGB32);
    const Pixel* pixel = small.pixels.data();
    for (int y = 0; y < small.height; ++y) {
        auto* const line = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < small.width; ++x, ++pixel) {
            const auto channel = [&](std::size_t c) {
                return static_cast<int>(std::lround((*pixel)[c] * (1 - alpha) + cover[c]));
            };
            line[x] = qRgb(channel(0), channel(1), channel(2));
        }
    }
    return result;
}

}  // namespace orlamo::qt
