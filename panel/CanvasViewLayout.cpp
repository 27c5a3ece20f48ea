// How many columns and rows, how tall and wide, and where each entry stands.
#include <algorithm>
#include <cstdlib>

#include "core/SystemShortcuts.h"
#include "panel/CanvasView.h"
#include "panel/SystemTitle.h"
#include "platform/Bundle.h"
#include "platform/Log.h"
#include "platform/TextMetrics.h"
#include "platform/Window.h"

namespace orlamo {

namespace {

struct Tier {
    std::int64_t first;  // totals this row is for
    std::int64_t last;
    std::int64_t rowHeight;
    std::int64_t textSize;
    std::int64_t spacing;
    std::int64_t perColumn;  // 0 keeps the value
};

// The first row that holds the total applies.
constexpr std::array<Tier, 11> tiers{{
    {33, 33, 25, 14, 80, 0},
    {1, 16, 30, 14, 70, 30},
    {17, 24, 25, 14, 60, 0},
    {25, 36, 23, 14, 100, 0},
    {37, 37, 23, 14, 30, 36},
    {38, 39, 25, 14, 70, 30},
    {40, 40, 22, 14, 60, 35},
    {41, 67, 25, 14, 50, 0},
    {68, 79, 22, 14, 60, 0},
    {80, 120, 25, 14, 30, 0},
    {125, 160, 22, 14, 60, 0},
}};

// Widths are points; sizes of type are point sizes.
constexpr std::int64_t widestTitle = 150;
constexpr std::int64_t widestPrefix = 147;
constexpr std::int64_t truncationTestSize = 10;
constexpr std::int64_t appCellFrame = 80;  // modifier and key beside the title
constexpr std::int64_t systemCellFrame = 90;
constexpr std::int64_t denseSystemCellFrame = 75;

constexpr std::int64_t dividedRoundingUp(std::int64_t number, std::int64_t divisor) {
    return number / divisor + (number % divisor != 0 ? 1 : 0);
}

constexpr std::int64_t columnOf(std::int64_t entry, std::int64_t rows, std::int64_t columns) {
    return std::clamp<std::int64_t>((entry - 1) / rows + 1, 1, columns);
}

}  // namespace

Size CanvasView::measureText(std::string_view text, std::int64_t pointSize) const {
    return TextMetrics::shared().measure(text, static_cast<int>(pointSize));
}

std::int64_t CanvasView::textWidth(std::string_view text, std::int64_t pointSize) const {
    return static_cast<std::int64_t>(measureText(text, pointSize).width);
}

// The application's name stands last and is no entry. A list without one consists of entries only.
std::int64_t CanvasView::entryTotal() const {
    const auto count = static_cast<std::int64_t>(appMenuItems.size());
    const bool hasName = count > 0 && std::holds_alternative<std::string>(appMenuItems.back());
    return hasName ? count - 1 : count;
}

void CanvasView::applyLayoutTier(std::int64_t total) {
    if (total / totalEveryColume > 3) {
        totalMenuColumn = 4;
        rowNumberEveryColume = dividedRoundingUp(total, 4);
        isXcode = true;
        rowHeight = 17;
        textSize = total <= 200 ? 15 : 14;
        GlobalSpacing = 15;
        return;
    }
    const auto tier =
        std::ranges::find_if(tiers, [total](const Tier& row) { return row.first <= total && total <= row.last; });
    if (tier == tiers.end()) {
        logLine("");
    } else {
        rowHeight = tier->rowHeight;
        textSize = tier->textSize;
        GlobalSpacing = tier->spacing;
        if (tier->perColumn != 0) totalEveryColume = tier->perColumn;
    }
    // Nothing but a name still gets one full column, so that the title bars and the system area have their place.
    totalMenuColumn = total == 0 ? 1 : dividedRoundingUp(total, totalEveryColume);
    rowNumberEveryColume = total == 0 ? totalEveryColume : dividedRoundingUp(total, totalMenuColumn);
}

const std::string& CanvasView::truncateTitle(const std::string& title, std::int64_t testPointSize) {
    if (measureText(title, testPointSize).width <= widestTitle) return title;
    const auto known = shortened_.find(title);
    if (known != shortened_.end()) return known->second;

    const std::vector<std::size_t> ends = TextMetrics::shared().characterEnds(title);
    const auto prefix = [&](std::size_t count) {
        return std::string_view(title).substr(0, count == 0 ? 0 : ends[count - 1]);
    };
    const auto isTooWide = [&](std::size_t count) {
        return measureText(prefix(count), truncationTestSize).width > widestPrefix;
    };
    // Widths grow with the prefix but for a ligature or a final form here and there: halve, then look a few back.
    constexpr std::size_t unevenness = 8;
    std::size_t least = 0;
    std::size_t most = ends.empty() ? 0 : ends.size() - 1;
    while (least < most) {
        const std::size_t middle = least + (most - least) / 2;
        isTooWide(middle) ? most = middle : least = middle + 1;
    }
    for (std::size_t back = least > unevenness ? least - unevenness : 0; back < least; ++back) {
        if (isTooWide(back)) least = back;
    }
    return shortened_.emplace(title, std::string(prefix(least)) + "...").first->second;
}

std::array<std::int64_t, 4> CanvasView::appColumnWidths(std::int64_t total) {
    const std::int64_t rows = rowNumberEveryColume;
    const std::int64_t columns = totalMenuColumn;
    std::array<std::int64_t, 4> widths{};
    if (total == 0) widths[0] = textWidth(currentAppName, textSize + GlobalTextSize) + appCellFrame;
    std::int64_t widest = 0;
    for (std::int64_t i = 1; i <= total; ++i) {
        const auto* const record = std::get_if<MenuItemRecord>(&appMenuItems[static_cast<std::size_t>(i - 1)]);
        const bool hasTitle = record != nullptr && record->title && !record->title->empty();
        const std::int64_t width = hasTitle ? textWidth(truncateTitle(*record->title, truncationTestSize), textSize)
                                            : textWidth("NULL", textSize);
        widest = std::max(widest, width);
        for (std::int64_t column = 1; column <= 4; ++column) {
            const bool isFull = column < 4 && i == column * rows;
            const bool isLast = i == total && columns == column;
            if (!isFull && !isLast) continue;
            widths[static_cast<std::size_t>(column - 1)] = widest + appCellFrame;
            widest = 0;
        }
    }
    return widths;
}

std::array<std::int64_t, 3> CanvasView::systemColumnWidths(std::int64_t& systemColumns) {
    const auto count = static_cast<std::int64_t>(systemShortcutList.size());
    const std::int64_t rows = rowNumberEveryColume;
    systemColumns = dividedRoundingUp(count, rows);
    std::array<std::int64_t, 3> widths{};
    std::int64_t widest = 0;
    for (std::int64_t k = 0; k < count; ++k) {
        const auto* const record = std::get_if<SystemShortcutRecord>(&systemShortcutList[static_cast<std::size_t>(k)]);
        const std::int64_t width = record != nullptr && record->title
                                       ? textWidth(NSLocalizedString(splitSystemTitle(*record->title).label), textSize)
                                       : textWidth("NULL", textSize);
        widest = std::max(widest, width);
        for (std::int64_t column = 1; column <= 3; ++column) {
            const bool isFull = k == column * rows - 1;
            const bool isLast = k == count - 1 && systemColumns == column;
            if (!isFull && !isLast) continue;
            const bool isDense = column == 1 && isXcode;
            widths[static_cast<std::size_t>(column - 1)] = widest + (isDense ? denseSystemCellFrame : systemCellFrame);
            widest = 0;
        }
    }
    return widths;
}

CanvasView::Layout CanvasView::computeLayout() {
    Layout layout;
    const bool hasName = !appMenuItems.empty() && std::holds_alternative<std::string>(appMenuItems.back());
    currentAppName = hasName ? std::get<std::string>(appMenuItems.back()) : "";
    logLine("---------- 当前程序名称: " + currentAppName + " ----------------- ");
    layout.total = entryTotal();
    logLine("--------- 当前程序菜单栏的列数: " + std::to_string(totalMenuColumn) + " -----------");
    logLine("--------- 当前程序菜单栏的total总数: " + std::to_string(layout.total) + " ----------------");
    applyLayoutTier(layout.total);
    logLine("----------- 绘制的文字的字体大小: " + std::to_string(textSize) + " ----------------");

    layout.appWidths = appColumnWidths(layout.total);
    const auto& w = layout.appWidths;
    logLine("-------当前程序每列的宽度----" + std::to_string(w[0]) + "-------" + std::to_string(w[1]) + "-------" +
            std::to_string(w[2]) + "------" + std::to_string(w[3]));
    layout.systemWidths = systemColumnWidths(layout.systemColumns);
    const auto& s = layout.systemWidths;
    logLine("-----系统每列宽度--" + std::to_string(s[0]) + "------- " + std::to_string(s[1]) + "----- " +
            std::to_string(s[2]));

    const std::int64_t appWidth = w[0] + w[1] + w[2] + w[3];
    const std::int64_t totalWidth =
        appWidth + s[0] + s[1] + s[2] + (layout.systemColumns + totalMenuColumn - 1) * GlobalSpacing;
    logLine("总宽度：" + std::to_string(totalWidth));
    const std::int64_t x0 = (static_cast<std::int64_t>(frame().width) - totalWidth) / 2;
    const std::int64_t totalHeight = (rowNumberEveryColume + 2) * rowHeight;
    logLine("总高度：" + std::to_string(totalHeight));
    beginPointY = (static_cast<std::int64_t>(frame().height) - totalHeight) / 2;
    tempRect =
        Rect{static_cast<double>(x0), static_cast<double>(beginPointY), static_cast<double>(std::abs(totalWidth + 30)),
             static_cast<double>(std::abs(totalHeight + 30 + 2 * rowHeight))};
    layout.titleFont = textSize + GlobalTextSize;
    layout.appEdge = appWidth + (totalMenuColumn - 1) * GlobalSpacing;
    return layout;
}

std::int64_t CanvasView::rowY(std::int64_t rowInColumn) const {
    return static_cast<std::int64_t>(frame().height) - (beginPointY + rowHeight * rowInColumn);
}

// Both place functions set the entry's column and x, and return the column's width.
std::int64_t CanvasView::placeApplicationEntry(std::int64_t i, const Layout& layout) {
    currentColume = columnOf(i, rowNumberEveryColume, 4);
    textPositionX = beginPointX;
    for (std::int64_t column = 1; column < currentColume; ++column) {
        textPositionX += layout.appWidths[static_cast<std::size_t>(column - 1)] + GlobalSpacing;
    }
    return layout.appWidths[static_cast<std::size_t>(currentColume - 1)];
}

std::int64_t CanvasView::placeSystemEntry(std::int64_t k, std::int64_t startX, const Layout& layout) {
    currentColume = columnOf(k, rowNumberEveryColume, 3);
    textPositionX = startX;
    for (std::int64_t column = 1; column < currentColume; ++column) {
        textPositionX += layout.systemWidths[static_cast<std::size_t>(column - 1)] + GlobalSpacing;
    }
    return layout.systemWidths[static_cast<std::size_t>(currentColume - 1)];
}

std::int64_t CanvasView::systemStartX(const Layout& layout) const {
    if (currentColume < 1 || currentColume > 4) return 0;
    return textPositionX + layout.appWidths[static_cast<std::size_t>(currentColume - 1)] + GlobalSpacing;
}

void CanvasView::resizeWindowToContent() {
    Window* const panel = window();
    if (!tempRect || panel == nullptr) return;
    panel->setContentSize({tempRect->width + spacing, tempRect->height + spacing});
    Rect moved = frame();
    moved.x = spacing - static_cast<double>(beginPointX);
    setFrame(moved);
    moved.y = -static_cast<double>(beginPointY);
    setFrame(moved);
    panel->center();
}

}  // namespace orlamo
