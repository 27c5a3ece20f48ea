#include "platform/x11/TrayInk.h"

#include <gtest/gtest.h>

#include <vector>

namespace orlamo::x11 {
namespace {

TEST(TrayInk, IsThePanelsOwnColourElseOneThatCanBeSeen) {
    const struct {
        std::vector<std::uint32_t> panel;
        std::vector<std::uint32_t> background;
        std::uint32_t ink;
    } rows[] = {
        {{}, {}, 0xe6e6e6},
        {{}, {0xff101010, 0xff303030}, 0xe6e6e6},
        {{}, {0xffffffff, 0xffc0c0c0}, 0x2e2e2e},
        {{}, {0xff0000ff}, 0xe6e6e6},  // blue looks dark,
        {{}, {0xff00ff00}, 0x2e2e2e},  // green light
        {{0x1234, 0xabff, 0xffff, 0, 0, 0}, {0xffffffff}, 0x12abff},
        {{0x1234}, {0xffffffff}, 0x2e2e2e},
    };
    for (const auto& [panel, background, ink] : rows) {
        const PixelImage image{static_cast<int>(background.size()), 1, background};
        EXPECT_EQ(trayInk(panel, image), ink) << std::hex << ink;
    }
}

}  // namespace
}  // namespace orlamo::x11
