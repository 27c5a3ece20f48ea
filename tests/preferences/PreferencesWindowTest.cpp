#include "preferences/Preferences.h"

#include "preferences/DisablableScrollView.h"
#include "preferences/GradientView.h"
#include "preferences/InitialViewController.h"
#include "preferences/LCCustomTableRowView.h"
#include "tests/doubles/RecordingGraphicsContext.h"
#include "tests/preferences/PreferencesFixture.h"

namespace orlamo {
namespace {

class Tabs : public PreferencesTest {
protected:
    FakeTableView& table() { return files.control<FakeTableView>("tableView"); }
    FakeScrollView& area() { return files.control<FakeScrollView>("scrollView"); }
    const std::string& shown() { return dynamic_cast<FakeInterfaceView&>(*area().documents.back()).name; }

    InitialViewController tabs;
};

TEST_F(Tabs, ThePageOfEachTabFollowsTheSelectionFromItsTopAndIsLoadedOnce) {
    const Lines pages{"SettingsController", "TutorialViewController", "FreeAppsViewController",
                      "UserSupportController"};
    tabs.view();
    EXPECT_EQ(table().selections, std::vector<int>{0});
    EXPECT_EQ(shown(), pages[0]);
    for (const int row : {1, 2, 3, 0, 2}) {
        table().selectRow(row);
        EXPECT_EQ(shown(), pages.at(static_cast<std::size_t>(row)));
        EXPECT_EQ(area().scrolledTo, std::vector{(Point{0, files.viewSize.height})});
    }
    tabs.selectTab(2);
    EXPECT_EQ(area().documents.size(), 8U) << "the same page once more";
    EXPECT_EQ(table().selections, (std::vector{0, 1, 2, 3, 0, 2}));
    EXPECT_EQ(area().elasticity, ScrollView::Elasticity::none);
    EXPECT_EQ(Lines(files.loaded.begin() + 1, files.loaded.end()), pages);
}

TEST_F(Tabs, WhatIsNoTabOfThisListShowsNoPage) {
    tabs.view();
    const auto before = area().documents.size();
    FakeTableView other;
    other.selected = 2;
    tabs.tableViewSelectionDidChange(other);
    table().selected = -1;
    tabs.tableViewSelectionDidChange(table());
    tabs.selectTab(4);
    EXPECT_EQ(area().documents.size(), before);
}

TEST_F(Tabs, AreFourRowsOfTitlesByKeyAndImages) {
    tabs.view();
    EXPECT_EQ(table().rows, 4);
    EXPECT_EQ(table().spacing, (Size{0, 10}));
    EXPECT_EQ(tabs.heightOfRow(table(), 3), 32);
    EXPECT_NE(dynamic_cast<LCCustomTableRowView*>(tabs.rowViewForRow(table(), 0).get()), nullptr);
    const std::pair<const char*, const char*> rows[] = {{"tab.types.settings", "General1"},
                                                        {"tab.types.tutorial", "Learn1"},
                                                        {"tab.types.free_apps", "freeapp1"},
                                                        {"tab.types.about", "contactus2"}};
    for (int row = 0; row < 4; ++row) {
        const TableCellView cell = tabs.viewForTableColumn(table(), row);
        EXPECT_EQ(std::pair(cell.text, cell.image), (std::pair<std::string, std::string>(rows[row])));
    }
}

TEST_F(PreferencesTest, TheWindowOpensCentredNamesTheVersionAndIsKeptWhenItCloses) {
    Preferences preferences;
    preferences.showWindow();
    EXPECT_EQ(files.control<FakeTextField>("productVersionTextField").text, "Orlamo ");
    EXPECT_EQ(preferences.window()->frame(), (Rect{320, 170, 800, 560}));
    preferences.window()->performClose();
    EXPECT_FALSE(preferences.window()->isVisible());
    preferences.showWindow();
    EXPECT_TRUE(preferences.window()->isVisible());
    EXPECT_EQ(files.loaded, (Lines{"InitialViewController", "SettingsController"}));
    files.view("InitialViewController")->disappear();
    EXPECT_EQ(desktop.log.lines.back(), "InitialViewController 即将消失。。。。");

    files.missing = {"tableView", "scrollView"};
    for (const auto& [version, text] : {std::pair(PropertyList(std::string("1.2.3")), "Orlamo 1.2.3"),
                                        std::pair(PropertyList(std::int64_t{3}), "Orlamo ")}) {
        desktop.bundle.info["CFBundleShortVersionString"] = version;
        InitialViewController withoutTabs;
        withoutTabs.view();
        EXPECT_EQ(files.control<FakeTextField>("productVersionTextField").text, text);
    }
}

TEST_F(PreferencesTest, AWindowWhoseScreenIsGoneComesBackOnTheOneThatIsLeft) {
    desktop.windows.others = {Screen{{1440, 0, 1280, 1024}, "Second screen"}};
    Preferences preferences;
    preferences.showWindow();
    const Rect there{1500, 100, 800, 560};
    preferences.window()->frameChangedByUser(there);
    preferences.showWindow();
    EXPECT_EQ(preferences.window()->frame(), there);
    desktop.windows.others.clear();
    desktop.windows.main = Screen{{0, 0, 720, 450}, "Test screen"};
    preferences.showWindow();
    EXPECT_EQ(preferences.window()->frame(), (Rect{8, 48, 704, 354}));
}

TEST(RowView, IsLightUnderThePointerAndDarkWhenSelected) {
    LCCustomTableRowView row;
    row.setFrame({0, 42, 200, 32});
    row.updateTrackingAreas();
    EXPECT_EQ(row.trackingAreas().at(0).rect, row.bounds());
    EXPECT_EQ(row.trackingAreas().at(0).options, 129U);

    using Fills = std::vector<RecordingGraphicsContext::Fill>;
    const auto drawn = [&row] {
        RecordingGraphicsContext context;
        row.display(context);
        return context.fills;
    };
    const Path outline = Path::roundedRect({12.5, 2.5, 175, 27}, 10);
    const Fills none, light{{outline, {1, 1, 1, 0.1}}}, dark{{outline, {0, 0, 0, 0.35}}};
    EXPECT_EQ(drawn(), none);
    for (const auto& [isUnderPointer, fills] : {std::pair(true, light), std::pair(false, none)}) {
        row.isSelected = false;
        isUnderPointer ? row.mouseEntered({}) : row.mouseExited({});
        EXPECT_TRUE(row.needsDisplay());
        EXPECT_EQ(drawn(), fills);
        row.isSelected = true;
        EXPECT_EQ(drawn(), dark);
    }
    const Fills least{{Path::roundedRect({12.5, 2.5, 1, 1}, 10), {0, 0, 0, 0.35}}};
    for (const auto& [size, fills] : {std::pair(Size{25, 6}, none), {{26, 5}, none}, {{26, 6}, least}}) {
        row.setFrame({0, 0, size.width, size.height});
        EXPECT_EQ(drawn(), fills);
    }
    row.selectionHighlightStyle = TableRowView::SelectionHighlightStyle::none;
    EXPECT_EQ(drawn(), none);
}

TEST(GradientView, EveryPropertyFromTheFileReachesTheLayer) {
    GradientView view;
    view.awakeFromNib();
    ASSERT_TRUE(view.wantsLayer && view.layer == view.GradientLayer);
    const GradientLayer& layer = *view.GradientLayer;
    RecordingGraphicsContext context;
    view.display(context);
    EXPECT_EQ(std::pair(layer.startPoint, layer.endPoint), std::pair(Point{0, 0.5}, Point{1, 0.5}));
    EXPECT_TRUE(view.setValueForKey(Color::black(), "firstColor"));
    EXPECT_EQ(layer.colors, (std::vector{Color::black(), Color::clearColor()}));
    EXPECT_TRUE(view.needsDisplay());
    EXPECT_TRUE(view.setValueForKey(Color::grey(1), "secondColor"));
    EXPECT_EQ(layer.colors, (std::vector{Color::black(), Color::grey(1)}));
    EXPECT_EQ(layer.locations, (std::vector{0.0, 1.0}));
    EXPECT_TRUE(view.setValueForKey(false, "isHorizontal"));
    EXPECT_EQ(std::pair(layer.startPoint, layer.endPoint), std::pair(Point{0.5, 0}, Point{0.5, 1}));
    EXPECT_TRUE(view.setValueForKey(0.25, "layerOpacity"));
    EXPECT_EQ(layer.opacity, 0.25F);
    EXPECT_FALSE(view.setValueForKey(true, "firstColor"));
    EXPECT_FALSE(view.setValueForKey(0.5, "isHorizontal"));
}

TEST(DisablableScrollView, DropsTheWheel) {
    FakeScrollView scrollView;
    DisablableScrollView().scrollWheel(scrollView, {0, 9});
    EXPECT_TRUE(scrollView.scrolledBy.empty());
}

TEST_F(PreferencesTest, TheWindowShowsAllOfItsViewFitsOnASmallScreenAndNeedsNoDescription) {
    files.viewSize = {790, 610};
    Preferences tall;
    tall.showWindow();
    EXPECT_EQ(tall.window()->frame().size(), (Size{800, 610}));

    desktop.windows.main = Screen{{0, 0, 800, 500}, "Small"};
    Preferences small;
    small.showWindow();
    EXPECT_LE(small.window()->frame().width, 800);
    EXPECT_LT(small.window()->frame().maxY(), 500 - 20) << "room for the title bar";
    EXPECT_LE(small.window()->minSize.height, small.window()->frame().height);

    files.windows.clear();
    Preferences bare;
    bare.showWindow();
    EXPECT_GT(bare.window()->frame().width, 100);
    EXPECT_EQ(bare.window()->styleMask(), Window::titled | Window::closable);
}

}  // namespace
}  // namespace orlamo
