#pragma once

#include <map>
#include <string>
#include <string_view>

namespace orlamo {

using StringDictionary = std::map<std::string, std::string, std::less<>>;

/// Empty when the key is missing.
inline std::string textOf(const StringDictionary& dictionary, std::string_view key) {
    const auto found = dictionary.find(key);
    return found == dictionary.end() ? "" : found->second;
}

}  // namespace orlamo
