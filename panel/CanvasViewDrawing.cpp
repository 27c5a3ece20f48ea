// One drawing pass, its primitives, the title bars and the heading rows.
#include <cmath>

#include "panel/CanvasView.h"
#include "platform/Bundle.h"
#include "platform/Log.h"

namespace orlamo {

namespace {

constexpr double barRadius = 5;
constexpr std::int64_t titleSizeGrowth = 3;  // title-bar labels against cell texts

}  // namespace

void CanvasView::drawPanel() {
    // The cells of the pass before are those the pointer was tested against until now; this pass makes them anew.
    currentShortM.clear();
    shortcutsM.clear();
    drawnArea_ = {};
    logLine("****************  开始绘制  ********************");
    const Layout layout = computeLayout();
    drawAppTitle(layout);
    drawSystemTitle(layout);
    drawAppShortcuts(layout);
    drawSystemShortcuts(systemStartX(layout), layout);
}

void CanvasView::drawText(std::string_view text, std::int64_t pointSize, const Color& color, double x, double y) {
    context_->drawText(text, static_cast<int>(pointSize), color, {x, y});
}

void CanvasView::fillRoundedBar(double x1, double y1, double x2, double y2, const Color& color) {
    const double width = std::fabs(x2 - x1);
    const double height = std::fabs(y2 - y1);
    const double left = x1 + barRadius;
    const double right = x1 + width - barRadius;
    const double bottom = y1 + barRadius;
    const double top = y1 + height - barRadius;
    Path path;
    path.arc({right, bottom}, barRadius, -50, -90, true)
        .arc({left, bottom}, barRadius, -90, -180, true)
        .arc({left, top}, barRadius, 180, 90, true)
        .arc({right, top}, barRadius, 90, 0, true)
        .arc({right, bottom}, barRadius, 0, -50, true)
        .close();
    context_->fill(path, color);
}

void CanvasView::drawAppTitle(const Layout& layout) {
    const Size name = measureText(currentAppName, layout.titleFont);
    const double barWidth = static_cast<double>(layout.appEdge + (textSize >= 14 ? 10 : 0));
    const double x1 = static_cast<double>(beginPointX);
    const std::int64_t top = static_cast<std::int64_t>(frame().height) - beginPointY;
    const std::int64_t barBottom = top + rowHeight / 2;
    const std::int64_t centre = beginPointX + layout.appEdge / 2;
    fillRoundedBar(x1, static_cast<double>(barBottom), x1 + barWidth, static_cast<double>(top + 2 * rowHeight),
                   colorOfRect);
    const double x = static_cast<double>(centre) - name.width / 2;
    const double y =
        frame().height - static_cast<double>(beginPointY) + 1.25 * static_cast<double>(rowHeight) - name.height / 2;
    drawText(currentAppName, textSize + titleSizeGrowth, colorOfLightText, x, y);
    logLine("当前程序的标题的文字大小: " + std::to_string(textSize + titleSizeGrowth));
}

void CanvasView::drawSystemTitle(const Layout& layout) {
    const std::string label = NSLocalizedString("System");
    const Size size = measureText(label, layout.titleFont);
    const auto& s = layout.systemWidths;
    // Without system entries the width is negative: the bar keeps its size, the label its centre.
    const std::int64_t barWidth =
        s[0] + s[1] + s[2] + (layout.systemColumns - 1) * GlobalSpacing + (textSize >= 14 ? 10 : 0);
    const std::int64_t x1 = beginPointX + layout.appEdge + GlobalSpacing;
    const std::int64_t top = static_cast<std::int64_t>(frame().height) - beginPointY;
    const std::int64_t barBottom = top + rowHeight / 2;
    const std::int64_t centre = x1 + barWidth / 2;
    fillRoundedBar(static_cast<double>(x1), static_cast<double>(barBottom), static_cast<double>(x1 + barWidth),
                   static_cast<double>(top + 2 * rowHeight), colorOfRect);
    const double x = static_cast<double>(centre) - size.width / 2;
    const double y =
        frame().height - static_cast<double>(beginPointY) + 1.25 * static_cast<double>(rowHeight) - size.height / 2;
    drawText(label, textSize + titleSizeGrowth, colorOfLightText, x, y);
    logLine("系统标题的文字大小: " + std::to_string(textSize + titleSizeGrowth));
}

void CanvasView::drawMenuTitleRow(const std::string& title, std::int64_t x, std::int64_t y, std::int64_t width) {
    const auto left = static_cast<double>(x);
    const auto bottom = static_cast<double>(y);
    const double right = left + static_cast<double>(width);
    const double top = bottom + static_cast<double>(rowHeight);
    const auto slash = title.find('/');
    if (slash == std::string::npos) {
        const bool isDense = isXcode;
        fillRoundedBar(left, bottom, right, isDense ? top : top - 1, colorOfRect);
        drawText(title, isDense ? textSize : textSize + 2, colorOfLightText, left + 20, isDense ? bottom : bottom + 1);
        return;
    }
    Path triangle;
    triangle.moveTo({left + 15, bottom + 10}).lineTo({left + 25, bottom + 10}).lineTo({left + 20, bottom + 1}).close();
    context_->fill(triangle, colorOfLightText);
    const std::string second = title.substr(slash + 1, title.find('/', slash + 1) - slash - 1);
    drawText(NSLocalizedString(second), textSize, colorOfTextInMenu, left + 27, bottom);
}

}  // namespace orlamo
