#include "panel/SystemTitle.h"
#include "tests/panel/PanelFixture.h"

namespace orlamo {
namespace {

using CanvasViewLayout = PanelFixture;

struct TierCase {
    std::int64_t total;
    // Columns, rows, a row's height, the texts' size, the gap, rows to a column, and whether it is the dense tier.
    std::tuple<std::int64_t, std::int64_t, std::int64_t, std::int64_t, std::int64_t, std::int64_t, bool> tier;
};

class CanvasViewTier : public PanelFixture, public testing::WithParamInterface<TierCase> {};

TEST_P(CanvasViewTier, FollowsFromTheNumberOfEntriesAndStaysWhenDrawnAgain) {
    addItems(GetParam().total);
    open();
    const auto fitted = view->tempRect;
    for (int pass = 0; pass < 2; ++pass) {
        EXPECT_EQ(std::tuple(view->totalMenuColumn, view->rowNumberEveryColume, view->rowHeight, view->textSize,
                             view->GlobalSpacing, view->totalEveryColume, view->isXcode),
                  GetParam().tier);
        EXPECT_EQ(view->tempRect, fitted);
        draw();
    }
}

INSTANTIATE_TEST_SUITE_P(
    Totals, CanvasViewTier,
    testing::Values(TierCase{0, {1, 40, 16, 13, 20, 40, false}}, TierCase{1, {1, 1, 30, 14, 70, 30, false}},
                    TierCase{16, {1, 16, 30, 14, 70, 30, false}}, TierCase{17, {1, 17, 25, 14, 60, 40, false}},
                    TierCase{24, {1, 24, 25, 14, 60, 40, false}}, TierCase{25, {1, 25, 23, 14, 100, 40, false}},
                    TierCase{33, {1, 33, 25, 14, 80, 40, false}}, TierCase{34, {1, 34, 23, 14, 100, 40, false}},
                    TierCase{36, {1, 36, 23, 14, 100, 40, false}}, TierCase{37, {2, 19, 23, 14, 30, 36, false}},
                    TierCase{38, {2, 19, 25, 14, 70, 30, false}}, TierCase{39, {2, 20, 25, 14, 70, 30, false}},
                    TierCase{40, {2, 20, 22, 14, 60, 35, false}}, TierCase{41, {2, 21, 25, 14, 50, 40, false}},
                    TierCase{67, {2, 34, 25, 14, 50, 40, false}}, TierCase{68, {2, 34, 22, 14, 60, 40, false}},
                    TierCase{79, {2, 40, 22, 14, 60, 40, false}}, TierCase{80, {2, 40, 25, 14, 30, 40, false}},
                    TierCase{81, {3, 27, 25, 14, 30, 40, false}}, TierCase{120, {3, 40, 25, 14, 30, 40, false}},
                    TierCase{121, {4, 31, 16, 13, 20, 40, false}}, TierCase{122, {4, 31, 16, 13, 20, 40, false}},
                    TierCase{124, {4, 31, 16, 13, 20, 40, false}}, TierCase{125, {4, 32, 22, 14, 60, 40, false}},
                    TierCase{159, {4, 40, 22, 14, 60, 40, false}}, TierCase{160, {4, 40, 17, 15, 15, 40, true}},
                    TierCase{200, {4, 50, 17, 15, 15, 40, true}}, TierCase{201, {4, 51, 17, 14, 15, 40, true}}));

TEST_F(CanvasViewLayout, APlainColumnIsAsWideAsItsWidestTitleAndTheWindowFitsAround) {
    addItem("New");
    addItem("Open Location");  // 13 characters of 8.4 points at 14: 109
    open();
    // 189 wide, sysCols 0 and one column: no gap; (2 + 2) rows of 30.
    EXPECT_EQ(view->tempRect, (Rect{(1240 - 189) / 2, (800 - 120) / 2, 219, 210}));
    EXPECT_EQ(window.frame().size(), (Size{249, 240}));
    EXPECT_EQ(window.frame().x, (1440 - 249) / 2.0);
    EXPECT_EQ(window.frame().y, (900 - 240) / 2.0);
    EXPECT_EQ(view->frame(), (Rect{30, -340, 1240, 800}));
    ASSERT_EQ(view->currentShortM.size(), 2U);
    EXPECT_EQ(view->currentShortM[0].rect, (Rect{0, 800 - 340 - 30, 199, 30}));
    EXPECT_EQ(view->currentShortM[1].rect, (Rect{0, 800 - 340 - 60, 199, 30}));
}

TEST_F(CanvasViewLayout, EveryColumnStartsBehindTheWidthsAndGapsBeforeIt) {
    addItems(121);  // four columns of 31 rows, 13 points, gap 20
    addSystems(31);
    addSystem("Keyboard//The widest one");
    addSystems(38);
    open();
    const auto& cells = view->currentShortM;
    ASSERT_EQ(cells.size(), 121U);
    double x = 0;
    for (const std::size_t first : {0U, 31U, 62U, 93U}) {
        EXPECT_EQ(cells[first].rect.x, x);
        EXPECT_GT(cells[first].rect.width, 80);
        EXPECT_EQ(cells[first].rect.y, cells[0].rect.y) << "columns start at the same height";
        x += cells[first].rect.width + 20;
    }
    ASSERT_EQ(view->shortcutsM.size(), 70U);
    for (const std::size_t first : {0U, 31U, 62U}) {
        EXPECT_EQ(view->shortcutsM[first].rect.x, x);
        EXPECT_EQ(view->shortcutsM[first].rect.y, cells[0].rect.y);
        x += view->shortcutsM[first].rect.width + 20;
    }
    EXPECT_TRUE(desktop.log.contains("-------当前程序每列的宽度----134-------134-------134------142"));
    EXPECT_TRUE(desktop.log.contains("-----系统每列宽度--129------- 199----- 129"));
    EXPECT_EQ(view->tempRect->width, x - 20 + 30) << "no gap behind the last column";
    EXPECT_EQ(context.fills.at(1).path.elements[3].point.x + 5, x - 20) << "the system's bar is above all of them";
}

TEST_F(CanvasViewLayout, HeadingsAndTitlelessEntriesAreMeasuredAsAPlaceholder) {
    addHeading("A heading that is much wider than any of the items below it");
    addItem("Cut");
    open();
    EXPECT_EQ(view->currentShortM.at(0).rect.width, static_cast<int>(4 * 0.6 * 14) + 80 + 10);
}

TEST_F(CanvasViewLayout, EachColumnIsAsWideAsItsOwnWidestTitle) {
    addItem("The widest title");
    addItems(40);  // two columns of 21
    desktop.bundle.strings["Name"] = "A localized name";
    addSystem("Keyboard//Name", "⌃", "A", 0, 0x40000);
    addSystems(42);
    open();
    const auto widthOf = [](int characters, int frame) { return static_cast<int>(characters * 0.6 * 14) + frame + 10; };
    EXPECT_EQ(view->currentShortM.at(0).rect.width, widthOf(16, 80));
    EXPECT_EQ(view->currentShortM.at(21).rect.width, widthOf(7, 80));
    EXPECT_EQ(view->shortcutsM.at(0).rect.width, widthOf(16, 90));
    for (const std::size_t next : {21U, 42U}) EXPECT_EQ(view->shortcutsM.at(next).rect.width, widthOf(5, 90));
}

TEST_F(CanvasViewLayout, InTheDenseTierTheFirstSystemColumnIsNarrower) {
    addItems(164);  // four columns of 41
    addSystems(42);
    open();
    EXPECT_EQ(view->shortcutsM.at(0).rect.width, 5 * 9 + 75 + 10);
    EXPECT_EQ(view->shortcutsM.at(41).rect.width, 5 * 9 + 90 + 10);
}

TEST_F(CanvasViewLayout, TheSystemAreaStartsBehindTheColumnWhereTheEntriesEnded) {
    addItems(41);
    menuItemKeyCodes.resize(3);
    addSystems(1);
    open();
    EXPECT_EQ(view->shortcutsM.at(0).rect.x, view->currentShortM.at(0).rect.width - 10 + 50);
}

TEST_F(CanvasViewLayout, ATitleOfMoreThan150PointsIsShortenedToItsFirstPrefixOver147) {
    // Ten-point characters are 6 points wide: 25 make 150, 26 are too wide, and 25 are the first over 147.
    const std::string fits(25, 'x');
    const std::string tooLong = "W" + std::string(65, 'x');
    addItem(fits);
    open();
    EXPECT_EQ(view->currentShortM.at(0).rect.width, static_cast<int>(25 * 0.6 * 14) + 80 + 10);
    desktop.metrics.width = 0.604;  // 151 points
    open();
    EXPECT_EQ(view->currentShortM.at(0).rect.width, static_cast<int>(27 * 0.604 * 14) + 80 + 10);
    desktop.metrics.width = 0.6;
    addItem(tooLong);
    addItem(std::string(19, 'x'));  // less than 150 at 13 points
    addItem(std::string(20, 'x'));
    open();
    EXPECT_EQ(view->currentShortM.at(2).title, std::string(19, 'x'));
    EXPECT_EQ(view->currentShortM.at(3).title, std::string(19, 'x') + "...");
    EXPECT_NE(context.find(tooLong.substr(0, 25) + "..."), nullptr);
    EXPECT_EQ(view->currentShortM.at(1).title, tooLong.substr(0, 25) + "...");
    EXPECT_EQ(view->currentShortM.at(1).rect.width, static_cast<int>(28 * 0.6 * 14) + 80 + 10);
    // Drawing tests at 13 points, where the shorter one is too wide too; its prefix ends one character early.
    EXPECT_EQ(view->currentShortM.at(0).title, std::string(24, 'x') + "...");
}

TEST_F(CanvasViewLayout, APrefixOfJust147PointsIsNotOverItAndAListWithoutANameHasOnlyEntries) {
    addItem(std::string(66, 'x'));
    for (const auto& [width, characters] : {std::pair(0.7, 22), std::pair(0.74, 20)}) {
        desktop.metrics.width = width;
        open();
        EXPECT_EQ(view->currentShortM.at(0).title, std::string(characters, 'x') + "...") << "21 make 147, 20 make 148";
        appMenuItems.pop_back();
    }
    addItem("Wide");
    addItem("W");
    desktop.metrics.width = 15;  // 150 points for the first character alone
    draw();
    ASSERT_EQ(view->currentShortM.size(), 3U);
    EXPECT_EQ(view->currentShortM[1].title, "W...");
    EXPECT_EQ(view->currentShortM[2].title, "...");
}

TEST_F(CanvasViewLayout, ALigatureBehindTheFirstPrefixThatIsTooWideHidesItNot) {
    desktop.metrics.joined = 'j';
    addItem(std::string(25, 'x') + "j" + std::string(40, 'x'));  // 25 make 150 points, 26 and 27 less than 147
    open();
    EXPECT_EQ(view->currentShortM.at(0).title, std::string(25, 'x') + "...");
}

TEST_F(CanvasViewLayout, WithoutTheSessionMenuTheFirstFiveEntriesAreTakenOutButNeverTheName) {
    desktop.defaults.values["isContainsAppleMenu"] = false;
    addHeading("Session");
    addItems(6);
    open();
    EXPECT_EQ(view->itemsToRemove.size(), 5U);
    EXPECT_EQ(std::get<std::string>(view->itemsToRemove.front()), "Session");
    ASSERT_EQ(appMenuItems.size(), 3U);
    EXPECT_EQ(*std::get<MenuItemRecord>(appMenuItems.front()).title, "Item 4");
    appMenuItems.clear();
    addItems(2);
    open("Tiny");
    ASSERT_EQ(appMenuItems.size(), 1U);
    EXPECT_EQ(view->currentAppName, "Tiny");
    EXPECT_NE(context.find("Tiny"), nullptr);
    desktop.accessibility.sessionMenu = false;
    addItems(6);
    open();
    EXPECT_EQ(appMenuItems.size(), 8U) << "where there is no session menu nothing is taken out";
}

TEST_F(CanvasViewLayout, AListWithNothingButANameStillHasRoomForTheSystemArea) {
    addSystems(41);
    open("Reader");
    ASSERT_EQ(view->shortcutsM.size(), 41U);
    const double nameWidth = static_cast<int>(6 * 0.6 * 18) + 80;
    EXPECT_EQ(view->shortcutsM[0].rect.x, nameWidth + 20);
    EXPECT_GT(view->shortcutsM[40].rect.x, view->shortcutsM[0].rect.x) << "40 rows make a column";
}

TEST_F(CanvasViewLayout, TheLogTellsOnePassInOrder) {
    addItems(3);
    open();
    const auto first = std::ranges::find(desktop.log.lines, "****************  开始绘制  ********************");
    const std::vector<std::string> pass(first, desktop.log.lines.end());
    EXPECT_THAT(pass, testing::ElementsAre("****************  开始绘制  ********************",
                                           "---------- 当前程序名称: Editor ----------------- ",
                                           "--------- 当前程序菜单栏的列数: 0 -----------",
                                           "--------- 当前程序菜单栏的total总数: 3 ----------------",
                                           "----------- 绘制的文字的字体大小: 14 ----------------",
                                           "-------当前程序每列的宽度----130-------0-------0------0",
                                           "-----系统每列宽度--0------- 0----- 0", "总宽度：130", "总高度：150",
                                           "当前程序的标题的文字大小: 17", "系统标题的文字大小: 17"));
}

TEST(SystemTitle, IsTakenApartAtItsSeparators) {
    constexpr const char* cases[][3] = {{"Keyboard//Zoom", "Keyboard", "Zoom"},
                                        {"A//B//C", "A/B", "C"},
                                        {"A//B//C//D", "A/B", "C"},
                                        {"One", "One", "One"}};
    for (const auto& [title, path, label] : cases) {
        EXPECT_EQ(splitSystemTitle(title).path, path);
        EXPECT_EQ(splitSystemTitle(title).label, label);
    }
}

}  // namespace
}  // namespace orlamo
