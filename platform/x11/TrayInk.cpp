#include "platform/x11/TrayInk.h"

namespace orlamo::x11 {

namespace {

constexpr std::uint32_t lightInk = 0xe6e6e6;
constexpr std::uint32_t darkInk = 0x2e2e2e;

std::uint32_t channel(std::uint32_t pixel, int shift) {
    return pixel >> shift & 0xff;
}

/// Thousandths of full brightness, as the eye weighs the colours.
std::uint64_t brightness(std::uint32_t pixel) {
    return (299 * channel(pixel, 16) + 587 * channel(pixel, 8) + 114 * channel(pixel, 0)) / 255;
}

}  // namespace

std::optional<std::uint32_t> panelForeground(std::span<const std::uint32_t> panelColors) {
    if (panelColors.size() < 3) return std::nullopt;
    const auto eightBits = [&panelColors](std::size_t i) { return panelColors[i] >> 8 & 0xff; };
    return eightBits(0) << 16 | eightBits(1) << 8 | eightBits(2);
}

std::uint32_t trayInk(std::span<const std::uint32_t> panelColors, const PixelImage& background) {
    if (const auto foreground = panelForeground(panelColors)) return *foreground;
    if (background.pixels.empty()) return lightInk;
    std::uint64_t sum = 0;
    for (const std::uint32_t pixel : background.pixels) sum += brightness(pixel);
    return sum / background.pixels.size() < 500 ? lightInk : darkInk;
}

}  // namespace orlamo::x11
