#include "platform/desktops/SharedSettings.h"

#include <utility>

namespace orlamo::desktops {

class SharedSettings::Follower final : public SettingsSource {
public:
    explicit Follower(SharedSettings& settings) : settings_(settings) {}

    void refresh() override {
        if (!std::exchange(settings_.isFresh_, false)) settings_.read();
    }
    std::optional<std::vector<std::string>> texts(std::string_view schema, std::string_view key) override {
        return settings_.texts(schema, key);
    }
    std::optional<std::map<std::string, std::string>> properties(std::string_view channel) override {
        return settings_.properties(channel);
    }
    std::optional<std::vector<GlobalShortcut>> globalShortcuts(std::span<const std::string_view> components) override {
        return settings_.globalShortcuts(components);
    }
    std::optional<std::string> file(std::string_view path, std::size_t limit) override {
        return settings_.file(path, limit);
    }

private:
    SharedSettings& settings_;
};

SharedSettings::SharedSettings(std::unique_ptr<SettingsSource> source) : source_(std::move(source)) {}

SharedSettings::~SharedSettings() = default;

std::unique_ptr<SettingsSource> SharedSettings::follower() {
    return std::make_unique<Follower>(*this);
}

void SharedSettings::refresh() {
    read();
    isFresh_ = true;
}

void SharedSettings::read() {
    source_->refresh();
    properties_.clear();
    shortcuts_.clear();
    hasShortcuts_ = true;
}

// The source reads a schema once in any case.
std::optional<std::vector<std::string>> SharedSettings::texts(std::string_view schema, std::string_view key) {
    return source_->texts(schema, key);
}

std::optional<std::map<std::string, std::string>> SharedSettings::properties(std::string_view channel) {
    const auto found = properties_.find(channel);
    if (found != properties_.end()) return found->second;
    return properties_[std::string(channel)] = source_->properties(channel);
}

std::optional<std::vector<GlobalShortcut>> SharedSettings::globalShortcuts(
    std::span<const std::string_view> components) {
    std::vector<std::string_view> unknown;
    for (const auto component : components) {
        if (!shortcuts_.contains(component)) unknown.push_back(component);
    }
    if (hasShortcuts_ && !unknown.empty()) {
        const auto answer = source_->globalShortcuts(unknown);
        hasShortcuts_ = answer.has_value();
        for (const auto component : unknown) shortcuts_[std::string(component)];
        for (const auto& each : answer.value_or(std::vector<GlobalShortcut>())) {
            shortcuts_[each.component].push_back(each);
        }
    }
    if (!hasShortcuts_) return std::nullopt;
    std::vector<GlobalShortcut> all;
    for (const auto component : components) {
        const auto& known = shortcuts_.find(component)->second;
        all.insert(all.end(), known.begin(), known.end());
    }
    return all;
}

std::optional<std::string> SharedSettings::file(std::string_view path, std::size_t limit) {
    return source_->file(path, limit);
}

}  // namespace orlamo::desktops
