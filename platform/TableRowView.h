#pragma once

#include <memory>
#include <string>

#include "platform/Controls.h"
#include "platform/View.h"

namespace orlamo {

/// What is drawn behind one row of a table. The table sizes it, selects it and passes the pointer on.
class TableRowView : public View {
public:
    enum class SelectionHighlightStyle { none = -1, regular = 0 };

    TableRowView() : View({}) {}

    bool isSelected = false;
    SelectionHighlightStyle selectionHighlightStyle = SelectionHighlightStyle::regular;

    /// The table calls it whenever the row's size changed, after it took the old areas away.
    virtual void updateTrackingAreas() {}
    virtual void drawBackgroundInRect(GraphicsContext&, const Rect&) {}
    /// Of a selected row only, after its background.
    virtual void drawSelectionInRect(GraphicsContext&, const Rect&) {}

    void drawRect(GraphicsContext& context, const Rect& dirty) override {
        drawBackgroundInRect(context, dirty);
        if (isSelected) drawSelectionInRect(context, dirty);
    }
};

/// A cell's content: an image resource, by name, and a text beside it. Either may be empty.
struct TableCellView {
    std::string image;
    std::string text;
};

/// A table's rows and what follows from their selection.
class TableViewDelegate {
public:
    virtual ~TableViewDelegate() = default;
    virtual int numberOfRowsInTableView(TableView& tableView) = 0;
    virtual double heightOfRow(TableView& tableView, int row) = 0;  // points
    virtual std::unique_ptr<TableRowView> rowViewForRow(TableView& tableView, int row) = 0;
    virtual TableCellView viewForTableColumn(TableView& tableView, int row) = 0;
    virtual void tableViewSelectionDidChange(TableView& tableView) = 0;
};

}  // namespace orlamo
