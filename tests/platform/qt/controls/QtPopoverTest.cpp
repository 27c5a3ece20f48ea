#include "platform/qt/controls/PopoverPlacement.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace orlamo
