#pragma once

#include <map>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>

#include "platform/UserDefaults.h"

namespace orlamo::qt {

/// The settings as the file holds them: an object whose entries are booleans, integers (64 bits, signed), numbers with
/// a fraction, texts, and data as {"data": "<base64>"}. Other entries are kept as they are and read as absent.
class SettingsJson {
public:
    /// No value when the text is not a JSON object, or nests deeper than 32 levels.
    static std::optional<SettingsJson> parse(std::string_view text);

    UserDefaults::Value value(std::string_view key) const;
    /// std::monostate removes. False when JSON has no such value (a number that is not finite).
    bool setValue(const std::string& key, const UserDefaults::Value& value);
    std::string text() const;

    bool operator==(const SettingsJson&) const = default;

private:
    nlohmann::ordered_json object_ = nlohmann::ordered_json::object();
};

}  // namespace orlamo::qt
