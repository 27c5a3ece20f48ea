#include "platform/desktops/DesktopPreferences.h"

#include "platform/Log.h"
#include "platform/desktops/OpenboxHotKeys.h"
#include "platform/desktops/SymbolicHotKeys.h"
#include "platform/desktops/Text.h"

namespace orlamo::desktops {

namespace {

constexpr std::string_view hotKeyDomain = "com.apple.symbolichotkeys";
constexpr std::string_view hotKeyKey = "AppleSymbolicHotKeys";

}  // namespace

DesktopPreferences::DesktopPreferences(std::unique_ptr<SettingsSource> source, CurrentDesktop currentDesktop,
                                       CurrentWindowManager currentWindowManager)
    : source_(std::move(source)),
      currentDesktop_(std::move(currentDesktop)),
      currentWindowManager_(std::move(currentWindowManager)) {}

DesktopPreferences::~DesktopPreferences() = default;

void DesktopPreferences::CFPreferencesAppSynchronize(std::string_view domain) {
    if (domain == hotKeyDomain) hotKeys_.reset();
}

PropertyList DesktopPreferences::CFPreferencesCopyAppValue(std::string_view key, std::string_view domain) {
    if (domain != hotKeyDomain || key != hotKeyKey) return {};
    if (!hotKeys_) hotKeys_ = read();
    return *hotKeys_;
}

PropertyList DesktopPreferences::read() {
    const auto names = currentDesktop_();
    const auto desktop = desktopOfNames(names);
    if (!desktop) return readWindowManager();
    source_->refresh();
    auto hotKeys = symbolicHotKeys(*desktop, *source_);
    if (hotKeys == PropertyList()) logLine("The shortcuts of the desktop \"" + names + "\" cannot be read");
    return hotKeys;
}

PropertyList DesktopPreferences::readWindowManager() {
    if (!currentWindowManager_) return {};
    const auto [name, configuration] = currentWindowManager_();
    if (!equalIgnoringCase(name, "Openbox")) return {};
    source_->refresh();
    return openboxHotKeys(configuration, *source_);
}

}  // namespace orlamo::desktops
