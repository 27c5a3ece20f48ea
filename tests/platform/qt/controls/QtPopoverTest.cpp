#include "platform/qt/controls/QtPopover.h"

#include <QPushButton>

#include "platform/qt/controls/ControlAdapter.h"
#include "platform/qt/controls/PopoverPlacement.h"
#include "tests/platform/qt/controls/WidgetFixture.h"

namespace orlamo {
namespace {

using qt::PopoverPlacement;

constexpr QRect screen(0, 0, 1000, 800);
constexpr QSize content(200, 100);

TEST(PopoverPlacement, StandsOnThePreferredEdgeOrTheOppositeOneInsideTheScreen) {
    const struct {
        QRect anchor;
        RectEdge preferred;
        RectEdge edge;
    } cases[] = {
        {{500, 400, 20, 20}, RectEdge::maxY, RectEdge::maxY}, {{500, 50, 20, 20}, RectEdge::maxY, RectEdge::minY},
        {{500, 700, 20, 20}, RectEdge::minY, RectEdge::maxY}, {{0, 400, 20, 20}, RectEdge::maxY, RectEdge::maxY},
        {{985, 785, 15, 15}, RectEdge::maxX, RectEdge::minX}, {{10, 400, 20, 20}, RectEdge::minX, RectEdge::maxX},
        {{-90, 400, 20, 20}, RectEdge::maxY, RectEdge::maxY}, {{0, 0, 1000, 800}, RectEdge::maxY, RectEdge::maxY},
    };
    for (const auto& each : cases) {
        const PopoverPlacement placement = qt::placePopover(each.anchor, content, each.preferred, screen);
        SCOPED_TRACE(testing::Message() << each.anchor.x() << ", " << each.anchor.y());
        EXPECT_EQ(placement.edge, each.edge);
        EXPECT_TRUE(screen.contains(placement.frame));
        EXPECT_TRUE(placement.frame.adjusted(0, 0, 1, 1).contains(placement.tip));
    }
    const PopoverPlacement above = qt::placePopover({500, 400, 20, 20}, content, RectEdge::maxY, screen);
    EXPECT_LE(above.frame.bottom(), 400);
    EXPECT_EQ(above.tip, QPoint(509, above.frame.bottom() + 1));
}

class Help : public WidgetFixture {
protected:
    Help() {
        files.size = content;
        window.resize(400, 300);
        (new QPushButton(&window))->setFocus();
        button = new QPushButton(&window);
        button->setGeometry(200, 200, 30, 30);
        control = std::make_unique<qt::ControlAdapter<Control>>(*button);
        window.show();
        window.activateWindow();
        turnEventLoop();
        popover = std::make_unique<qt::QtPopover>();
        popover->behavior = Popover::Behavior::transient;
        popover->setContentViewController(page);
    }
    void show() {
        popover->showRelativeToRect(control->bounds(), *control, RectEdge::maxY);
        turnEventLoop();
    }
    QWidget& shown() { return *page.widget().window(); }

    PlainInterfaceFiles files;
    Page page;
    QWidget window;
    QPushButton* button = nullptr;
    std::unique_ptr<Control> control;
    std::unique_ptr<qt::QtPopover> popover;
};

TEST_F(Help, ComesAndGoesAsOftenAsAskedAndGivesTheKeyboardBack) {
    for (int times = 1; times <= 2; ++times) {
        show();
        EXPECT_TRUE(popover->isShown());
        EXPECT_EQ(page.appearances, times);
        EXPECT_EQ(page.widget().size(), content);
        pressKey(shown(), Qt::Key_Escape);
        EXPECT_FALSE(popover->isShown());
        EXPECT_EQ(page.disappearances, times);
        turnEventLoop();
        EXPECT_EQ(QApplication::focusWidget(), button);
    }
}

TEST_F(Help, APressOutsideClosesItAndOneInsideDoesNotAndItsContentOutlivesIt) {
    show();
    press(shown(), {100, 50});
    EXPECT_TRUE(popover->isShown());
    press(shown(), {0, 0});
    EXPECT_FALSE(popover->isShown()) << "beyond the rounded corner";
    show();
    press(shown(), {300, 50});
    EXPECT_FALSE(popover->isShown());
    show();
    const QPointer<QWidget> widget = &page.widget();
    popover.reset();
    ASSERT_TRUE(widget);
    EXPECT_EQ(widget->parentWidget(), nullptr);
}

}  // namespace
}  // namespace orlamo
