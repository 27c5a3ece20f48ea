#include "platform/qt/statusbar/BusValues.h"

#include <gtest/gtest.h>

namespace orlamo::qt {
namespace {

TEST(BusValues, AnIconsBytesAreAlphaRedGreenBlueWithColoursNotMultiplied) {
    QImage image(2, 1, QImage::Format_ARGB32_Premultiplied);
    image.setPixelColor(0, 0, QColor(0x12, 0x34, 0x56));
    image.setPixelColor(1, 0, QColor(255, 0, 0, 51));
    const IconPixmap pixmap = iconPixmap(image);
    EXPECT_EQ(pixmap.width, 2);
    EXPECT_EQ(pixmap.height, 1);
    EXPECT_EQ(pixmap.bytes.toHex(), "ff12345633ff0000");
}

}  // namespace
}  // namespace orlamo::qt
