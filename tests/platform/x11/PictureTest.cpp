#include <gtest/gtest.h>

#include "platform/x11/ApplicationName.h"
#include "platform/x11/PixelFormat.h"

namespace orlamo::x11 {
namespace {

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

}  // namespace
}  // namespace orlamo::x11
