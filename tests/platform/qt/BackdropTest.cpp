#include <gtest/gtest.h>

#include <cmath>

#include "platform/qt/Backdrop.h"
#include "platform/qt/ScreenCapture.h"
#include "tests/doubles/FakeWindowEffects.h"

namespace orlamo {
namespace {

using qt::BackdropStyle;

double luminance(QRgb pixel) {
    const auto linear = [](int channel) {
        const double value = channel / 255.0;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(pixel)) + 0.7152 * linear(qGreen(pixel)) + 0.0722 * linear(qBlue(pixel));
}

double contrastOfWhite(QRgb background) {
    return 1.05 / (luminance(background) + 0.05);
}

// A bar of white at a tenth, as headings have.
QRgb underBar(QRgb pixel) {
    const auto lit = [](int channel) { return channel + (255 - channel) / 10; };
    return qRgb(lit(qRed(pixel)), lit(qGreen(pixel)), lit(qBlue(pixel)));
}

QImage screenOf(QSize size, QRgb color) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

BackdropStyle styleOf(QSize size, BackdropStyle::Behind behind = BackdropStyle::Behind::covered) {
    BackdropStyle style;
    style.behind = behind;
    style.size = size;
    style.panel = QRectF(QPointF(), size);
    style.cornerRadius = 30;
    return style;
}

TEST(Backdrop, WhiteTextIsReadableOverAnyScreenAlsoOnABar) {
    for (const QRgb color : {qRgb(255, 255, 255), qRgb(255, 255, 0), qRgb(0, 0, 0), qRgb(0, 255, 255)}) {
        const QImage picture = qt::makeBackdrop(styleOf({301, 203}), screenOf({301, 203}, color), {});
        EXPECT_GE(contrastOfWhite(underBar(picture.pixel(150, 100))), 7) << color;
    }
    BackdropStyle sheet = styleOf({301, 203});
    sheet.material = VisualEffectView::Material::sheet;
    EXPECT_GE(contrastOfWhite(underBar(qt::makeBackdrop(sheet, {}, {}).pixel(150, 100))), 7);
    EXPECT_GE(contrastOfWhite(underBar(qt::makeBackdrop(styleOf({301, 203}), {}, {}).pixel(150, 100))), 7);
}

TEST(Backdrop, OverTheCompositorsBlurTheTintAloneKeepsWhiteTextReadable) {
    const auto style = styleOf({301, 203}, BackdropStyle::Behind::blurred);
    const QRgb tint = qt::makeBackdrop(style, {}, {}).pixel(150, 100);
    const auto over = [&](int channel) { return channel * qAlpha(tint) / 255 + 255 - qAlpha(tint); };
    EXPECT_GE(contrastOfWhite(underBar(qRgb(over(qRed(tint)), over(qGreen(tint)), over(qBlue(tint))))), 7);
    EXPECT_LT(qAlpha(tint), 220) << "something of the blur is to be seen";
}

TEST(Backdrop, AnEvenScreenGivesAnEvenPanelUpToItsEdges) {
    const QImage picture = qt::makeBackdrop(styleOf({301, 203}), screenOf({301, 203}, qRgb(200, 90, 40)), {});
    const QRgb middle = picture.pixel(150, 100);
    for (int x = 1; x < 300; ++x) EXPECT_EQ(picture.pixel(x, 100), middle) << x;
    for (int y = 1; y < 202; ++y) EXPECT_EQ(picture.pixel(150, y), middle) << y;
}

TEST(Backdrop, BlurMovesNothingAndSpreadsAnEdge) {
    QImage screen = screenOf({400, 200}, qRgb(0, 0, 0));
    for (int y = 0; y < 200; ++y) {
        for (int x = 200; x < 400; ++x) screen.setPixel(x, y, qRgb(255, 255, 255));
    }
    const QImage picture = qt::makeBackdrop(styleOf({400, 200}), screen, {});
    const auto grey = [&](int x) { return qRed(picture.pixel(x, 100)); };
    EXPECT_NEAR(grey(199) + grey(200), grey(40) + grey(360), 2);
    EXPECT_GT(grey(180), grey(40));
    EXPECT_LT(grey(220), grey(360));
    for (int x = 41; x < 360; ++x) ASSERT_LE(grey(x - 1), grey(x)) << x;
}

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
