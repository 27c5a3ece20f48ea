#include "update/DateFormat.h"

#include <chrono>
#include <cmath>
#include <ctime>

namespace orlamo::DateFormat {

namespace {

// The format with each digit as 0 and the offset's sign as +.
constexpr std::string_view shape = "0000-00-00T00:00:00+0000";

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

bool hasShape(std::string_view text) {
    if (text.size() != shape.size()) return false;
    for (std::size_t at = 0; at < shape.size(); ++at) {
        const char expected = shape[at];
        const bool fits = expected == '0'   ? isDigit(text[at])
                          : expected == '+' ? text[at] == '+' || text[at] == '-'
                                            : text[at] == expected;
        if (!fits) return false;
    }
    return true;
}

int number(std::string_view digits) {
    int value = 0;
    for (const char digit : digits) value = value * 10 + (digit - '0');
    return value;
}

}  // namespace

std::string stringFromDate(double secondsSince1970) {
    tzset();  // localtime_r need not notice a new time zone
    const auto seconds = static_cast<std::time_t>(std::floor(secondsSince1970));
    std::tm local{};
    if (localtime_r(&seconds, &local) == nullptr) return "";
    char text[64];
    return {text, std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S%z", &local)};
}

std::optional<double> dateFromString(std::string_view text) {
    if (!hasShape(text)) return std::nullopt;
    const auto field = [text](std::size_t at, std::size_t length) { return number(text.substr(at, length)); };
    const std::chrono::year_month_day day{std::chrono::year(field(0, 4)),
                                          std::chrono::month(static_cast<unsigned>(field(5, 2))),
                                          std::chrono::day(static_cast<unsigned>(field(8, 2)))};
    const int hour = field(11, 2), minute = field(14, 2), second = field(17, 2);
    const int offsetHours = field(20, 2), offsetMinutes = field(22, 2);
    if (!day.ok() || hour > 23 || minute > 59 || second > 59 || offsetHours > 23 || offsetMinutes > 59) {
        return std::nullopt;
    }
    const int offset = (offsetHours * 60 + offsetMinutes) * (text[19] == '-' ? -60 : 60);
    const auto days = static_cast<double>(std::chrono::sys_days(day).time_since_epoch().count());
    return days * 86400.0 + hour * 3600 + minute * 60 + second - offset;
}

}  // namespace orlamo::DateFormat
