#include "platform/qt/controls/QtTableView.h"

#include <QEvent>
#include <QHoverEvent>
#include <QItemSelectionModel>
#include <QListView>
#include <QStandardItemModel>
#include <optional>
#include <string>

#include "platform/Log.h"
#include "platform/qt/controls/ControlAdapter.h"
#include "platform/qt/controls/TableRowDelegate.h"

namespace orlamo::qt {

namespace {

class QtTableView final : public QObject, public ControlAdapter<TableView, QListView> {
public:
    explicit QtTableView(QListView& list) : ControlAdapter(list), rows_(list) {
        list.setModel(&model_);
        list.setItemDelegate(&rows_);
        list.setSelectionMode(QAbstractItemView::SingleSelection);
        list.setEditTriggers(QAbstractItemView::NoEditTriggers);
        list.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        list.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        list.setDragEnabled(false);
        list.viewport()->setAttribute(Qt::WA_Hover);
        list.viewport()->installEventFilter(this);
        connect(list.selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { selectionChanged(); });
    }

    ~QtTableView() override {
        QListView* const list = native();
        if (list == nullptr) return;
        list->viewport()->removeEventFilter(this);
        list->setModel(nullptr);
        list->setItemDelegate(nullptr);
    }

    void setDelegate(TableViewDelegate& delegate) override {
        delegate_ = &delegate;
        selected_ = -1;
        model_.clear();
        rows_.rows.clear();
        const int count = delegate.numberOfRowsInTableView(*this);
        for (int i = 0; i < count; ++i) addRow(i);
        if (native() != nullptr) native()->setMinimumWidth(rows_.neededWidth());
    }

    void setIntercellSpacing(Size spacing) override {
        rows_.spacing = spacing.height;
        if (native() != nullptr) native()->doItemsLayout();
    }

    int selectedRow() const override { return selected_; }

    void selectRow(int row) override {
        if (native() == nullptr || row == selected_) return;
        const QModelIndex index = model_.index(row, 0);
        if (!index.isValid()) {
            logLine("table: there is no row " + std::to_string(row) + " to select");
            return;
        }
        native()->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    }

private:
    void addRow(int row) {
        TableRowDelegate::Row added{delegate_->rowViewForRow(*this, row), delegate_->viewForTableColumn(*this, row),
                                    delegate_->heightOfRow(*this, row)};
        if (added.view == nullptr) added.view = std::make_unique<TableRowView>();
        added.view->displayIsNeeded = [this, row] {
            if (native() != nullptr) native()->viewport()->update(native()->visualRect(model_.index(row, 0)));
        };
        const QString text = QString::fromStdString(added.cell.text);
        rows_.rows.push_back(std::move(added));
        model_.appendRow(new QStandardItem(text));
    }

    // The list view can be made to give up its selection, the table cannot.
    void selectionChanged() {
        const QModelIndexList indexes = native()->selectionModel()->selectedIndexes();
        if (indexes.isEmpty()) {
            if (selected_ < 0) return;
            native()->selectionModel()->select(model_.index(selected_, 0), QItemSelectionModel::Select);
            return;
        }
        const int row = indexes.front().row();
        if (row == selected_) return;
        if (selected_ >= 0) mark(selected_, false);
        selected_ = row;
        mark(row, true);
        if (delegate_ != nullptr) delegate_->tableViewSelectionDidChange(*this);
    }

    void mark(int row, bool selected) {
        TableRowView& view = *rows_.rows[static_cast<std::size_t>(row)].view;
        view.isSelected = selected;
        view.setNeedsDisplay(true);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        switch (event->type()) {
            case QEvent::HoverEnter:
            case QEvent::HoverMove: {
                const QPointF position = static_cast<QHoverEvent*>(event)->position();
                rows_.trackPointer(&position);
                break;
            }
            case QEvent::HoverLeave:
                rows_.trackPointer(nullptr);
                break;
            default:
                break;
        }
        return false;
    }

    TableViewDelegate* delegate_ = nullptr;
    QStandardItemModel model_;
    TableRowDelegate rows_;
    int selected_ = -1;
};

}  // namespace

std::shared_ptr<TableView> makeTableView(QListView& list) {
    return std::make_shared<QtTableView>(list);
}

}  // namespace orlamo::qt
