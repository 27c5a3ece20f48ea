#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

// The catalogue of the system's own shortcuts. Main thread only.
namespace orlamo {

struct SystemShortcutRecord {
    std::optional<std::string> title;     // "Title": "Keyboard//Move focus to the Dock", with or without a subgroup
    std::optional<std::string> modifier;  // "Modifier": symbols; may be empty
    std::optional<std::string> key;       // "key": never "??"

    /// The field of that key name; absent for any other name.
    const std::optional<std::string>& operator[](std::string_view name) const;
    bool operator==(const SystemShortcutRecord&) const = default;
};

/// A heading text ("Keyboard", "Accessibility/Zoom") or a shortcut.
using SystemShortcutEntry = std::variant<std::string, SystemShortcutRecord>;

struct SystemKeyCombo {
    std::int64_t keycode = 0;        // virtual key code
    std::int64_t modifierFlags = 0;  // EventFlags; 0 when the preference holds no mask
    bool operator==(const SystemKeyCombo&) const = default;
};

/// The catalogue that the panel shows. The panel view puts the result of loadSystemShortcuts here.
inline std::vector<SystemShortcutEntry> systemShortcutList;
/// What a click on the n-th record replays; one pair per record of the latest catalogue.
inline std::vector<SystemKeyCombo> systemKeyCombos;

/// The wanted hot keys in the order of display: "ID:Category//Name" or "ID:Category//Subgroup//Name".
extern const std::span<const std::string_view> systemShortcutIDTable;

/// Builds the catalogue from the system's hot-key preferences, with the shipped default list for entries that are
/// missing, malformed, empty or switched off. Empty when there are no such preferences. Replaces systemKeyCombos.
std::vector<SystemShortcutEntry> loadSystemShortcuts();

/// One line for the log: ["Keyboard", {"Modifier": "⌃", "Title": "Keyboard//...", "key": "F3"}, ...]
std::string describe(const std::vector<SystemShortcutEntry>& entries);

}  // namespace orlamo
