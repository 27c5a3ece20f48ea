#include "platform/qt/controls/TableRowDelegate.h"

#include <QListView>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

namespace orlamo::qt {

namespace {

// Points. The cell's content keeps clear of the list's edges as the row's own drawing does.
constexpr int cellMargin = 24;
constexpr int imageSize = 18;
constexpr int imageGap = 10;
constexpr QMarginsF focusMargins(12.5, 2.5, 12.5, 2.5);
constexpr double focusRadius = 10;
constexpr double focusWidth = 2;

}  // namespace

TableRowDelegate::TableRowDelegate(QListView& list) : list_(list) {}

int TableRowDelegate::neededWidth() const {
    list_.ensurePolished();
    int widest = 0;
    for (const Row& row : rows) {
        const int text = list_.fontMetrics().horizontalAdvance(QString::fromStdString(row.cell.text));
        widest = std::max(widest, text + (row.cell.image.empty() ? 0 : imageSize + imageGap));
    }
    return widest + 2 * cellMargin;
}

void TableRowDelegate::place(int row, const QRect& rect) {
    TableRowView& view = *rows[static_cast<std::size_t>(row)].view;
    const Size oldSize = view.frame().size();
    view.setFrame({double(rect.x()), double(list_.viewport()->height() - rect.y() - rect.height()),
                   double(rect.width()), double(rect.height())});
    if (view.frame().size() == oldSize) return;
    std::vector<TrackingArea>& areas = view.trackingAreas();
    const bool wasInside = std::any_of(areas.begin(), areas.end(), [](const auto& area) { return area.pointerInside; });
    areas.clear();
    view.updateTrackingAreas();
    // Else the row would never hear that the pointer left.
    for (TrackingArea& area : areas) area.pointerInside = wasInside;
}

void TableRowDelegate::trackPointer(const QPointF* position) {
    const QWidget& viewport = *list_.viewport();
    const Point point =
        position != nullptr ? toViewPoint(*position, viewport.height(), viewport.devicePixelRatioF()) : Point{};
    for (int i = 0; i < static_cast<int>(rows.size()); ++i) {
        place(i, list_.visualRect(list_.model()->index(i, 0)));
        rows[static_cast<std::size_t>(i)].view->trackPointer(position != nullptr ? &point : nullptr);
    }
}

void TableRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    // What a view draws may change it.
    const_cast<TableRowDelegate*>(this)->paintRow(*painter, option, index.row());
}

void TableRowDelegate::paintRow(QPainter& painter, const QStyleOptionViewItem& option, int number) {
    if (number >= static_cast<int>(rows.size())) return;
    place(number, option.rect);
    Row& row = rows[static_cast<std::size_t>(number)];
    painter.save();
    painter.translate(option.rect.topLeft());
    painter_.paint(painter, *row.view);
    painter.restore();
    const int half = static_cast<int>(std::lround(spacing / 2));
    paintCell(painter, option, row, option.rect.adjusted(cellMargin, half, -cellMargin, -half));
    constexpr auto focused = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    if ((option.state & focused) != focused) return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(option.palette.color(QPalette::Highlight), focusWidth));
    painter.drawRoundedRect(QRectF(option.rect).marginsRemoved(focusMargins), focusRadius, focusRadius);
    painter.restore();
}

void TableRowDelegate::paintCell(QPainter& painter, const QStyleOptionViewItem& option, Row& row, QRect rect) {
    const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
    const QColor color = option.palette.color(isEnabled ? QPalette::Normal : QPalette::Disabled, QPalette::Text);
    if (!row.cell.image.empty()) {
        if (!row.image || row.imageColor != color) row.image.emplace(row.cell.image, color);
        row.imageColor = color;
        const QRect place(rect.x(), rect.center().y() - imageSize / 2 + 1, imageSize, imageSize);
        row.image->paint(painter, place);
        rect.setLeft(place.x() + place.width() + imageGap);
    }
    painter.setFont(option.font);
    painter.setPen(color);
    const QString text =
        option.fontMetrics.elidedText(QString::fromStdString(row.cell.text), Qt::ElideRight, rect.width());
    painter.drawText(rect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
}

QSize TableRowDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const {
    if (index.row() >= static_cast<int>(rows.size())) return {};
    const double height = rows[static_cast<std::size_t>(index.row())].height + spacing;
    return {0, static_cast<int>(std::lround(height))};
}

}  // namespace orlamo::qt
