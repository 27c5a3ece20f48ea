#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orlamo::appcast {

/// A version such as "1.2.0" or "1.3-beta.2": numeric components of any length, then perhaps a pre-release suffix,
/// which makes it older than the same version without one. What follows a + says nothing about the order.
class Version {
public:
    /// Nothing when the text does not start with a number (a leading v is passed over) or is longer than 64 bytes.
    static std::optional<Version> parse(std::string_view text);

    /// A total order: "1.0" and "1.0.0" are equal, "1.9" is less than "1.10", "2.0-rc1" less than "2.0".
    std::weak_ordering operator<=>(const Version& other) const;
    bool operator==(const Version& other) const { return (*this <=> other) == 0; }

private:
    std::vector<std::string> numbers_;     // without leading zeros
    std::vector<std::string> preRelease_;  // runs of digits and runs of letters, in lower case
};

}  // namespace orlamo::appcast
