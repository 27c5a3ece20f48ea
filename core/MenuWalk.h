#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/ShortcutRecords.h"
#include "core/WorkList.h"
#include "platform/Accessibility.h"

namespace orlamo {

/// One walk over a menu bar. Fills the side lists of ShortcutRecords.h on its way.
class MenuWalk {
public:
    /// The items of the menu bar, from left to right. What a menu's visits leave over is walked with the next menu.
    void walkMenuBarItem(const AXUIElementRef& item, std::size_t index);
    /// The entries, with the application's name last.
    std::vector<MenuEntry> finish();

private:
    static constexpr int visitsPerMenu = 1000;

    struct Item {
        AXUIElementRef element;
        std::optional<std::string> title;
        std::string_view modifierSymbols;
        std::int64_t modifiers = 0;
        std::string keyCharacter;
        std::string glyph;
    };

    bool refillFromPending();
    void visit(const AXUIElementRef& element);
    void visitContainer(const AXUIElementRef& element, std::int64_t childCount);
    void visitItem(const AXUIElementRef& element);
    static std::optional<Item> readShortcutItem(const AXUIElementRef& element);
    void keep(Item item);
    void addHeaders();

    WorkList queue;
    WorkList pending;  // the rest of a menu while one of its submenus is walked
    std::optional<std::string> submenuTitle;
    std::string topTitle;
    std::optional<std::string> lastTopHeader;
    std::optional<std::string> lastSubmenuHeader;
    std::optional<std::string> appName;
    std::vector<MenuEntry> result;
};

/// The texts of the accessibility interface's modifier number; none for a number whose items are not shown.
std::optional<std::string_view> modifierSymbolsOfMenuItem(std::int64_t modifiers);

/// The children of an element; none on an error in counting or reading.
std::optional<std::vector<AXUIElementRef>> readChildren(const AXUIElementRef& element);

}  // namespace orlamo
