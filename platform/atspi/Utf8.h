#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace orlamo::atspi {

/// Takes the first character off `text`. None, with `text` as it was, when it does not start with well-formed UTF-8.
std::optional<char32_t> takeCharacter(std::string_view& text);

/// The one character that `text` consists of; none when it is not exactly one.
std::optional<char32_t> singleCharacter(std::string_view text);

std::string toUtf8(char32_t character);

/// A name that another program gave, made fit to be shown: without malformed bytes, control, direction and hidden
/// characters, without letters under piles of marks, without blanks around it, and cut to `limit` bytes between two
/// characters.
std::string cleanName(std::string_view name, std::size_t limit = 1024);

}  // namespace orlamo::atspi
