#pragma once

#include <QColor>
#include <QStyledItemDelegate>
#include <memory>
#include <optional>
#include <vector>

#include "platform/TableRowView.h"
#include "platform/qt/QtImages.h"
#include "platform/qt/controls/ViewPainter.h"

class QListView;

namespace orlamo::qt {

/// The rows of a list view: their views, their heights, and how they are painted.
class TableRowDelegate : public QStyledItemDelegate {
public:
    struct Row {
        std::unique_ptr<TableRowView> view;
        TableCellView cell;
        double height = 0;                   // points, without the spacing
        std::optional<SvgImage> image = {};  // the cell's, as it was painted last
        QColor imageColor = {};
    };

    explicit TableRowDelegate(QListView& list);

    std::vector<Row> rows;
    double spacing = 0;  // points, half of it above a cell and half below

    /// Points within which no row's text is shortened.
    int neededWidth() const;
    /// Gives the row's view its place in the list; a new size renews its tracking areas.
    void place(int row, const QRect& rect);
    /// Where the pointer is over the list; null means outside.
    void trackPointer(const QPointF* position);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    void paintRow(QPainter& painter, const QStyleOptionViewItem& option, int row);
    void paintCell(QPainter& painter, const QStyleOptionViewItem& option, Row& row, QRect rect);

    QListView& list_;
    ViewPainter painter_;
};

}  // namespace orlamo::qt
