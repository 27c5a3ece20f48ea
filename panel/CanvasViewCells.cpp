// The entries of the application and of the system: headings and shortcut cells.
#include "core/SystemShortcuts.h"
#include "panel/CanvasView.h"
#include "panel/SystemTitle.h"
#include "platform/Bundle.h"
#include "platform/Keyboard.h"
#include "platform/Log.h"

namespace orlamo {

namespace {

// Entries of this title leave their row empty.
constexpr std::string_view emptyRow = "space";

// Offsets from a cell's left edge, in points.
constexpr double modifierEnd = 50;
constexpr double keyStart = 60;
constexpr double titleStart = 85;
constexpr std::int64_t raise = 2;  // of a cell's texts in the roomy tiers
constexpr double hoverRadius = 5;
constexpr std::int64_t titleTestSize = 13;

}  // namespace

CanvasView::CellText CanvasView::beginCell(std::string_view modifier, std::int64_t width,
                                           const std::optional<Rect>& highlighted) {
    CellText cell;
    cell.modifier = Keyboard::shared().modifierLegend(modifier);
    cell.modifierWidth = textWidth(cell.modifier, textSize);
    cell.color = keyManager.matchesHeldModifiers(modifier) ? Color::systemTealColor() : colorOfLightText;
    cell.rect = {static_cast<double>(textPositionX), static_cast<double>(textPositionY), static_cast<double>(width),
                 static_cast<double>(rowHeight)};
    cell.isHovered = isMouseInsideRect && highlighted == cell.rect;
    drawnArea_ = drawnArea_.united(cell.rect);
    return cell;
}

void CanvasView::fillHover(const Rect& rect) {
    context_->fill(Path::roundedRect(rect, hoverRadius), Color::systemBlueColor());
}

void CanvasView::drawCellTexts(const CellText& cell, std::string_view key, std::string& title) {
    const auto x = static_cast<double>(textPositionX);
    const auto y = static_cast<double>(textPositionY);
    drawText(cell.modifier, textSize, cell.color, x - static_cast<double>(cell.modifierWidth) + modifierEnd, y);
    drawText(Keyboard::shared().keyLegend(key), textSize, cell.color, x + keyStart, y);
    title = std::string(truncateTitle(title, titleTestSize));
    drawText(title, textSize, cell.color, x + titleStart, y);
}

void CanvasView::drawAppShortcuts(const Layout& layout) {
    std::size_t index = 0;
    if (layout.total == 0) placeApplicationEntry(1, layout);
    for (std::int64_t i = 1; i <= layout.total; ++i) {
        const MenuEntry& entry = appMenuItems[static_cast<std::size_t>(i - 1)];
        const auto* const record = std::get_if<MenuItemRecord>(&entry);
        aMenuItemTitle = record != nullptr ? record->title.value_or("") : std::get<std::string>(entry);
        std::int64_t width = placeApplicationEntry(i, layout);
        if (aMenuItemTitle == emptyRow) continue;
        textPositionY = rowY(i - (currentColume - 1) * rowNumberEveryColume);
        if (textSize >= 14) width += 10;
        if (record == nullptr || record->path.value_or("").empty()) {
            drawMenuTitleRow(aMenuItemTitle, textPositionX, textPositionY, width);
            continue;
        }
        if (!drawAppCell(*record, width, index)) return;
    }
}

// False when there is no key code or element for this cell: the application's entries end with it.
bool CanvasView::drawAppCell(const MenuItemRecord& record, std::int64_t width, std::size_t& index) {
    const std::string modifier = record.modifier.value_or("");
    std::optional<std::string> key = record.menuItemCmdChar;
    keyManager.applyMenuGlyph(key, record.menuItemCmdGlyph);
    const CellText cell = beginCell(modifier, width, currentHighlightedRect);
    if (cell.isHovered) {
        logLine(currentAppName + "====当前文字:" + aMenuItemTitle + " ----" +
                std::to_string(textPositionX - cell.modifierWidth + 45) + " ");
        fillHover(cell.rect);
    }
    if (!isXcode) textPositionY += raise;
    drawCellTexts(cell, key.value_or(""), aMenuItemTitle);

    if (index >= menuItemKeyCodes.size() || index >= menuItemElements.size()) return false;
    const MenuItemKeyCode& pair = menuItemKeyCodes[index];
    const AXUIElementRef& element = menuItemElements[index];
    ++index;
    if (!modifier.empty()) {
        currentShortM.emplace_back(cell.rect, aMenuItemTitle, modifier, key.value_or(""), "", pair.keycode,
                                   pair.modifierFlags, element);
    }
    return true;
}

void CanvasView::drawSystemShortcuts(std::int64_t startX, const Layout& layout) {
    std::size_t index = 0;
    const auto count = static_cast<std::int64_t>(systemShortcutList.size());
    for (std::int64_t k = 1; k <= count; ++k) {
        const SystemShortcutEntry& entry = systemShortcutList[static_cast<std::size_t>(k - 1)];
        const auto* const record = std::get_if<SystemShortcutRecord>(&entry);
        const SystemTitle parts = record != nullptr ? splitSystemTitle(record->title.value_or("")) : SystemTitle{};
        std::string title = NSLocalizedString(record != nullptr ? parts.label : std::get<std::string>(entry));
        std::int64_t width = placeSystemEntry(k, startX, layout);
        if (title == emptyRow) continue;
        textPositionY = rowY(k - (currentColume - 1) * rowNumberEveryColume);
        if (textSize >= 14) width += 10;
        if (record == nullptr || parts.path.empty()) {
            drawMenuTitleRow(title, textPositionX, textPositionY, width);
            continue;
        }
        if (!drawSystemCell(*record, title, width, index)) return;
    }
}

// False when there is no key combination for this cell: the system's entries end with it.
bool CanvasView::drawSystemCell(const SystemShortcutRecord& record, std::string& title, std::int64_t width,
                                std::size_t& index) {
    const std::string modifier = record.modifier.value_or("");
    const std::string key = record.key == "SPACE" ? "⌴" : record.key.value_or("");
    const CellText cell = beginCell(modifier, width, systemHighlightedRect);
    if (cell.isHovered) fillHover(cell.rect);
    if (isXcode) {
        textSize = 14;
    } else {
        textPositionY += raise;
    }
    drawCellTexts(cell, key, title);

    if (index >= systemKeyCombos.size()) return false;
    const SystemKeyCombo& combo = systemKeyCombos[index];
    ++index;
    if (!key.empty()) {
        shortcutsM.emplace_back(cell.rect, title, "", modifier, key, "", combo.keycode, combo.modifierFlags);
    }
    return true;
}

}  // namespace orlamo
