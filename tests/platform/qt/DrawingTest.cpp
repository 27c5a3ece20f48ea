#include <gmock/gmock.h>

#include <QImage>
#include <QPainter>

#include "platform/View.h"
#include "platform/qt/Damage.h"
#include "platform/qt/DisplayList.h"
#include "platform/qt/QtTextMetrics.h"
#include "platform/qt/Replay.h"
#include "platform/qt/TextCache.h"
#include "tests/platform/qt/QtFixture.h"

namespace orlamo {
namespace {

using ::testing::ElementsAre;

constexpr Color red{1, 0, 0, 1};

// The panel's title bar: arcs of radius 5, clockwise.
Path bar(double x, double y, double width, double height) {
    Path path;
    path.arc({x + width - 5, y + 5}, 5, -50, -90, true)
        .arc({x + 5, y + 5}, 5, -90, -180, true)
        .arc({x + 5, y + height - 5}, 5, 180, 90, true)
        .arc({x + width - 5, y + height - 5}, 5, 90, 0, true)
        .arc({x + width - 5, y + 5}, 5, 0, -50, true)
        .close();
    return path;
}

class Drawing : public QtFixture {
protected:
    QImage painted(const qt::DisplayList& list, QSize points, double scale = 1) {
        QImage image((QSizeF(points) * scale).toSize(), QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        painter.scale(scale, scale);
        qt::replay(list, painter, points.height(), scale, image.rect(), texts);
        return image;
    }
    static int redAt(const QImage& image, int x, int y) { return qRed(image.pixel(x, y)); }

    qt::TextCache texts;
    qt::DisplayList list;
};

struct MovingView : View {
    MovingView() : View({10, 20, 5, 5}) {}
    void drawRect(GraphicsContext& context, const Rect&) override {
        context.pushOrigin({1, 1});
        context.drawText("x", 10, red, {0, 0});
        context.popOrigin();
        setFrame({30, -40, 5, 5});
    }
};

TEST_F(Drawing, AViewThatMovesWhileItDrawsIsPaintedWhereItEndsUp) {
    View parent({0, 0, 100, 100});
    parent.addSubview(std::make_unique<MovingView>());
    parent.display(list);
    list.finish();
    ASSERT_EQ(list.items().size(), 1U);
    EXPECT_EQ(list.origin(list.items()[0]), (Point{31, -39}));
}

TEST_F(Drawing, ABarOfArcsCountedFromTheLowerLeftCornerCoversItsRectangleAndNothingElse) {
    list.fill(bar(20, 10, 60, 15), red);
    list.finish();
    const QImage image = painted(list, {100, 50});
    const QPoint inside[] = {{50, 25}, {25, 25}, {20, 32}, {79, 32}, {50, 39}};
    const QPoint outside[] = {{20, 25}, {79, 39}, {19, 32}, {80, 32}, {50, 24}, {50, 40}, {5, 3}};
    for (const QPoint point : inside)
        EXPECT_NEAR(redAt(image, point.x(), point.y()), 255, 40) << point.x() << ", " << point.y();
    for (const QPoint point : outside)
        EXPECT_NEAR(redAt(image, point.x(), point.y()), 0, 40) << point.x() << ", " << point.y();
}

TEST_F(Drawing, ATextStandsOnItsLineBoxInItsColour) {
    qt::QtTextMetrics metrics(texts);
    const Size size = metrics.measure("HHH", 20);
    list.drawText("HHH", 20, red, {10, 8});
    list.finish();
    const QImage image = painted(list, {100, 60});
    QRect ink;
    for (int y = 0; y < 60; ++y) {
        for (int x = 0; x < 100; ++x) {
            EXPECT_EQ(qGreen(image.pixel(x, y)), 0);
            if (redAt(image, x, y) > 128) ink |= QRect(x, y, 1, 1);
        }
    }
    ASSERT_FALSE(ink.isEmpty());
    EXPECT_GE(ink.left(), 10);
    EXPECT_LE(ink.right(), 10 + size.width);
    EXPECT_NEAR(60 - ink.bottom() - 1, 8 + texts.lineBox(20).descent, 1);
}

TEST_F(Drawing, PaintingWhatChangedGivesTheSamePictureAsPaintingEverything) {
    const QSize points(240, 160);
    const auto cells = [](int hovered, int lit, int rows) {
        qt::DisplayList one;
        for (int row = 0; row < rows; ++row) {
            const Rect cell{20, 140.0 - 20 * row, 180, 20};
            if (row == hovered) one.fill(Path::roundedRect(cell, 5), Color::systemBlueColor());
            if (row % 3 == 0) one.fill(bar(cell.x, cell.y, cell.width, 19), Color::white(0.1));
            const Color color = row == lit ? Color::systemTealColor() : Color::white(1);
            one.drawText("⇧⌘", 14, color, {cell.x + 10, cell.y});
            one.drawText("Ågrave " + std::to_string(row), 14, color, {cell.x + 60, cell.y});
        }
        one.finish();
        return one;
    };
    const double height = points.height();
    for (const double scale : {1.0, 1.25, 1.5}) {
        qt::DisplayList before = cells(-1, -1, 7);
        QImage shown = painted(before, points, scale);
        for (const auto& [hovered, lit, rows] : {std::tuple{2, -1, 7}, {3, -1, 7}, {6, 3, 7}, {-1, 3, 7}, {0, 0, 5}}) {
            qt::DisplayList after = cells(hovered, lit, rows);
            const auto part = qt::damage(before, after, height, scale, texts);
            ASSERT_TRUE(part);
            EXPECT_FALSE(part->isEmpty());
            QPainter painter(&shown);
            painter.setClipRegion(*part);
            painter.fillRect(shown.rect(), Qt::black);
            painter.scale(scale, scale);
            qt::replay(after, painter, height, scale, *part, texts);
            painter.end();
            EXPECT_EQ(shown, painted(after, points, scale)) << hovered << " at " << scale;
            before = std::move(after);
        }
        EXPECT_TRUE(qt::damage(before, before, height, scale, texts)->isEmpty());
    }
}

TEST_F(Drawing, MeasuringTwiceAndAfterManyOtherTextsAnswersTheSame) {
    qt::QtTextMetrics metrics(texts);
    const Size first = metrics.measure("Paste and Match Style  ", 13);
    EXPECT_GT(first.width, metrics.measure("Paste and Match Style", 13).width);
    EXPECT_GT(metrics.measure("Paste and Match Style  ", 26).width, 1.8 * first.width);
    for (int i = 0; i < 40'000; ++i) metrics.measure(std::to_string(i), 9);
    EXPECT_EQ(metrics.measure("Paste and Match Style  ", 13), first);
    EXPECT_EQ(metrics.measure("a\nb\u2028c", 13), metrics.measure("a b c", 13)) << "there is one line";
    EXPECT_EQ(metrics.measure("", 13).width, 0);
}

TEST_F(Drawing, CharactersEndWherePeopleSeeThemEnd) {
    qt::QtTextMetrics metrics(texts);
    EXPECT_THAT(metrics.characterEnds(""), ElementsAre());
    EXPECT_THAT(metrics.characterEnds("Cut"), ElementsAre(1, 2, 3));
    EXPECT_THAT(metrics.characterEnds("⌘中"), ElementsAre(3, 6));
    EXPECT_THAT(metrics.characterEnds("e\u0301x"), ElementsAre(3, 4));
    EXPECT_THAT(metrics.characterEnds("👩\u200d🔧!"), ElementsAre(11, 12));
    EXPECT_THAT(metrics.characterEnds("a\xff\xe4z"), ElementsAre(1, 2, 3, 4));
    EXPECT_THAT(metrics.characterEnds("\xe4\xb8"), ElementsAre(1, 2));
}

}  // namespace
}  // namespace orlamo
