#include "platform/qt/statusbar/BusValues.h"

#include <gtest/gtest.h>

#include "platform/qt/statusbar/MenuService.h"
#include "tests/doubles/FakeRunLoop.h"

namespace orlamo::qt {
namespace {

Menu fourEntries(std::vector<std::string>* performed = nullptr) {
    const auto perform = [performed](const char* what) { return [=] { performed->push_back(what); }; };
    Menu menu;
    menu.items = {{MenuItem::Kind::entry, "Settings_…", perform("settings"), {"gear", true}},
                  {MenuItem::Kind::entry, "Update", perform("update"), {}},
                  MenuItem::separatorItem(),
                  {MenuItem::Kind::entry, "Quit", perform("quit"), {"escape", true}}};
    return menu;
}

QImage onePixel(const NamedImage& image) {
    if (image.name.empty()) return {};
    QImage picture(1, 1, QImage::Format_ARGB32);
    picture.fill(Qt::red);
    return picture;
}

TEST(BusValues, AnIconsBytesAreAlphaRedGreenBlueWithColoursNotMultiplied) {
    QImage image(2, 1, QImage::Format_ARGB32_Premultiplied);
    image.setPixelColor(0, 0, QColor(0x12, 0x34, 0x56));
    image.setPixelColor(1, 0, QColor(255, 0, 0, 51));
    const IconPixmap pixmap = iconPixmap(image);
    EXPECT_EQ(pixmap.width, 2);
    EXPECT_EQ(pixmap.height, 1);
    EXPECT_EQ(pixmap.bytes.toHex(), "ff12345633ff0000");
}

TEST(BusValues, AMenuBecomesNumberedEntriesWithLabelsPicturesAndSeparators) {
    const MenuLayout layout = menuLayout(fourEntries(), onePixel);
    EXPECT_EQ(layout.id, 0);
    EXPECT_EQ(layout.properties["children-display"], "submenu");
    ASSERT_EQ(layout.children.size(), 4);
    for (int i = 0; i < 4; ++i) EXPECT_EQ(layout.children[i].id, i + 1);
    EXPECT_EQ(layout.children[0].properties["label"].toString(), "Settings__…");
    EXPECT_EQ(QImage::fromData(layout.children[0].properties["icon-data"].toByteArray()), onePixel({"gear"}));
    EXPECT_FALSE(layout.children[1].properties.contains("icon-data"));
    EXPECT_EQ(layout.children[2].properties["type"], "separator");
    EXPECT_EQ(findLayout(layout, 4)->properties["label"], "Quit");
    EXPECT_EQ(findLayout(layout, 5), nullptr);

    const MenuLayout reduced = reducedLayout(layout, 1, {"label", "unheard-of"});
    EXPECT_EQ(reduced.children[1].properties, QVariantMap({{"label", "Update"}}));
    EXPECT_TRUE(reducedLayout(layout, 0, {}).children.isEmpty());
    EXPECT_EQ(reducedLayout(layout, -1, {}).children.size(), 4);
}

TEST(MenuService, PerformsAClickedEntryOnlyAfterThePanelHasItsAnswer) {
    FakeRunLoop runLoop;
    std::vector<std::string> performed;
    MenuService service(onePixel);
    service.setMenu(fourEntries(&performed));
    service.Event(1, "hovered", QDBusVariant(), 0);
    service.Event(3, "clicked", QDBusVariant(), 0);  // the separator
    service.Event(0, "clicked", QDBusVariant(), 0);
    const QList<MenuEvent> group{{4, "clicked", QDBusVariant(), 0}, {9, "clicked", QDBusVariant(), 0}};
    EXPECT_EQ(service.EventGroup(group), QList<int>{9});
    EXPECT_TRUE(performed.empty());
    runLoop.advance(0);
    EXPECT_EQ(performed, std::vector<std::string>{"quit"});
}

}  // namespace
}  // namespace orlamo::qt
