#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace orlamo::plist {

inline constexpr std::size_t maximumBytes = 1 << 20;
/// Levels of elements in XML, of arrays and dictionaries in binary, the root being the first.
inline constexpr std::size_t maximumDepth = 64;

bool isBinary(std::span<const std::uint8_t> data);

/// Why the structure of the data keeps it from being parsed safely; empty when it can be. Both read every byte at
/// most a few times and use no recursion.
std::string objectionToXml(std::span<const std::uint8_t> data);
std::string objectionToBinary(std::span<const std::uint8_t> data);

}  // namespace orlamo::plist
