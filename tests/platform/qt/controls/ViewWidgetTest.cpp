#include "platform/qt/controls/ViewWidget.h"

#include "tests/platform/qt/controls/WidgetFixture.h"

namespace orlamo {
namespace {

struct Drawing : View {
    Drawing() : View({}) { addTrackingArea({{0, 0, 50, 50}, TrackingArea::mouseEnteredAndExited}); }
    void drawRect(GraphicsContext& context, const Rect&) override {
        ++passes;
        context.fill(Path::roundedRect({10, 0, 0.5, 10}, 0), Color{0, 1, 0, 1});
    }
    void mouseEntered(const MouseEvent&) override { heard += 'e'; }
    void mouseExited(const MouseEvent&) override { heard += 'x'; }

    int passes = 0;
    std::string heard;
};

class Hosting : public WidgetFixture {
protected:
    Hosting() { widget.resize(100, 100); }

    qt::ViewWidget widget{std::make_unique<Drawing>()};
    Drawing& view = static_cast<Drawing&>(widget.view());
};

TEST_F(Hosting, AGradientRunsFromItsStartPointUpwardWithinItsCorners) {
    const auto layer = std::make_shared<GradientLayer>();
    view.wantsLayer = true;
    view.layer = layer;
    layer->colors = {Color{1, 0, 0, 1}, Color{0, 0, 1, 1}};
    layer->cornerRadius = 20;
    QImage image = picture(widget);
    EXPECT_GT(image.pixelColor(50, 98).red(), 240) << "its start is below";
    EXPECT_GT(image.pixelColor(50, 1).blue(), 240);
    EXPECT_NEAR(image.pixelColor(50, 50).red(), 128, 4);
    EXPECT_EQ(image.pixelColor(1, 1).alpha(), 0);
    layer->startPoint = {0, 0.5};
    layer->endPoint = {1, 0.5};
    layer->locations = {0.5, 1};
    layer->opacity = 0.5;
    image = picture(widget);
    EXPECT_NEAR(image.pixelColor(40, 50).red(), 255, 2);
    EXPECT_NEAR(image.pixelColor(40, 50).alpha(), 128, 2);
    EXPECT_GT(image.pixelColor(98, 50).blue(), 240);
}

TEST_F(Hosting, DrawingStandsOnWholePixelsAtAnyScaleYUpward) {
    for (const double scale : {1.0, 1.5, 2.0}) {
        const QImage image = picture(widget, scale);
        int full = 0;
        int partly = 0;
        for (int x = 0; x < image.width(); ++x) {
            const int alpha = image.pixelColor(x, image.height() - 2).alpha();
            full += alpha == 255;
            partly += alpha > 0 && alpha < 255;
        }
        EXPECT_EQ(full, 1) << scale;
        EXPECT_EQ(partly, 0) << scale;
    }
}

TEST_F(Hosting, AMarkIsDrawnAndThePointerHeard) {
    widget.show();
    turnEventLoop();
    const int before = view.passes;
    view.setNeedsDisplay(true);
    turnEventLoop();
    EXPECT_EQ(view.passes, before + 1);
    hover(widget, QEvent::HoverEnter, {10, 60});
    hover(widget, QEvent::HoverMove, {20, 60});
    EXPECT_EQ(view.heard, "e");
    hover(widget, QEvent::HoverMove, {10, 40});
    EXPECT_EQ(view.heard, "ex");
}

}  // namespace
}  // namespace orlamo
