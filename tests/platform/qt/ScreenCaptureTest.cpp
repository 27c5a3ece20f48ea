#include "platform/qt/ScreenCapture.h"

#include <gtest/gtest.h>

#include "tests/doubles/FakeWindowEffects.h"

namespace orlamo {
namespace {

TEST(ScreenCapture, NeverSeesTheWindowThatStandsThereMeanwhile) {
    FakeWindowEffects effects;
    effects.screen = [](int, int) { return 0xff0000ffU; };
    qt::ScreenCapture capture;
    capture.behind({100, 100, 50, 50});
    // The window is up now, in red, at that place.
    effects.screen = [](int x, int y) {
        return x >= 100 && x < 150 && y >= 100 && y < 150 ? 0xffff0000U : 0xff0000ffU;
    };
    const QImage& larger = capture.behind({90, 80, 90, 90});
    for (int y = 0; y < 90; ++y) {
        for (int x = 0; x < 90; ++x) ASSERT_EQ(larger.pixel(x, y), 0xff0000ffU) << x << ", " << y;
    }
    capture.behind({95, 85, 20, 20});
    EXPECT_EQ(effects.copies.size(), 2U) << "what was captured needs no second look";
}

}  // namespace
}  // namespace orlamo
