#include "platform/x11/PixelFormat.h"

#include <bit>
#include <cstring>

namespace orlamo::x11 {

namespace {

constexpr std::uint32_t opaque = 0xff000000;

std::uint32_t component(std::uint32_t pixel, std::uint32_t mask) {
    if (mask == 0) return 0;
    const std::uint32_t shift = static_cast<std::uint32_t>(std::countr_zero(mask));
    const std::uint64_t most = mask >> shift;
    return static_cast<std::uint32_t>(((pixel & mask) >> shift) * 255ULL / most);
}

std::uint32_t readPixel(const std::byte* bytes, int count, bool leastFirst) {
    std::uint32_t pixel = 0;
    for (int i = 0; i < count; ++i) {
        const int shift = 8 * (leastFirst ? i : count - 1 - i);
        pixel |= std::to_integer<std::uint32_t>(bytes[i]) << shift;
    }
    return pixel;
}

/// Already as we want it, but for the unused byte.
bool isPlain(const PixelFormat& format) {
    return std::endian::native == std::endian::little && format.bitsPerPixel == 32 &&
           format.leastSignificantByteFirst && format.redMask == 0xff0000 && format.greenMask == 0xff00 &&
           format.blueMask == 0xff;
}

}  // namespace

bool convertPixels(std::span<const std::byte> bytes, std::size_t stride, const PixelFormat& format,
                   const PixelRect& area, int originX, int originY, PixelImage& image) {
    const int size = format.bitsPerPixel / 8;
    if (format.bitsPerPixel % 8 != 0 || size < 2 || size > 4 || area.width <= 0 || area.height <= 0) return false;
    const auto columns = static_cast<std::size_t>(area.width);
    const auto rows = static_cast<std::size_t>(area.height);
    if (bytes.size() < stride * (rows - 1) + columns * static_cast<std::size_t>(size)) return false;

    const bool plain = isPlain(format);
    for (std::size_t row = 0; row < rows; ++row) {
        const std::byte* source = bytes.data() + row * stride;
        const std::size_t top = static_cast<std::size_t>(area.y - originY) + row;
        std::uint32_t* const target =
            image.pixels.data() + top * static_cast<std::size_t>(image.width) + (area.x - originX);
        if (plain) {
            std::memcpy(target, source, columns * 4);
            for (std::size_t column = 0; column < columns; ++column) target[column] |= opaque;
            continue;
        }
        for (std::size_t column = 0; column < columns; ++column, source += size) {
            const std::uint32_t pixel = readPixel(source, size, format.leastSignificantByteFirst);
            target[column] = opaque | component(pixel, format.redMask) << 16 | component(pixel, format.greenMask) << 8 |
                             component(pixel, format.blueMask);
        }
    }
    return true;
}

}  // namespace orlamo::x11
