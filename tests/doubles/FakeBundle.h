#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

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

    FakeBundle() = default;
    FakeBundle(const FakeBundle&) = delete;
    FakeBundle& operator=(const FakeBundle&) = delete;
    ~FakeBundle() override { current_ = before_; }

private:
    /// What is installed. Who keeps the bundle for the life of the process keeps this, and reads the fake of the test
    /// that runs.
    class Lasting : public Bundle {
    public:
        std::string bundleIdentifier() const override { return current_->bundleIdentifier(); }
        PropertyList infoDictionaryValue(std::string_view key) const override {
            return current_->infoDictionaryValue(key);
        }
        std::optional<std::string> pathForResource(std::string_view name, std::string_view type) const override {
            return current_->pathForResource(name, type);
        }
        std::string localizedString(std::string_view key) const override { return current_->localizedString(key); }
    };

    inline static FakeBundle* current_ = nullptr;
    inline static Lasting lasting_;
    FakeBundle* before_ = std::exchange(current_, this);
    Installation installation_{lasting_};
};

}  // namespace orlamo
