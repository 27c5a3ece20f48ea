#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/Accessibility.h"
#include "platform/Geometry.h"

// The data that harvesting hands to the panel. Main thread only; texts are UTF-8.
namespace orlamo {

/// One menu item of the frontmost application that has a shortcut. Harvesting fills every field; a reader can look
/// them up by key name and has to live with an absent one.
struct MenuItemRecord {
    std::optional<std::string> path;              // "Path": "Edit", or "Edit/Find" inside a submenu
    std::optional<std::string> title;             // "Title"
    std::optional<std::string> modifier;          // "Modifier": "⇧⌘", "fn", ...; never empty from harvesting
    std::optional<std::string> menuItemCmdChar;   // "MenuItemCmdChar": may be empty
    std::optional<std::string> menuItemCmdGlyph;  // "MenuItemCmdGlyph": a decimal number; may be empty

    /// The field of that key name; absent for any other name.
    const std::optional<std::string>& operator[](std::string_view key) const;
    bool operator==(const MenuItemRecord&) const = default;
};

/// A heading text or an item.
using MenuEntry = std::variant<std::string, MenuItemRecord>;

struct MenuItemKeyCode {
    std::int64_t keycode = 0;        // virtual key code of the item's key character
    std::int64_t modifierFlags = 0;  // the accessibility interface's modifier number; 0 when the item has none
    bool operator==(const MenuItemKeyCode&) const = default;
};

/// What the latest harvest found, in menu order, ending with the application's name.
inline std::vector<MenuEntry> appMenuItems;
/// The titles of the records whose title is not empty, and their elements: parallel lists.
inline std::vector<std::string> menuItemTitles;
inline std::vector<AXUIElementRef> menuItemElements;
/// One pair per record whose key character has a key code. Harvesting only appends.
inline std::vector<MenuItemKeyCode> menuItemKeyCodes;

/// A drawn cell of the system catalogue.
struct ShortcutsModel {
    ShortcutsModel(CGRect rect, std::string title, std::optional<std::string> path, std::string modifier,
                   std::string keyString, std::string menuItemCmdGlyph, std::int64_t keycode,
                   std::int64_t modifierFlags);

    CGRect rect;  // points, in the panel view's coordinates
    std::string title;
    std::optional<std::string> path;
    std::string modifier;
    std::string keyString;
    std::string menuItemCmdGlyph;
    std::int64_t keycode;
    std::int64_t modifierFlags;
};

/// A drawn cell of the frontmost application.
struct CurrentShortcutsModel {
    CurrentShortcutsModel(CGRect rect, std::string title, std::string modifier, std::string keyString,
                          std::string menuItemCmdGlyph, std::int64_t keycode, std::int64_t modifierFlags,
                          AXUIElementRef element);

    CGRect rect;  // points, in the panel view's coordinates
    std::string title;
    std::string modifier;
    std::string keyString;
    std::string menuItemCmdGlyph;
    std::int64_t keycode;
    std::int64_t modifierFlags;
    AXUIElementRef element;
};

/// One line for the log: ["Edit", {"MenuItemCmdChar": "C", ..., "Title": "Copy"}, ...]; absent fields are left out.
std::string describe(const std::vector<MenuEntry>& entries);

}  // namespace orlamo
