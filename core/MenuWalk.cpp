#include "core/MenuWalk.h"

#include <array>
#include <utility>

#include "core/KeyManager.h"
#include "platform/Log.h"

namespace orlamo {

namespace {

struct ModifierRow {
    std::int64_t modifiers;  // 1 Shift, 2 Option, 4 Control, 8 no Command
    std::string_view symbols;
};

constexpr std::array modifierRows{
    ModifierRow{0, "⌘"},  ModifierRow{1, "⇧⌘"},  ModifierRow{2, "⌥⌘"},  ModifierRow{3, "⌥⇧⌘"},
    ModifierRow{4, "⌃⌘"}, ModifierRow{5, "⌃⇧⌘"}, ModifierRow{6, "⌃⌥⌘"}, ModifierRow{7, "⌃⌥⇧⌘"},
    ModifierRow{12, "⌃"}, ModifierRow{13, "⌃⇧"}, ModifierRow{24, "fn"},
};

// The logo that stands for the session menu's title.
constexpr std::string_view appleLogo = "\uF8FF";

AXValue readAttribute(const AXUIElementRef& element, std::string_view name) {
    AXValue value;
    if (Accessibility::shared().AXUIElementCopyAttributeValue(element, name, value) != AXError::success) return {};
    return value;
}

std::optional<std::string> readText(const AXUIElementRef& element, std::string_view name) {
    AXValue value = readAttribute(element, name);
    auto* const text = std::get_if<std::string>(&value);
    if (text == nullptr) return std::nullopt;
    return std::move(*text);
}

std::optional<std::int64_t> countChildren(const AXUIElementRef& element) {
    std::int64_t count = -1;
    const AXError error = Accessibility::shared().AXUIElementGetAttributeValueCount(element, "AXChildren", count);
    if (error != AXError::success) return std::nullopt;
    return count;
}

std::optional<std::vector<AXUIElementRef>> readChildren(const AXUIElementRef& element, std::int64_t count) {
    std::vector<AXUIElementRef> children;
    const AXError error =
        Accessibility::shared().AXUIElementCopyAttributeValues(element, "AXChildren", 0, count, children);
    if (error != AXError::success) return std::nullopt;
    return children;
}

}  // namespace

std::optional<std::string_view> modifierSymbolsOfMenuItem(std::int64_t modifiers) {
    for (const ModifierRow& row : modifierRows) {
        if (row.modifiers == modifiers) return row.symbols;
    }
    return std::nullopt;
}

std::optional<std::vector<AXUIElementRef>> readChildren(const AXUIElementRef& element) {
    const auto count = countChildren(element);
    if (!count) return std::nullopt;
    return readChildren(element, *count);
}

void MenuWalk::walkMenuBarItem(const AXUIElementRef& item, std::size_t index) {
    const auto title = readText(item, "AXTitle");
    topTitle = title.value_or("");
    if (index == 1) appName = title;
    queue.append(item);
    for (int visits = 0; visits < visitsPerMenu; ++visits) {
        if (queue.empty() && !refillFromPending()) return;
        visit(queue.take());
    }
}

std::vector<MenuEntry> MenuWalk::finish() {
    if (appName && !appName->empty()) {
        logLine(*appName);
        result.emplace_back(*appName);
    }
    return std::move(result);
}

bool MenuWalk::refillFromPending() {
    if (pending.empty()) return false;
    std::swap(queue, pending);
    submenuTitle.reset();
    return true;
}

void MenuWalk::visit(const AXUIElementRef& element) {
    const auto childCount = countChildren(element);
    if (!childCount || *childCount < 0) return;
    if (*childCount > 0) return visitContainer(element, *childCount);
    visitItem(element);
}

void MenuWalk::visitContainer(const AXUIElementRef& element, std::int64_t childCount) {
    auto children = readChildren(element, childCount);
    if (!children) return;
    auto title = readText(element, "AXTitle");
    if (title != topTitle && pending.empty()) {
        std::swap(queue, pending);
        submenuTitle = std::move(title);
    }
    for (AXUIElementRef& child : *children) queue.append(std::move(child));
}

void MenuWalk::visitItem(const AXUIElementRef& element) {
    auto item = readShortcutItem(element);
    if (!item) return;
    if (topTitle == "Apple") topTitle = appleLogo;
    if (submenuTitle == "服务" || submenuTitle == "Services") return;
    addHeaders();
    keep(std::move(*item));
}

// None for an item that is not shown: no shortcut, disabled, or modifiers that have no text.
std::optional<MenuWalk::Item> MenuWalk::readShortcutItem(const AXUIElementRef& element) {
    const AXValue enabled = readAttribute(element, "AXEnabled");
    auto title = readText(element, "AXTitle");
    const AXValue modifiersValue = readAttribute(element, "AXMenuItemCmdModifiers");
    auto keyCharacter = readText(element, "AXMenuItemCmdChar");
    auto glyph = readText(element, "AXMenuItemCmdGlyph");

    const auto* const number = std::get_if<std::int64_t>(&modifiersValue);
    const std::int64_t modifiers = number != nullptr ? *number : 0;
    const auto symbols = modifierSymbolsOfMenuItem(modifiers);
    if (!symbols) return std::nullopt;
    if (!keyCharacter && !glyph) return std::nullopt;
    // An item that does not tell counts as enabled.
    if (std::holds_alternative<bool>(enabled) && !CFBooleanGetValue(enabled)) return std::nullopt;
    return Item{element,
                std::move(title),
                *symbols,
                modifiers,
                std::move(keyCharacter).value_or(""),
                std::move(glyph).value_or("")};
}

void MenuWalk::addHeaders() {
    if (lastTopHeader != topTitle) {
        result.emplace_back(topTitle);
        lastTopHeader = topTitle;
    }
    if (submenuTitle && lastSubmenuHeader != submenuTitle) {
        result.emplace_back(topTitle + "/" + *submenuTitle);
        lastSubmenuHeader = submenuTitle;
    }
}

void MenuWalk::keep(Item item) {
    if (item.title && !item.title->empty()) {
        menuItemElements.push_back(item.element);
        menuItemTitles.push_back(*item.title);
    }
    const auto keycode = KeyManager::shared().keyCodeForKeyText(item.keyCharacter);
    if (keycode) menuItemKeyCodes.push_back({*keycode, item.modifiers});

    MenuItemRecord record;
    record.path = submenuTitle ? topTitle + "/" + *submenuTitle : topTitle;
    record.title = std::move(item.title).value_or("");
    record.modifier = item.modifierSymbols;
    record.menuItemCmdChar = std::move(item.keyCharacter);
    record.menuItemCmdGlyph = std::move(item.glyph);
    result.emplace_back(std::move(record));
}

}  // namespace orlamo
