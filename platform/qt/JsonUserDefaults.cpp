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
    Parsed parsed;
    if (content.state == SettingsFile::State::unreadable) {
        complain(content.error);
        parsed.isKnown = false;
    }
    if (content.state != SettingsFile::State::read || content.text.empty()) return parsed;
    if (auto settings = SettingsJson::parse(content.text)) {
        parsed.settings = std::move(*settings);
    } else {
        complain(file_.path().string() + " is damaged and reads as empty; it will be kept aside before the next write");
        parsed.isDamaged = true;
    }
    return parsed;
}

void JsonUserDefaults::refresh() {
    if (wasRead_ && !file_.hasChanged()) return;
    Parsed parsed = parse(file_.read());
    wasRead_ = parsed.isKnown;
    if (!wasRead_) return;
    forgetUnfoundedValues(parsed.settings);
    stored_ = std::move(parsed.settings);
}

void JsonUserDefaults::forgetUnfoundedValues(const SettingsJson& stored) {
    isKnown_ = true;
    for (const std::string& key : std::exchange(unfounded_, {})) {
        if (stored.value(key) == Value{}) continue;
        unsaved_.erase(key);
        logLine("settings: " + key + " stays as stored; it was set while the file could not be read");
    }
}

bool JsonUserDefaults::flush() {
    if (unsaved_.empty()) return true;
    SettingsJson merged;
    const std::string error = file_.replace([&](const SettingsFile::Content& content) {
        Parsed parsed = parse(content);
        merged = std::move(parsed.settings);
        forgetUnfoundedValues(merged);
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
    refresh();
    if (const auto found = unsaved_.find(key); found != unsaved_.end()) return found->second;
    return stored_.value(key);
}

void JsonUserDefaults::setObject(std::string_view key, Value value) {
    std::string name(key);
    if (!SettingsJson().setValue(name, value)) {
        logLine("settings: " + name + ": a number that is not finite cannot be stored");
        return;
    }
    const auto observed = observed_.find(name);
    if (observed != observed_.end()) observed->second = value;
    unsaved_.insert_or_assign(name, std::move(value));
    if (!isKnown_) refresh();
    if (!isKnown_) unfounded_.insert(name);
    flush();
    if (observed == observed_.end()) return;
    if (!watch_.isWatching()) watch();  // the folder may exist only now
    didChangeValueForKey(name);
}

void JsonUserDefaults::willObserveKey(const std::string& key) {
    observed_.emplace(key, objectForKey(key));
    if (!watch_.isWatching()) watch();
}

void JsonUserDefaults::watch() {
    const bool watches = watch_.start(file_.path(), [this] { fileMayHaveChanged(); });
    std::error_code code;
    if (watches || !std::filesystem::exists(file_.path().parent_path(), code)) return;
    complain("the system watches no more folders: changes made by other programs are noticed late");
}

// Some programs remove or empty a file before they write it anew: what stands there a moment later is what they mean.
void JsonUserDefaults::fileMayHaveChanged() {
    constexpr double settlingSeconds = 0.05;
    if (pendingReport_ != nullptr) return;
    pendingReport_ = std::make_shared<bool>(true);
    RunLoop::shared().asyncAfter(settlingSeconds, [this, pending = std::weak_ptr<bool>(pendingReport_)] {
        if (!pending.expired()) reportChanges();
    });
}

// What this process wrote itself is known already; what is left came from outside.
void JsonUserDefaults::reportChanges() {
    pendingReport_.reset();
    if (!watch_.isWatching()) watch();
    std::vector<std::string> changed;
    for (auto& [key, last] : observed_) {
        Value now = objectForKey(key);
        if (now == last) continue;
        last = std::move(now);
        changed.push_back(key);
    }
    for (const std::string& key : changed) didChangeValueForKey(key);
}

void JsonUserDefaults::removeObject(std::string_view key) {
    setObject(key, std::monostate{});
}

bool JsonUserDefaults::synchronize() {
    return flush();
}

}  // namespace orlamo::qt
