#include "platform/KeyedArchive.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>

namespace orlamo {

namespace {

constexpr std::array<std::uint8_t, 5> header{'O', 'r', 'l', 'C', 1};
constexpr std::size_t archiveSize = header.size() + 4 * sizeof(double);

bool isArchivable(const Color& color) {
    return std::isfinite(color.red) && std::isfinite(color.green) && std::isfinite(color.blue) &&
           std::isfinite(color.alpha);
}

}  // namespace

std::optional<std::vector<std::uint8_t>> archivedDataWithColor(const Color& color) {
    if (!isArchivable(color)) return std::nullopt;
    std::vector<std::uint8_t> data(header.begin(), header.end());
    for (const double component : {color.red, color.green, color.blue, color.alpha}) {
        const auto bits = std::bit_cast<std::uint64_t>(component);
        for (int shift = 0; shift < 64; shift += 8) data.push_back(static_cast<std::uint8_t>(bits >> shift));
    }
    return data;
}

std::optional<Color> unarchivedColor(std::span<const std::uint8_t> data) {
    if (data.size() != archiveSize || !std::equal(header.begin(), header.end(), data.begin())) return std::nullopt;
    std::array<double, 4> components{};
    auto byte = data.begin() + header.size();
    for (double& component : components) {
        std::uint64_t bits = 0;
        for (int shift = 0; shift < 64; shift += 8) bits |= static_cast<std::uint64_t>(*byte++) << shift;
        component = std::bit_cast<double>(bits);
    }
    const Color color{components[0], components[1], components[2], components[3]};
    if (!isArchivable(color)) return std::nullopt;
    return color;
}

}  // namespace orlamo
