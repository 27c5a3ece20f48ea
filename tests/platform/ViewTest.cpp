#include "platform/View.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/VisualEffectView.h"
#include "platform/WindowController.h"
#include "tests/doubles/FakeWindowSystem.h"
#include "tests/doubles/RecordingGraphicsContext.h"

namespace orlamo {
namespace {

class Probe : public View {
public:
    using View::View;
    void drawRect(GraphicsContext& context, const Rect&) override { context.drawText("probe", 10, Color{}, {1, 2}); }
    void resizeSubviewsWithOldSize(Size oldSize) override { oldSizes.push_back(oldSize); }
    void viewDidMoveToSuperview() override { ++moves; }
    void mouseEntered(const MouseEvent&) override { heard += 'e'; }
    void mouseExited(const MouseEvent&) override { heard += 'x'; }
    void mouseMoved(const MouseEvent&) override { heard += 'm'; }
    void mouseDown(const MouseEvent&) override { heard += 'd'; }

    std::vector<Size> oldSizes;
    int moves = 0;
    std::string heard;
};

class ViewTree : public testing::Test {
protected:
    ViewTree() {
        auto root = std::make_unique<View>(Rect{});
        auto inner = std::make_unique<Probe>(Rect{30, -40, 100, 80});
        probe = inner.get();
        root->addSubview(std::move(inner));
        window.setContentView(std::move(root));
    }

    FakeWindowSystem windows;
    Window window{{100, 100, 400, 300}, Window::borderless, Window::Backing::buffered, Window::Defer::no};
    Probe* probe = nullptr;
};

TEST_F(ViewTree, ConvertsPointsThroughEverySuperview) {
    EXPECT_EQ(probe->convertPointFromView({50, 50}, nullptr), (Point{20, 90}));
    Probe deeper({5, 5, 10, 10});
    EXPECT_EQ(probe->convertPointFromView({1, 1}, &deeper), (Point{6 - 30, 6 + 40}))
        << "not in the window: no ancestors";
    EXPECT_EQ(probe->window(), &window);
    EXPECT_EQ(probe->moves, 1);
}

TEST_F(ViewTree, DrawsSubviewsAtTheirOriginsAndClearsTheirMarks) {
    RecordingGraphicsContext context;
    EXPECT_TRUE(window.needsDisplay());
    window.display(context);
    ASSERT_EQ(context.texts.size(), 1U);
    EXPECT_EQ(context.texts[0].origin, (Point{31, -38}));
    EXPECT_FALSE(window.needsDisplay());
    probe->setNeedsDisplay(true);
    EXPECT_TRUE(window.needsDisplay());
}

TEST_F(ViewTree, TheHostHearsOfMarksOnlyWhileTheWindowIsShown) {
    probe->setNeedsDisplay(true);
    EXPECT_TRUE(windows.records.empty()) << "no host before it is needed";
    window.orderFront();
    probe->setNeedsDisplay(true);
    EXPECT_EQ(windows.records.at(0)->displayRequests, 1);
    window.close();
    window.close();
    probe->setNeedsDisplay(true);
    EXPECT_EQ(windows.records[0]->displayRequests, 1);
    EXPECT_EQ(windows.records[0]->orderOuts, 1);
    EXPECT_FALSE(windows.records[0]->isHosted) << "released when closed";
}

TEST_F(ViewTree, TrackingAreasHearEnteringMovingAndLeavingAndAViewAPress) {
    probe->addTrackingArea({probe->bounds(), TrackingArea::mouseEnteredAndExited | TrackingArea::mouseMoved});
    for (const Point point : {Point{300, 200}, Point{40, 10}, Point{50, 10}, Point{130, 10}, Point{40, 10}}) {
        window.pointerMoved(point);
    }
    EXPECT_EQ(probe->heard, "emmxem");
    window.pointerLeft();
    window.pointerLeft();
    EXPECT_EQ(probe->heard, "emmxemx");
    window.pointerPressed({40, 10});
    window.pointerPressed({300, 200});
    EXPECT_EQ(probe->heard, "emmxemxd") << "the deepest view under it";
}

TEST_F(ViewTree, OnlyAChangeOfSizeIsAResize) {
    probe->setFrame({0, 0, 100, 80});
    EXPECT_TRUE(probe->oldSizes.empty());
    probe->setFrame({0, 0, 50, 80});
    EXPECT_EQ(probe->oldSizes, (std::vector<Size>{{100, 80}}));
}

TEST_F(ViewTree, AWindowKeepsItsUpperLeftCornerAndCentresOnTheMainScreen) {
    window.orderFront();
    window.setContentSize({200, 100});
    EXPECT_EQ(window.frame(), (Rect{100, 300, 200, 100}));
    EXPECT_EQ(window.contentView()->frame(), (Rect{0, 0, 200, 100}));
    windows.main->frame = {0, 0, 1000, 500};
    window.center();
    EXPECT_EQ(window.frame(), (Rect{400, 200, 200, 100}));
    EXPECT_THAT(windows.records.at(0)->frames, testing::ElementsAre(Rect{100, 300, 200, 100}, window.frame()));
    windows.main.reset();
    window.center();
    EXPECT_EQ(window.frame().x, 400) << "without a screen it stays";
}

TEST(WindowController, LosesAWindowThatGoesFirst) {
    WindowController controller;
    {
        Window window({}, Window::borderless, Window::Backing::buffered, Window::Defer::no);
        controller.setWindow(&window);
        EXPECT_EQ(window.windowController, &controller);
    }
    EXPECT_EQ(controller.window(), nullptr);
    controller.close();
}

}  // namespace
}  // namespace orlamo
