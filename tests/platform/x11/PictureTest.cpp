#include <gtest/gtest.h>

#include <cmath>

#include "platform/x11/ApplicationName.h"
#include "platform/x11/PixelFormat.h"
#include "platform/x11/RoundedShape.h"
#include "platform/x11/TrayInk.h"

namespace orlamo::x11 {
namespace {

/// Whether some part of the pixel lies in the rounded rectangle.
bool isTouched(int x, int y, int width, int height, double radius) {
    const auto beyond = [radius](int pixel, int size) {
        return std::max({radius - (pixel + 1), pixel - (size - radius), 0.0});
    };
    return std::hypot(beyond(x, width), beyond(y, height)) < radius || radius == 0;
}

TEST(RoundedShape, CoversExactlyThePixelsTheOutlineTouches) {
    const int sizes[][3] = {{200, 100, 30}, {61, 61, 30}, {10, 7, 0}, {5, 40, 2}, {90, 90, 45}};
    for (const auto& [width, height, radius] : sizes) {
        std::vector<int> covered(static_cast<std::size_t>(width * height));
        for (const PixelRect& band : roundedBands(width, height, radius)) {
            for (int y = band.y; y < band.y + band.height; ++y) {
                for (int x = band.x; x < band.x + band.width; ++x)
                    ++covered.at(static_cast<std::size_t>(y * width + x));
            }
        }
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                ASSERT_EQ(covered[static_cast<std::size_t>(y * width + x)], isTouched(x, y, width, height, radius))
                    << width << "x" << height << " at " << x << "," << y;
            }
        }
    }
    EXPECT_TRUE(roundedBands(0, 10, 3).empty());
    EXPECT_EQ(roundedBands(10, 10, 500).size(), roundedBands(10, 10, 5).size());
}

TEST(PixelFormat, PicturesOfAnyLayoutBecomeTheSamePixels) {
    const auto bytes = [](std::initializer_list<int> values) {
        std::vector<std::byte> result;
        for (const int value : values) result.push_back(static_cast<std::byte>(value));
        return result;
    };
    const struct {
        const char* name;
        PixelFormat format;
        std::vector<std::byte> picture;  // red 0xff, green 0x82, blue 0x00
        std::size_t stride;
    } rows[] = {
        {"usual", {}, bytes({0x00, 0x82, 0xff, 0x77}), 4},
        {"other byte order", {32, false}, bytes({0x77, 0xff, 0x82, 0x00}), 4},
        {"blue first", {32, true, 0xff, 0xff00, 0xff0000}, bytes({0xff, 0x82, 0x00, 0x00}), 4},
        {"packed", {24}, bytes({0x00, 0x82, 0xff, 0x99}), 4},
        {"565", {16, true, 0xf800, 0x7e0, 0x1f}, bytes({0x00, 0xfc, 0x00, 0x00}), 4},
    };
    for (const auto& row : rows) {
        PixelImage image{3, 2, std::vector<std::uint32_t>(6, 0xff000000)};
        ASSERT_TRUE(convertPixels(row.picture, row.stride, row.format, {11, 21, 1, 1}, 10, 20, image)) << row.name;
        const bool five = row.format.bitsPerPixel == 16;
        EXPECT_EQ(image.pixels[4], five ? 0xffff8100U : 0xffff8200U) << row.name;
        EXPECT_EQ(image.pixels[0], 0xff000000U) << row.name;
        EXPECT_FALSE(convertPixels({row.picture.data(), 1}, row.stride, row.format, {11, 21, 1, 1}, 10, 20, image));
    }
    PixelImage image{1, 1, {0}};
    EXPECT_FALSE(convertPixels(bytes({0, 0, 0, 0}), 4, {8}, {0, 0, 1, 1}, 0, 0, image));
}

TEST(ApplicationName, ComesFromTheClassElseTheTitle) {
    EXPECT_EQ(applicationName("org.gnome.TextEditor", "x"), "TextEditor");
    EXPECT_EQ(applicationName("featherpad", "x"), "Featherpad");
    EXPECT_EQ(applicationName("Gimp-2.10", "x"), "Gimp-2.10");
    EXPECT_EQ(applicationName("", "Untitled"), "Untitled");
    EXPECT_EQ(applicationName("", ""), "");
}

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
