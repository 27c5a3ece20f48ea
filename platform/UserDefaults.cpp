#include "platform/UserDefaults.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "platform/Geometry.h"

namespace orlamo {

namespace {

std::int64_t truncated(double number) {
    constexpr double limit = 9.2e18;
    return std::isfinite(number) && std::fabs(number) < limit ? static_cast<std::int64_t>(number) : 0;
}

// Blanks, then a sign, then zeros do not count.
bool startsTrue(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t\n"), text.size()));
    if (!text.empty() && (text.front() == '+' || text.front() == '-')) text.remove_prefix(1);
    text.remove_prefix(std::min(text.find_first_not_of('0'), text.size()));
    return text.find_first_of("123456789YyTt") == 0;
}

}  // namespace

std::unique_ptr<UserDefaults::Observation> UserDefaults::addObserver(std::string keyPath,
                                                                     std::function<void()> handler) {
    willObserveKey(keyPath);
    return changes_.addObserver(std::move(keyPath), std::move(handler));
}

void UserDefaults::didChangeValueForKey(std::string_view key) {
    changes_.post(key);
}

bool UserDefaults::boolForKey(std::string_view key) {
    const Value value = objectForKey(key);
    if (const auto* const truth = std::get_if<bool>(&value)) return *truth;
    if (const auto* const number = std::get_if<std::int64_t>(&value)) return *number != 0;
    if (const auto* const number = std::get_if<double>(&value)) return *number != 0;
    if (const auto* const text = std::get_if<std::string>(&value)) {
        return startsTrue(*text);
    }
    return false;
}

std::int64_t UserDefaults::integerForKey(std::string_view key) {
    const Value value = objectForKey(key);
    if (const auto* const truth = std::get_if<bool>(&value)) return *truth ? 1 : 0;
    if (const auto* const number = std::get_if<std::int64_t>(&value)) return *number;
    if (const auto* const number = std::get_if<double>(&value)) return truncated(*number);
    if (const auto* const text = std::get_if<std::string>(&value)) return std::strtoll(text->c_str(), nullptr, 10);
    return 0;
}

std::optional<std::string> UserDefaults::stringForKey(std::string_view key) {
    const Value value = objectForKey(key);
    if (const auto* const text = std::get_if<std::string>(&value)) return *text;
    if (const auto* const number = std::get_if<std::int64_t>(&value)) return std::to_string(*number);
    if (const auto* const number = std::get_if<double>(&value)) return describe(*number);
    return std::nullopt;
}

std::optional<UserDefaults::Data> UserDefaults::dataForKey(std::string_view key) {
    const Value value = objectForKey(key);
    if (const auto* const data = std::get_if<Data>(&value)) return *data;
    return std::nullopt;
}

}  // namespace orlamo
