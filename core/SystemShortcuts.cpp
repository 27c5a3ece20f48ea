#include "core/SystemShortcuts.h"

#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>
#include <utility>

#include "core/KeyManager.h"
#include "platform/Bundle.h"
#include "platform/Log.h"
#include "platform/PropertyList.h"
#include "platform/SystemPreferences.h"

namespace orlamo {

namespace {

constexpr std::string_view domain = "com.apple.symbolichotkeys";
constexpr std::string_view hotKeys = "AppleSymbolicHotKeys";
constexpr std::string_view separator = "//";

std::string joined(std::string_view before, std::string_view text, std::string_view after = {}) {
    return std::string(before).append(text).append(after);
}

bool isUsable(const PropertyList& entry) {
    const PropertyList* const enabled = entry.at("enabled");
    const PropertyList* const value = entry.at("value");
    if (enabled == nullptr || value == nullptr) return false;
    const bool* const isEnabled = enabled->get<bool>();
    const auto* const assignment = value->get<PropertyList::Dictionary>();
    return isEnabled != nullptr && *isEnabled && assignment != nullptr && !assignment->empty();
}

/// The bytes of a file, or why they cannot be read.
std::variant<PropertyList::Data, std::string> readFile(const std::string& path) {
    const auto failure = [&path](int error) { return path + ": " + std::generic_category().message(error); };
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"), &std::fclose);
    if (file == nullptr) return failure(errno);
    PropertyList::Data bytes;
    for (;;) {
        constexpr std::size_t chunk = 16384;
        const std::size_t before = bytes.size();
        bytes.resize(before + chunk);
        const std::size_t got = std::fread(bytes.data() + before, 1, chunk, file.get());
        bytes.resize(before + got);
        if (got == chunk) continue;
        if (std::ferror(file.get()) != 0) return failure(errno);
        return bytes;
    }
}

PropertyListParser::Result parseFile(const std::string& path) {
    const auto contents = readFile(path);
    if (const auto* const error = std::get_if<std::string>(&contents)) return {{}, *error};
    return PropertyListParser::shared().propertyListWithData(std::get<PropertyList::Data>(contents));
}

/// The usable entry of the shipped list. Read anew each time: what is on the disk now counts.
std::optional<PropertyList> entryOfDefaultList(std::string_view id) {
    const auto path = Bundle::shared().pathForResource(domain, "plist");
    if (!path) {
        logLine("Plist file not found in the bundle");
        return std::nullopt;
    }
    const auto [root, error] = parseFile(*path);
    if (!error.empty()) {
        logLine("Error: " + error);
        return std::nullopt;
    }
    if (root.get<PropertyList::Dictionary>() == nullptr) {
        logLine("Invalid plist format");
        return std::nullopt;
    }
    logLine("Successfully loaded plist file:");
    const PropertyList* const entries = root.at(hotKeys);
    const PropertyList* const entry = entries == nullptr ? nullptr : entries->at(id);
    if (entry == nullptr) return std::nullopt;
    logLine(joined("数字:", id));
    logLine("-----------");
    logLine(joined("详细:", entry->description()));
    if (!isUsable(*entry)) return std::nullopt;
    return *entry;
}

std::optional<PropertyList> entryOf(std::string_view id, const PropertyList& preferences) {
    const PropertyList* const entry = preferences.at(id);
    if (entry != nullptr && isUsable(*entry)) {
        logLine(joined("有直:", id));
        return *entry;
    }
    logLine(joined("----------- 没有值: ", id, " -------------- "));
    return entryOfDefaultList(id);
}

std::optional<std::int64_t> integerAt(const PropertyList::Array& array, std::size_t index) {
    if (index >= array.size()) return std::nullopt;
    const auto* const number = array[index].get<std::int64_t>();
    if (number == nullptr) return std::nullopt;
    return *number;
}

/// What a usable entry assigns; none without a key code.
std::optional<SystemKeyCombo> comboOf(const PropertyList& entry) {
    const PropertyList* const parameters = entry.at("value")->at("parameters");
    const auto* const array = parameters == nullptr ? nullptr : parameters->get<PropertyList::Array>();
    if (array == nullptr) return std::nullopt;
    const auto keycode = integerAt(*array, 1);
    if (!keycode) return std::nullopt;
    return SystemKeyCombo{*keycode, integerAt(*array, 2).value_or(0)};
}

class Catalogue {
public:
    void append(std::string_view path, const SystemKeyCombo& combo) {
        const std::string_view keyText = KeyManager::shared().keyTextForKeyCode(combo.keycode);
        if (keyText == "??") return;
        appendHeaders(path);
        const auto mask = static_cast<std::uint64_t>(combo.modifierFlags);
        const std::string_view modifier = KeyManager::shared().modifierSymbolsForMask(mask);
        entries_.emplace_back(SystemShortcutRecord{std::string(path), std::string(modifier), std::string(keyText)});
        systemKeyCombos.push_back(combo);
    }
    std::vector<SystemShortcutEntry> take() { return std::move(entries_); }

private:
    // Category//Name or Category//Subgroup//Name
    void appendHeaders(std::string_view path) {
        const std::size_t first = path.find(separator);
        const std::size_t last = path.rfind(separator);
        const std::string_view category = path.substr(0, first);
        if (category != lastCategory_) {
            entries_.emplace_back(std::string(category));
            lastCategory_ = category;
        }
        if (first == last) return;
        const std::size_t start = first + separator.size();
        const std::string_view subgroup = path.substr(start, last - start);
        if (subgroup != lastSubgroup_) {
            entries_.emplace_back(joined(category, "/", subgroup));
            lastSubgroup_ = subgroup;
        }
    }

    std::vector<SystemShortcutEntry> entries_;
    std::string_view lastCategory_;
    std::string_view lastSubgroup_;
};

PropertyList printed(const SystemShortcutRecord& record) {
    PropertyList::Dictionary dictionary;
    for (const char* const key : {"Title", "Modifier", "key"}) {
        if (const auto& value = record[key]) dictionary.emplace(key, *value);
    }
    return dictionary;
}

PropertyList printed(const std::string& heading) {
    return heading;
}

}  // namespace

const std::optional<std::string>& SystemShortcutRecord::operator[](std::string_view name) const {
    static const std::optional<std::string> absent;
    if (name == "Title") return title;
    if (name == "Modifier") return modifier;
    return name == "key" ? key : absent;
}

std::vector<SystemShortcutEntry> loadSystemShortcuts() {
    systemKeyCombos.clear();
    SystemPreferences::shared().CFPreferencesAppSynchronize(domain);
    const PropertyList preferences = SystemPreferences::shared().CFPreferencesCopyAppValue(hotKeys, domain);
    if (preferences.get<PropertyList::Dictionary>() == nullptr) return {};

    Catalogue catalogue;
    for (const std::string_view row : systemShortcutIDTable) {
        const std::size_t colon = row.find(':');
        const auto entry = entryOf(row.substr(0, colon), preferences);
        if (!entry) continue;
        if (const auto combo = comboOf(*entry)) catalogue.append(row.substr(colon + 1), *combo);
    }
    return catalogue.take();
}

std::string describe(const std::vector<SystemShortcutEntry>& entries) {
    PropertyList::Array list;
    for (const SystemShortcutEntry& entry : entries) {
        list.push_back(std::visit([](const auto& value) { return printed(value); }, entry));
    }
    return PropertyList(std::move(list)).description();
}

}  // namespace orlamo
