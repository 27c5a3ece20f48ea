#include "platform/qt/controls/QtCollectionView.h"

#include <vector>

#include "platform/qt/controls/CollectionGrid.h"
#include "tests/platform/qt/controls/WidgetFixture.h"

namespace orlamo {
namespace {

class Collection : public WidgetFixture, protected CollectionViewDataSource {
protected:
    Collection() {
        files.size = {30, 30};
        widget->resize(600, 50);
        view = qt::makeCollectionView(*widget);
        view->flowLayout()->itemSize = {580, 80};
        view->flowLayout()->minimumLineSpacing = 0;
        view->setSelectable(true);
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
    /// Whether each item is shown as selected.
    std::vector<bool> highlighted() {
        const QImage image = picture(*widget);
        std::vector<bool> result;
        for (const QPointer<QWidget>& each : views)
            result.push_back(image.pixelColor(each->geometry().center()).alpha() > 0);
        return result;
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

TEST_F(Collection, OneItemIsSelectedByPressAndKey) {
    press(*views[1], {10, 10});
    EXPECT_EQ(highlighted(), (std::vector<bool>{false, true, false}));
    for (int i = 0; i < 2; ++i) pressKey(*widget, Qt::Key_Down);
    EXPECT_EQ(highlighted(), (std::vector<bool>{false, false, true}));
    press(*widget, {2, 2});
    EXPECT_EQ(highlighted(), (std::vector<bool>{false, false, false}));
    view->setAllowsEmptySelection(false);
    press(*views[0], {10, 10});
    press(*widget, {2, 2});
    EXPECT_EQ(highlighted(), (std::vector<bool>{true, false, false}));
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
