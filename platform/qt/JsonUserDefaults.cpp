#include "platform/qt/JsonUserDefaults.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <utility>

#include "platform/Log.h"

namespace orlamo::qt {

namespace {

std::filesystem::path homeFolder() {
    if (const char* const home = std::getenv("HOME"); home != nullptr && *home == '/') return home;
    const passwd* const user = getpwuid(getuid());
    return user != nullptr ? user->pw_dir : "/";
}

}  // namespace

std::filesystem::path settingsPath() {
    const char* const configured = std::getenv("XDG_CONFIG_HOME");
    const std::filesystem::path folder =
        configured != nullptr && *configured == '/' ? std::filesystem::path(configured) : homeFolder() / ".config";
    return folder / "orlamo" / "settings.json";
}

// The same trouble at every read is one line.
void JsonUserDefaults::complain(const std::string& error) {
    if (error == lastComplaint_) return;
    lastComplaint_ = error;
    logLine("settings: " + error);
}

JsonUserDefaults::Parsed JsonUserDefaults::parse(const SettingsFile::Content& content) {
    if (content.state == SettingsFile::State::unreadable) complain(content.error);
    if (content.state != SettingsFile::State::read || content.text.empty()) return {};
    auto settings = SettingsJson::parse(content.text);
    if (settings) return {std::move(*settings), false};
    complain(file_.path().string() + " is damaged and reads as empty; it will be kept aside before the next write");
    return {{}, true};
}

void JsonUserDefaults::refresh() {
    if (wasRead_ && !file_.hasChanged()) return;
    wasRead_ = true;
    stored_ = parse(file_.read()).settings;
}

bool JsonUserDefaults::flush() {
    if (unsaved_.empty()) return true;
    SettingsJson merged;
    const std::string error = file_.replace([&](const SettingsFile::Content& content) {
        Parsed parsed = parse(content);
        merged = std::move(parsed.settings);
        const SettingsJson before = merged;
        for (const auto& [key, value] : unsaved_) merged.setValue(key, value);
        SettingsFile::Replacement replacement;
        replacement.setsAside = parsed.isDamaged;
        if (!(merged == before) || content.state == SettingsFile::State::absent || mustWrite_) {
            replacement.text = merged.text();
        }
        return replacement;
    });
    mustWrite_ = !error.empty();
    if (mustWrite_) {
        logLine("settings: " + error + "; the change is kept until it can be written");
        return false;
    }
    stored_ = std::move(merged);
    unsaved_.clear();
    lastComplaint_.clear();
    return true;
}

UserDefaults::Value JsonUserDefaults::objectForKey(std::string_view key) {
    if (const auto found = unsaved_.find(key); found != unsaved_.end()) return found->second;
    refresh();
    return stored_.value(key);
}

void JsonUserDefaults::setObject(std::string_view key, Value value) {
    std::string name(key);
    if (!SettingsJson().setValue(name, value)) {
        logLine("settings: " + name + ": a number that is not finite cannot be stored");
        return;
    }
    unsaved_.insert_or_assign(std::move(name), std::move(value));
    flush();
}

void JsonUserDefaults::removeObject(std::string_view key) {
    setObject(key, std::monostate{});
}

bool JsonUserDefaults::synchronize() {
    return flush();
}

}  // namespace orlamo::qt
