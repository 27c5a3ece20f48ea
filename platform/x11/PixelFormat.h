#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "platform/WindowEffects.h"

namespace orlamo::x11 {

/// How the server lays out a TrueColor picture.
struct PixelFormat {
    int bitsPerPixel = 32;  // 16, 24 or 32
    bool leastSignificantByteFirst = true;
    std::uint32_t redMask = 0xff0000;
    std::uint32_t greenMask = 0xff00;
    std::uint32_t blueMask = 0xff;
};

/// Writes a picture of `area` (its rows `stride` bytes apart) into `image`, whose upper left corner shows
/// (`originX`, `originY`). `area` lies within the image. False when the format is unknown or `bytes` is too short.
bool convertPixels(std::span<const std::byte> bytes, std::size_t stride, const PixelFormat& format,
                   const PixelRect& area, int originX, int originY, PixelImage& image);

}  // namespace orlamo::x11
