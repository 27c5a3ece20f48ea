#include "platform/View.h"

#include <gtest/gtest.h>

#include "platform/WindowController.h"
#include "tests/doubles/FakeWindowSystem.h"

namespace orlamo {
namespace {

class Probe : public View {
public:
    using View::View;
    void resizeSubviewsWithOldSize(Size oldSize) override { oldSizes.push_back(oldSize); }

    std::vector<Size> oldSizes;
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
}

TEST_F(ViewTree, OnlyAChangeOfSizeIsAResize) {
    probe->setFrame({0, 0, 100, 80});
    EXPECT_TRUE(probe->oldSizes.empty());
    probe->setFrame({0, 0, 50, 80});
    EXPECT_EQ(probe->oldSizes, (std::vector<Size>{{100, 80}}));
}

TEST_F(ViewTree, AWindowStaysWithoutAScreenAndKeepsNoHostWhenItIsClosedAndReleased) {
    windows.main.reset();
    window.center();
    EXPECT_EQ(window.frame(), (Rect{100, 100, 400, 300}));
    window.orderFront();
    window.close();
    EXPECT_FALSE(windows.records.at(0)->isHosted);
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
