#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Bundle.h"

namespace orlamo {

class FakeBundle : public Bundle {
public:
    std::string bundleIdentifier() const override { return identifier; }

    PropertyList infoDictionaryValue(std::string_view key) const override {
        const auto found = info.find(key);
        return found == info.end() ? PropertyList() : found->second;
    }

    std::optional<std::string> pathForResource(std::string_view name, std::string_view type) const override {
        const auto found = resources.find(std::string(name) + "." + std::string(type));
        if (found == resources.end()) return std::nullopt;
        return found->second;
    }

    std::string localizedString(std::string_view key) const override {
        const auto found = strings.find(key);
        return found == strings.end() ? std::string(key) : found->second;
    }

    std::string identifier = "org.orlamo.Orlamo";
    PropertyList::Dictionary info;
    std::map<std::string, std::string, std::less<>> resources;  // "name.type" to a path
    std::map<std::string, std::string, std::less<>> strings;

private:
    Installation installation_{*this};
};

}  // namespace orlamo
