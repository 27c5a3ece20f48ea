#pragma once

#include "platform/PropertyList.h"

namespace orlamo::plist {

/// Reads property lists with libplist, after checking what that library does not: size, nesting, cycles, and how
/// much memory a file full of shared objects would unfold to.
/// A date becomes the seconds since the start of 2001 (double), a UID its number, a null none. Integers are 64 bits;
/// an unsigned one above 2^63 - 1 wraps around. A key that occurs twice keeps its last value.
class LibplistParser final : public PropertyListParser {
public:
    Result propertyListWithData(std::span<const std::uint8_t> data) override;
};

}  // namespace orlamo::plist
