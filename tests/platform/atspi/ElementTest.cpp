#include "platform/atspi/Element.h"

#include <gtest/gtest.h>

#include "tests/doubles/FakeNodeSource.h"

namespace orlamo::atspi {
namespace {

class Elements : public testing::Test {
protected:
    /// A menu bar with one item, which opens a popup with one item: as Qt has it.
    static std::shared_ptr<MenuTree> read(const char* item = "new") {
        using Object = FakeNodeSource::Object;
        FakeNodeSource source;
        source.objects = {{"bar", Object{{"file"}, "", ObjectRole::menuBar}},
                          {"file", Object{{"popup"}, "File"}},
                          {"popup", Object{{item}, "", ObjectRole::popupMenu}},
                          {item, Object{{}, "New", ObjectRole::menuItem, states::enabled, "Ctrl+N"}}};
        const BaseKeyOfShifted baseKeyOfShifted = baseKeyOfShiftedOnUsLayout;
        const RawTree raw = MenuReader(source, {}, baseKeyOfShifted).read(FakeNodeSource::ref("bar"));
        return std::make_shared<MenuTree>(shapeMenus(raw, {FakeNodeSource::ref("root"), "Editor"}, {}));
    }
    /// 0 the bar, 1 the session, 2 the application's name, 3 the item in the bar, 4 its menu, 5 the item in that.
    static constexpr std::uint32_t count = 6;
};

TEST_F(Elements, AreTheSameInEachReadingAndDifferFromEachOther) {
    const auto first = read(), second = read();
    ASSERT_EQ(first->nodes.size(), count);
    for (std::uint32_t i = 0; i < count; ++i) {
        for (std::uint32_t j = 0; j < count; ++j) {
            const MenuElement one(first, i), other(second, j);
            EXPECT_EQ(one.isSameElement(other), i == j) << i << " " << j;
        }
        EXPECT_EQ(MenuElement(first, i).hash(), MenuElement(second, i).hash()) << i;
    }
}

TEST_F(Elements, OfAnotherObjectOrAnotherLifeOfTheBusAreOthers) {
    const auto tree = read(), otherItem = read("old"), laterBus = read();
    laterBus->busEpoch = tree->busEpoch + 1;
    const MenuElement item(tree, 5);
    EXPECT_FALSE(item.isSameElement(MenuElement(otherItem, 5)));
    EXPECT_FALSE(item.isSameElement(MenuElement(laterBus, 5)));
}

TEST_F(Elements, ApplicationsAreTheSameByProcess) {
    const ApplicationElement application(7);
    EXPECT_TRUE(application.isSameElement(ApplicationElement(7)));
    EXPECT_FALSE(application.isSameElement(ApplicationElement(8)));
    EXPECT_FALSE(application.isSameElement(MenuElement(read(), 0)));
    EXPECT_FALSE(MenuElement(read(), 0).isSameElement(application));
}

}  // namespace
}  // namespace orlamo::atspi
