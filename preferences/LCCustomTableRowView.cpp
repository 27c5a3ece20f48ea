#include "preferences/LCCustomTableRowView.h"

#include <algorithm>

namespace orlamo {

namespace {

constexpr double sideMargin = 10.0;  // points, as all below
constexpr double inset = 2.5;
constexpr double cornerRadius = 10.0;

constexpr double component(double value) {
    return std::min(value, 1.0);
}

constexpr Color selectionColor{0.0, 0.0, 0.0, 0.35};
// Given as 38, 38, 42 of 1.0: shown as white.
constexpr Color hoverColor{component(38.0), component(38.0), component(42.0), 0.1};

}  // namespace

void LCCustomTableRowView::updateTrackingAreas() {
    TableRowView::updateTrackingAreas();
    addTrackingArea({bounds(), TrackingArea::mouseEnteredAndExited | TrackingArea::activeAlways});
}

void LCCustomTableRowView::mouseEntered(const MouseEvent&) {
    mouseInside = true;
    setNeedsDisplay(true);
}

void LCCustomTableRowView::mouseExited(const MouseEvent&) {
    mouseInside = false;
    setNeedsDisplay(true);
}

void LCCustomTableRowView::drawSelectionInRect(GraphicsContext& context, const Rect&) {
    if (selectionHighlightStyle != SelectionHighlightStyle::none) fillRow(context, selectionColor);
}

void LCCustomTableRowView::drawBackgroundInRect(GraphicsContext& context, const Rect&) {
    if (mouseInside && !isSelected) fillRow(context, hoverColor);
}

void LCCustomTableRowView::fillRow(GraphicsContext& context, const Color& color) const {
    const Rect row{sideMargin + inset, inset, bounds().width - 2 * sideMargin - 2 * inset, bounds().height - 2 * inset};
    if (row.width > 0 && row.height > 0) context.fill(Path::roundedRect(row, cornerRadius), color);
}

}  // namespace orlamo
