#include <QListView>
#include <vector>

#include "platform/TableRowView.h"
#include "platform/qt/controls/CollectionGrid.h"
#include "platform/qt/controls/QtCollectionView.h"
#include "platform/qt/controls/QtTableView.h"
#include "tests/platform/qt/controls/WidgetFixture.h"

namespace orlamo {
namespace {

struct Row : TableRowView {
    void updateTrackingAreas() override {
        areasWhenAsked.push_back(trackingAreas().size());
        addTrackingArea({bounds(), TrackingArea::mouseEnteredAndExited | TrackingArea::activeAlways});
    }
    void mouseEntered(const MouseEvent&) override { setInside(true); }
    void mouseExited(const MouseEvent&) override { setInside(false); }
    void setInside(bool now) {
        inside = now;
        setNeedsDisplay(true);
    }
    void drawBackgroundInRect(GraphicsContext& context, const Rect&) override {
        if (inside) context.fill(Path::roundedRect({0, 0, 10, 10}, 0), Color{1, 0, 0, 1});
    }
    void drawSelectionInRect(GraphicsContext& context, const Rect&) override {
        context.fill(Path::roundedRect({0, 0, 10, 10}, 0), Color{0, 1, 0, 1});
    }

    bool inside = false;
    std::vector<std::size_t> areasWhenAsked;
};

class Table : public WidgetFixture, protected TableViewDelegate {
protected:
    Table() {
        list.setFrameShape(QFrame::NoFrame);
        list.resize(200, 200);
        table = qt::makeTableView(list);
        table->setDelegate(*this);
        table->setIntercellSpacing({0, 10});
        list.show();
        turnEventLoop();
    }

    int numberOfRowsInTableView(TableView&) override { return 4; }
    double heightOfRow(TableView&, int) override { return 32; }
    std::unique_ptr<TableRowView> rowViewForRow(TableView&, int) override {
        auto row = std::make_unique<Row>();
        rows.push_back(row.get());
        return row;
    }
    TableCellView viewForTableColumn(TableView&, int row) override { return {"", "row " + std::to_string(row)}; }
    void tableViewSelectionDidChange(TableView& changed) override { selections.push_back(changed.selectedRow()); }

    QPointF middle(int row) const { return {100, row * 42 + 21.0}; }
    QColor corner(int row) { return picture(*list.viewport()).pixelColor(2, row * 42 + 41 - 2); }

    QListView list;
    std::shared_ptr<TableView> table;
    std::vector<Row*> rows;
    std::vector<int> selections;
};

TEST_F(Table, TellsOfEachChangeOnceWhoeverMadeIt) {
    EXPECT_EQ(table->selectedRow(), -1);
    table->selectRow(0);
    table->selectRow(0);
    table->selectRow(7);
    press(*list.viewport(), middle(2));
    press(*list.viewport(), middle(2));
    for (int i = 0; i < 2; ++i) pressKey(list, Qt::Key_Down);
    EXPECT_EQ(selections, (std::vector<int>{0, 2, 3}));
    EXPECT_EQ(table->selectedRow(), 3);
    EXPECT_TRUE(rows[3]->isSelected);
    EXPECT_FALSE(rows[2]->isSelected);
    EXPECT_EQ(log.lines.size(), 1U) << "of the row that is not there";

    list.clearSelection();
    press(*list.viewport(), {100, 190});
    EXPECT_TRUE(list.selectionModel()->isRowSelected(3)) << "a selection is never lost";
    EXPECT_EQ(selections.size(), 3U);
}

TEST_F(Table, RowsHearThePointerAndAreDrawnAsTheyThenAre) {
    hover(*list.viewport(), QEvent::HoverEnter, middle(1));
    EXPECT_TRUE(rows[1]->inside);
    EXPECT_EQ(corner(1), QColor(Qt::red));
    hover(*list.viewport(), QEvent::HoverMove, {100, 42});
    hover(*list.viewport(), QEvent::HoverMove, {100, 41});
    EXPECT_FALSE(rows[1]->inside);
    EXPECT_TRUE(rows[0]->inside);
    table->selectRow(2);
    EXPECT_EQ(corner(2), QColor(Qt::green));
    hover(*list.viewport(), QEvent::HoverLeave, {-1, -1});
    EXPECT_FALSE(rows[0]->inside);
    EXPECT_NE(corner(0), QColor(Qt::red));
}

TEST_F(Table, ANewSizeRenewsTheTrackingAreasAndThePointerCanStillLeave) {
    hover(*list.viewport(), QEvent::HoverEnter, middle(1));
    list.resize(300, 200);
    turnEventLoop();
    picture(list);
    ASSERT_EQ(rows[1]->trackingAreas().size(), 1U);
    EXPECT_EQ(rows[1]->trackingAreas()[0].rect, (Rect{0, 0, 300, 42}));
    EXPECT_EQ(rows[1]->areasWhenAsked.back(), 0U);
    hover(*list.viewport(), QEvent::HoverLeave, {-1, -1});
    EXPECT_FALSE(rows[1]->inside);
}

class Collection : public WidgetFixture, protected CollectionViewDataSource {
protected:
    Collection() {
        files.size = {30, 30};
        widget->resize(600, 50);
        view = qt::makeCollectionView(*widget);
        view->flowLayout()->itemSize = {580, 80};
        view->flowLayout()->minimumLineSpacing = 0;
        view->setDataSource(*this);
        widget->show();
    }

    int numberOfSectionsInCollectionView(CollectionView&) override { return 2; }
    int numberOfItemsInSection(CollectionView&, int section) override { return section + 1; }
    std::unique_ptr<CollectionViewItem> itemForRepresentedObjectAtIndexPath(CollectionView&, IndexPath path) override {
        asked.emplace_back(path.section, path.item);
        auto item = std::make_unique<Page>();
        views.push_back(&item->widget());
        return item;
    }

    PlainInterfaceFiles files;
    std::unique_ptr<QWidget> widget = std::make_unique<QWidget>();
    std::shared_ptr<CollectionView> view;
    std::vector<std::pair<int, int>> asked;
    std::vector<QPointer<QWidget>> views;
};

TEST_F(Collection, AsksForEachItemOnceIsAsHighAsTheyNeedAndTakesThemWithIt) {
    EXPECT_EQ(asked, (std::vector<std::pair<int, int>>{{0, 0}, {1, 0}, {1, 1}}));
    EXPECT_EQ(widget->minimumHeight(), 240);
    EXPECT_EQ(views[2]->geometry(), QRect(10, 160, 580, 80));
    widget.reset();
    EXPECT_FALSE(views[0]);
}

TEST(CollectionGrid, FillsLinesInTheMiddleAndBeginsOneForEachSection) {
    const FlowLayout layout{.itemSize = {100, 20}, .minimumLineSpacing = 5, .minimumInteritemSpacing = 10};
    const qt::CollectionGrid grid = qt::arrange(layout, {3, 1}, 220);
    EXPECT_EQ(grid.columns, 2);
    EXPECT_EQ(grid.frames, (std::vector<Rect>{{5, 0, 100, 20}, {115, 0, 100, 20}, {5, 25, 100, 20}, {5, 50, 100, 20}}));
    EXPECT_EQ(grid.height, 70);
}

}  // namespace
}  // namespace orlamo
