#include "platform/qt/Blur.h"

#include <algorithm>
#include <array>
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

// Between two pixels, `part` 256ths of the way. Red and blue are reckoned in one number.
QRgb between(QRgb a, QRgb b, unsigned part) {
    const unsigned rest = 256 - part;
    const unsigned redBlue = ((a & 0xFF00FFU) * rest + (b & 0xFF00FFU) * part) >> 8;
    const unsigned green = ((a & 0x00FF00U) * rest + (b & 0x00FF00U) * part) >> 8;
    return 0xFF000000U | (redBlue & 0xFF00FFU) | (green & 0x00FF00U);
}

// Where the pixels of the large picture lie between the small one's, whose pixels stand in the middle of their squares.
struct Step {
    int first;
    int second;
    unsigned part;
};

Step stepAt(int position, int shrink, int count) {
    const int doubled = 2 * position + 1 - shrink;  // from the first small pixel's middle, in half pixels
    const int before = doubled < 0 ? -1 : doubled / (2 * shrink);
    const int offset = doubled - before * 2 * shrink;
    return {std::clamp(before, 0, count - 1), std::clamp(before + 1, 0, count - 1),
            static_cast<unsigned>(offset * 256 / (2 * shrink))};
}

QImage enlarged(const std::vector<QRgb>& small, int smallWidth, int smallHeight, int shrink, QSize size) {
    QImage large(size, QImage::Format_RGB32);
    std::vector<Step> steps;
    for (int x = 0; x < size.width(); ++x) steps.push_back(stepAt(x, shrink, smallWidth));
    std::vector<QRgb> row(static_cast<std::size_t>(smallWidth));
    for (int y = 0; y < size.height(); ++y) {
        const Step down = stepAt(y, shrink, smallHeight);
        const QRgb* const upper = small.data() + static_cast<std::ptrdiff_t>(down.first) * smallWidth;
        const QRgb* const lower = small.data() + static_cast<std::ptrdiff_t>(down.second) * smallWidth;
        for (int x = 0; x < smallWidth; ++x) row[static_cast<std::size_t>(x)] = between(upper[x], lower[x], down.part);
        auto* out = reinterpret_cast<QRgb*>(large.scanLine(y));
        for (const Step& step : steps) {
            *out++ = between(row[static_cast<std::size_t>(step.first)], row[static_cast<std::size_t>(step.second)],
                             step.part);
        }
    }
    return large;
}

std::vector<QRgb> throughTint(const Picture& picture, const Color& tint) {
    const auto part = static_cast<float>(1 - tint.alpha);
    const Pixel cover{static_cast<float>(tint.red * 255 * tint.alpha),
                      static_cast<float>(tint.green * 255 * tint.alpha),
                      static_cast<float>(tint.blue * 255 * tint.alpha)};
    std::vector<QRgb> result;
    result.reserve(picture.pixels.size());
    for (const Pixel& pixel : picture.pixels) {
        const auto channel = [&](std::size_t c) { return static_cast<int>(pixel[c] * part + cover[c] + 0.5F); };
        result.push_back(qRgb(channel(0), channel(1), channel(2)));
    }
    return result;
}

}  // namespace

QImage blurredThroughTint(const QImage& picture, int shrink, const Color& tint) {
    if (picture.isNull()) return {};
    constexpr int radius = 3;
    constexpr int passes = 3;  // three boxes come close to a bell curve
    Picture small = shrunk(picture, shrink);
    for (int pass = 0; pass < passes; ++pass) boxBlur(small, radius);
    return enlarged(throughTint(small, tint), small.width, small.height, shrink, picture.size());
}

}  // namespace orlamo::qt
