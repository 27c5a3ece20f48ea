#pragma once

#include <memory>

#include "platform/desktops/SettingsSource.h"

namespace orlamo::desktops {

/// Settings that two readers, one shortly after the other, ask for once: what was answered, or was not, stays until the
/// next refresh().
class SharedSettings final : public SettingsSource {
public:
    explicit SharedSettings(std::unique_ptr<SettingsSource> source);
    ~SharedSettings() override;

    /// The second reader's side. Its first refresh() after one of these settings themselves does nothing, so that what
    /// the first reader has just read counts. Must not outlive them.
    std::unique_ptr<SettingsSource> follower();

    /// What was read has no second reader any more, as where what it was read for did not come about.
    void forget() { isFresh_ = false; }

    void refresh() override;
    std::optional<std::vector<std::string>> texts(std::string_view schema, std::string_view key) override;
    std::optional<std::map<std::string, std::string>> properties(std::string_view channel) override;
    std::optional<std::vector<GlobalShortcut>> globalShortcuts(std::span<const std::string_view> components) override;
    std::optional<std::string> file(std::string_view path, std::size_t limit) override;

private:
    class Follower;
    void read();

    using Properties = std::optional<std::map<std::string, std::string>>;

    std::unique_ptr<SettingsSource> source_;
    bool isFresh_ = false;  // since the follower looked
    std::map<std::string, Properties, std::less<>> properties_;
    std::map<std::string, std::vector<GlobalShortcut>, std::less<>> shortcuts_;  // by component
    bool hasShortcuts_ = true;                                                   // false: nobody answers
};

}  // namespace orlamo::desktops
