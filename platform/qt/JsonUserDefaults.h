#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>

#include "platform/UserDefaults.h"
#include "platform/qt/FileWatch.h"
#include "platform/qt/SettingsFile.h"
#include "platform/qt/SettingsJson.h"

namespace orlamo::qt {

/// orlamo/settings.json in the user's configuration folder.
std::filesystem::path settingsPath();

/// Settings in one JSON file, see SettingsJson and SettingsFile. A damaged file reads as empty and is kept aside before
/// it is replaced. What was set while the file could not be read even once does not replace what it turns out to hold:
/// it may be a first value, set because nothing seemed to be stored.
class JsonUserDefaults final : public UserDefaults {
public:
    explicit JsonUserDefaults(std::filesystem::path path) : file_(std::move(path)) {}

    Value objectForKey(std::string_view key) override;
    void setObject(std::string_view key, Value value) override;
    void removeObject(std::string_view key) override;
    bool synchronize() override;

protected:
    void willObserveKey(const std::string& key) override;

private:
    struct Parsed {
        SettingsJson settings;
        bool isDamaged = false;
        bool isKnown = true;  // false when the file could not be read
    };

    Parsed parse(const SettingsFile::Content& content);
    void refresh();
    bool flush();
    void forgetUnfoundedValues(const SettingsJson& stored);
    void complain(const std::string& error);
    void watch();
    void fileMayHaveChanged();
    void reportChanges();

    SettingsFile file_;
    bool wasRead_ = false;
    bool isKnown_ = false;  // what the file holds; stays so when it cannot be read any more
    SettingsJson stored_;
    std::set<std::string, std::less<>> unfounded_;       // of unsaved_: set before isKnown_
    std::map<std::string, Value, std::less<>> unsaved_;  // set here and not on the disk yet
    std::string lastComplaint_;
    FileWatch watch_;
    std::shared_ptr<bool> pendingReport_;                 // a look at the file is due
    std::map<std::string, Value, std::less<>> observed_;  // what the observers were told last
    bool mustWrite_ = false;                              // the last write failed, perhaps after the file was replaced
};

}  // namespace orlamo::qt
