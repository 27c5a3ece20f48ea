#include "preferences/InitialViewController.h"
#include "preferences/LCCustomTableRowView.h"
#include "preferences/Preferences.h"
#include "tests/doubles/RecordingGraphicsContext.h"
#include "tests/preferences/PreferencesFixture.h"

namespace orlamo {
namespace {

using testing::Each;
using testing::ElementsAre;

const Point top{0, 480};  // of the fake pages, which are 480 points high

class Tabs : public PreferencesTest {
protected:
    FakeTableView& table() { return files.control<FakeTableView>("tableView"); }
    FakeScrollView& area() { return files.control<FakeScrollView>("scrollView"); }
    const std::string& shownPage() { return dynamic_cast<FakeInterfaceView&>(*area().documents.back()).name; }

    InitialViewController tabs;
};

TEST_F(Tabs, ThePageOfEachTabFollowsTheSelectionAndIsLoadedOnce) {
    desktop.bundle.info["CFBundleShortVersionString"] = PropertyList(std::string("1.2.3"));
    tabs.view();
    EXPECT_EQ(files.control<FakeTextField>("productVersionTextField").text, "Orlamo 1.2.3");
    EXPECT_EQ(table().spacing, (Size{0, 10}));
    EXPECT_THAT(table().selections, ElementsAre(0));
    EXPECT_EQ(shownPage(), "SettingsController");
    const char* const pages[] = {"SettingsController", "TutorialViewController", "FreeAppsViewController",
                                 "UserSupportController"};
    for (const int row : {1, 2, 3, 0, 2}) {
        area().scrolledTo.clear();
        table().selectRow(row);
        EXPECT_EQ(shownPage(), pages[row]);
        EXPECT_THAT(area().scrolledTo, ElementsAre(top));
    }
    EXPECT_EQ(area().elasticity, ScrollView::Elasticity::none);
    EXPECT_THAT(files.loaded, ElementsAre("InitialViewController", "SettingsController", "TutorialViewController",
                                          "FreeAppsViewController", "UserSupportController"));
}

TEST_F(Tabs, ChoosingTheSelectedTabShowsItsPageAgain) {
    tabs.view();
    const auto shownBefore = area().documents.size();
    tabs.selectTab(0);
    EXPECT_EQ(area().documents.size(), shownBefore + 1);
    EXPECT_THAT(table().selections, ElementsAre(0));
}

TEST_F(Tabs, WhatIsNoTabOfThisListShowsNoPage) {
    tabs.view();
    const auto shownBefore = area().documents.size();
    FakeTableView other;
    other.selected = 2;
    tabs.tableViewSelectionDidChange(other);
    table().selected = -1;
    tabs.tableViewSelectionDidChange(table());
    tabs.selectTab(4);
    EXPECT_EQ(area().documents.size(), shownBefore);
}

TEST_F(Tabs, AreFourRowsOfTitlesByKeyAndImages) {
    FakeTableView table;
    EXPECT_EQ(tabs.numberOfRowsInTableView(table), 4);
    EXPECT_EQ(tabs.heightOfRow(table, 3), 32);
    EXPECT_NE(dynamic_cast<LCCustomTableRowView*>(tabs.rowViewForRow(table, 0).get()), nullptr);
    const std::pair<const char*, const char*> rows[] = {{"tab.types.settings", "General1"},
                                                        {"tab.types.tutorial", "Learn1"},
                                                        {"tab.types.free_apps", "freeapp1"},
                                                        {"tab.types.about", "contactus2"}};
    for (int row = 0; row < 4; ++row) {
        EXPECT_EQ(tabs.viewForTableColumn(table, row).text, rows[row].first);
        EXPECT_EQ(tabs.viewForTableColumn(table, row).image, rows[row].second);
    }
}

TEST_F(Tabs, AWindowWithoutVersionTableOrAreaStillOpens) {
    tabs.view();
    EXPECT_EQ(files.control<FakeTextField>("productVersionTextField").text, "Orlamo ");
    for (const char* const outlet : {"productVersionTextField", "tableView", "scrollView"}) {
        files.missing = {outlet};
        InitialViewController partly;
        partly.view();
        if (files.missing.contains("scrollView")) continue;
        EXPECT_EQ(shownPage(), "SettingsController") << "without " << outlet;
    }
    desktop.log.lines.clear();
    files.view("InitialViewController")->disappear();
}

TEST_F(PreferencesTest, TheWindowOpensCentredAndCanAlwaysBeClosedAndShownAgain) {
    Preferences preferences;
    preferences.showWindow();
    ASSERT_NE(preferences.window(), nullptr);
    EXPECT_EQ(preferences.window()->frame(), (Rect{320, 170, 800, 560}));
    for (int time = 0; time < 2; ++time) {
        preferences.window()->performClose();
        EXPECT_FALSE(preferences.window()->isVisible());
        preferences.showWindow();
        EXPECT_TRUE(preferences.window()->isVisible());
    }
    EXPECT_EQ(std::ranges::count(files.loaded, "InitialViewController"), 1);
    files.view("InitialViewController")->disappear();
    EXPECT_EQ(desktop.log.lines.back(), "InitialViewController 即将消失。。。。");
}

}  // namespace
}  // namespace orlamo
