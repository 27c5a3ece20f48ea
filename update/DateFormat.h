#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The date format yyyy-MM-dd'T'HH:mm:ssZ, for example 2024-03-05T14:07:09+0800. Dates are seconds since 1 January
/// 1970 UTC.
namespace orlamo::DateFormat {

/// In the current time zone, down to the whole second.
std::string stringFromDate(double secondsSince1970);

/// Nothing unless the whole text has the format and names a date of the calendar.
std::optional<double> dateFromString(std::string_view text);

}  // namespace orlamo::DateFormat
