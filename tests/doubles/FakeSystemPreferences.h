#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/SystemPreferences.h"

namespace orlamo {

/// What is stored becomes readable with the next synchronize of its domain.
class FakeSystemPreferences : public SystemPreferences {
public:
    void CFPreferencesAppSynchronize(std::string_view domain) override {
        synchronized.emplace_back(domain);
        visible[std::string(domain)] = stored[std::string(domain)];
    }
    PropertyList CFPreferencesCopyAppValue(std::string_view key, std::string_view domain) override {
        const auto& values = visible[std::string(domain)];
        const auto found = values.find(key);
        return found == values.end() ? PropertyList() : found->second;
    }

    void set(std::string_view domain, std::string_view key, PropertyList value) {
        stored[std::string(domain)].insert_or_assign(std::string(key), std::move(value));
    }
    void setHotKeys(PropertyList value) { set("com.apple.symbolichotkeys", "AppleSymbolicHotKeys", std::move(value)); }
    /// An entry of the hot-key dictionary.
    static PropertyList hotKey(bool enabled, std::int64_t keyCode, std::int64_t mask) {
        const PropertyList::Array parameters{std::int64_t{65535}, keyCode, mask};
        return PropertyList::Dictionary{{"enabled", enabled},
                                        {"value", PropertyList::Dictionary{{"parameters", parameters}}}};
    }

    std::vector<std::string> synchronized;

private:
    std::map<std::string, PropertyList::Dictionary> stored;
    std::map<std::string, PropertyList::Dictionary> visible;
    Installation installation_{*this};
};

}  // namespace orlamo
