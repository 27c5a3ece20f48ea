#include "platform/qt/SettingsJson.h"

#include <QByteArray>
#include <cmath>
#include <cstdint>
#include <limits>
#include <variant>

namespace orlamo::qt {

namespace {

using Json = nlohmann::ordered_json;
constexpr const char* dataKey = "data";
constexpr int deepestNesting = 32;  // copying, comparing and writing a value take a frame of the stack for each level

UserDefaults::Value dataOf(const Json& entry) {
    if (entry.size() != 1 || !entry.contains(dataKey) || !entry[dataKey].is_string()) return {};
    const QByteArray base64 = QByteArray::fromStdString(entry[dataKey].get<std::string>());
    const auto decoded = QByteArray::fromBase64Encoding(base64, QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded) return {};
    return UserDefaults::Data((*decoded).begin(), (*decoded).end());
}

Json toJson(const UserDefaults::Data& data) {
    const QByteArray bytes(reinterpret_cast<const char*>(data.data()), static_cast<qsizetype>(data.size()));
    return {{dataKey, bytes.toBase64().toStdString()}};
}

struct ToJson {
    Json operator()(std::monostate) const { return nullptr; }
    Json operator()(const UserDefaults::Data& data) const { return toJson(data); }
    template <class T>
    Json operator()(const T& value) const {
        return value;
    }
};

}  // namespace

std::optional<SettingsJson> SettingsJson::parse(std::string_view text) {
    bool isTooDeep = false;
    const auto keeps = [&isTooDeep](int depth, Json::parse_event_t, const Json&) {
        isTooDeep = isTooDeep || depth > deepestNesting;
        return !isTooDeep;
    };
    SettingsJson settings;
    settings.object_ = Json::parse(text, keeps, false);
    if (isTooDeep || !settings.object_.is_object()) return std::nullopt;
    return settings;
}

UserDefaults::Value SettingsJson::value(std::string_view key) const {
    const auto found = object_.find(key);
    if (found == object_.end()) return {};
    const Json& entry = *found;
    if (entry.is_boolean()) return entry.get<bool>();
    if (entry.is_number_unsigned() && entry.get<std::uint64_t>() > std::numeric_limits<std::int64_t>::max()) {
        return entry.get<double>();
    }
    if (entry.is_number_integer()) return entry.get<std::int64_t>();
    if (entry.is_number_float()) return entry.get<double>();
    if (entry.is_string()) return entry.get<std::string>();
    return entry.is_object() ? dataOf(entry) : UserDefaults::Value{};
}

bool SettingsJson::setValue(const std::string& key, const UserDefaults::Value& value) {
    if (std::holds_alternative<std::monostate>(value)) {
        object_.erase(key);
        return true;
    }
    const auto* const number = std::get_if<double>(&value);
    if (number != nullptr && !std::isfinite(*number)) return false;
    object_[key] = std::visit(ToJson{}, value);
    return true;
}

std::string SettingsJson::text() const {
    // A text that is not UTF-8 cannot be kept as it is; what cannot be read in it is replaced.
    return object_.dump(4, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace orlamo::qt
