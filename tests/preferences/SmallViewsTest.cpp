#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "preferences/DisablableScrollView.h"
#include "preferences/GradientView.h"
#include "preferences/InterfaceClasses.h"
#include "preferences/LCCustomTableRowView.h"
#include "tests/doubles/FakeControls.h"
#include "tests/doubles/RecordingGraphicsContext.h"

namespace orlamo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<RecordingGraphicsContext::Fill> drawn(LCCustomTableRowView& row) {
    RecordingGraphicsContext context;
    row.display(context);
    return context.fills;
}

TEST(RowView, IsLightUnderThePointerAndDarkWhenSelected) {
    LCCustomTableRowView row;
    row.setFrame({0, 42, 200, 32});
    const Path outline = Path::roundedRect({12.5, 2.5, 175, 27}, 10);
    const RecordingGraphicsContext::Fill dark{outline, {0, 0, 0, 0.35}};
    const RecordingGraphicsContext::Fill light{outline, {1, 1, 1, 0.1}};

    EXPECT_THAT(drawn(row), IsEmpty());
    EXPECT_FALSE(row.needsDisplay());
    row.mouseEntered({});
    EXPECT_TRUE(row.needsDisplay());
    EXPECT_THAT(drawn(row), ElementsAre(light));
    row.isSelected = true;
    EXPECT_THAT(drawn(row), ElementsAre(dark));
    row.mouseExited({});
    EXPECT_TRUE(row.needsDisplay());
    EXPECT_THAT(drawn(row), ElementsAre(dark));
    row.selectionHighlightStyle = TableRowView::SelectionHighlightStyle::none;
    EXPECT_THAT(drawn(row), IsEmpty());
}

TEST(RowView, HearsThePointerOverAllOfItAndDrawsNothingWhereThereIsNoRoom) {
    LCCustomTableRowView row;
    row.setFrame({0, 0, 200, 32});
    row.updateTrackingAreas();
    ASSERT_EQ(row.trackingAreas().size(), 1U);
    EXPECT_EQ(row.trackingAreas()[0].rect, row.bounds());
    EXPECT_EQ(row.trackingAreas()[0].options, 129U);
    row.isSelected = true;
    row.setFrame({0, 0, 25, 32});
    EXPECT_THAT(drawn(row), IsEmpty());
}

TEST(GradientView, EveryPropertyFromTheFileReachesTheLayer) {
    GradientView view;
    EXPECT_TRUE(view.wantsLayer);
    view.awakeFromNib();
    ASSERT_EQ(view.layer, view.GradientLayer);
    const GradientLayer& layer = *view.GradientLayer;
    EXPECT_THAT(layer.colors, ElementsAre(Color::clearColor(), Color::clearColor()));
    EXPECT_THAT(layer.locations, ElementsAre(0, 1));
    EXPECT_EQ(layer.opacity, 1);
    EXPECT_EQ(layer.startPoint, (Point{0, 0.5}));
    EXPECT_EQ(layer.endPoint, (Point{1, 0.5}));

    EXPECT_TRUE(view.setValueForKey(Color::black(), "firstColor"));
    EXPECT_TRUE(view.setValueForKey(Color::white(1), "secondColor"));
    EXPECT_THAT(layer.colors, ElementsAre(Color::black(), Color::white(1)));
    EXPECT_TRUE(view.setValueForKey(false, "isHorizontal"));
    EXPECT_EQ(layer.startPoint, (Point{0.5, 0}));
    EXPECT_EQ(layer.endPoint, (Point{0.5, 1}));
    EXPECT_TRUE(view.setValueForKey(0.25, "layerOpacity"));
    EXPECT_EQ(layer.opacity, 0.25F);

    EXPECT_FALSE(view.setValueForKey(true, "firstColor"));
    EXPECT_FALSE(view.setValueForKey(1.0, "thirdColor"));
}

TEST(InterfaceClasses, MakeAFlippedViewAGradientAndAScrollViewThatIgnoresTheWheel) {
    std::vector<std::string_view> views;
    FakeScrollView scrollView;
    for (const InterfaceClass& each : interfaceClasses()) {
        if (const auto* const make = std::get_if<std::function<std::unique_ptr<View>()>>(&each.make)) {
            views.push_back(each.name);
            EXPECT_EQ((*make)()->isFlipped(), each.name == "FlippedView");
        } else {
            EXPECT_EQ(each.name, "DisablableScrollView");
            std::get<std::function<std::unique_ptr<ScrollViewBehavior>()>>(each.make)()->scrollWheel(scrollView,
                                                                                                     {0, 9});
        }
    }
    EXPECT_THAT(views, ElementsAre("FlippedView", "GradientView"));
    EXPECT_THAT(scrollView.scrolledBy, IsEmpty());
}

}  // namespace
}  // namespace orlamo
