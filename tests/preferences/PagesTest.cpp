#include "preferences/FreeAppsItem.h"
#include "preferences/FreeAppsViewController.h"
#include "preferences/TutorialViewController.h"
#include "preferences/UserSupportController.h"
#include "tests/preferences/PreferencesFixture.h"

namespace orlamo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Pages : public PreferencesTest {
protected:
    FakeButton button;
    TutorialViewController tutorial;
    UserSupportController support;
    FreeAppsViewController applications;
};

TEST_F(Pages, EachButtonLogsItsPagesAddressAndOpensIt) {
    const std::pair<const char*, const char*> pages[] = {
        {"TutorialVideoButtonTap:", "https://videoTutorial.example/"},
        {"QuestionsAndAnswersButtonTap:", "https://questionsAndAnswers.example/"},
        {"TechnicalSupportButtonTap:", "https://support.example/"},
        {"QQGroupButtonTap:", "https://chatGroup.example/"},
        {"officialWebsiteButtonTap:", "https://home.example/"}};
    tutorial.view();
    support.view();
    applications.view();
    for (const auto& [action, address] : pages) {
        desktop.log.lines.clear();
        files.perform(action, button);
        EXPECT_EQ(desktop.workspace.opened.back(), address);
        EXPECT_THAT(desktop.log.lines,
                    ElementsAre(std::string("官网地址：") + address, "default browser was successfully opened"));
    }
    EXPECT_EQ(desktop.workspace.opened.size(), std::size(pages));
}

TEST_F(Pages, AnAddressThatNothingOpensIsNoSuccess) {
    tutorial.view();
    desktop.workspace.openingSucceeds = false;
    files.perform("TutorialVideoButtonTap:", button);
    EXPECT_THAT(desktop.log.lines, ElementsAre("官网地址：https://videoTutorial.example/"));
}

TEST_F(Pages, MoreAppsLeadsToTheListOnceTwoDaysAreOver) {
    applications.view();
    const double now = desktop.clock.now = 1'700'000'000;
    const std::pair<UserDefaults::Value, std::string> cases[] = {
        {now - 172800.0, "https://developer.example/"},
        {now - 172801.0, "https://applications.example/"},
        {now - 172800.001, "https://applications.example/"},
        {static_cast<std::int64_t>(now) - 172801, "https://applications.example/"},
        {static_cast<std::int64_t>(now) + 60, "https://developer.example/"},
        {std::monostate{}, ""},
        {std::string("1600000000"), ""},
        {true, ""}};
    for (const auto& [installTime, opened] : cases) {
        desktop.workspace.opened.clear();
        desktop.defaults.values = {{"installTime", installTime}};
        files.perform("moreApps:", button);
        EXPECT_EQ(testing::PrintToString(desktop.workspace.opened),
                  testing::PrintToString(opened.empty() ? std::vector<std::string>{} : std::vector{opened}));
    }
    EXPECT_THAT(desktop.log.lines, IsEmpty());
}

TEST_F(Pages, TheApplicationsFlowInOneColumnOfCards) {
    applications.view();
    const auto& cards = files.control<FakeCollectionView>("collectionView");
    EXPECT_EQ(cards.layout->scrollDirection, FlowLayout::ScrollDirection::vertical);
    EXPECT_FALSE(cards.layout->sectionHeadersPinToVisibleBounds);
    EXPECT_FALSE(cards.layout->sectionFootersPinToVisibleBounds);
    EXPECT_EQ(cards.layout->itemSize, (Size{580, 80}));
    EXPECT_EQ(cards.layout->minimumLineSpacing, 0);
    EXPECT_EQ(cards.layout->minimumInteritemSpacing, 0);
    EXPECT_TRUE(cards.selectable);
    EXPECT_TRUE(cards.allowsEmptySelection);
    EXPECT_FALSE(cards.allowsMultipleSelection);
    EXPECT_EQ(cards.dataSource, &applications);
}

TEST_F(Pages, AnotherLayoutStaysAsItsFileGivesIt) {
    files.beforeViewDidLoad = [](FakeInterfaceView& view) {
        dynamic_cast<FakeCollectionView&>(*view.controls.at("collectionView")).layout.reset();
    };
    applications.view();
    EXPECT_EQ(files.control<FakeCollectionView>("collectionView").dataSource, &applications);
}

TEST_F(Pages, ThereIsACardForEachOfNineApplications) {
    desktop.bundle.strings["freeapps.orlamo.desc"] = "Shortcuts at a glance";
    FakeCollectionView cards;
    EXPECT_EQ(applications.numberOfSectionsInCollectionView(cards), 1);
    ASSERT_EQ(applications.numberOfItemsInSection(cards, 0), 9);
    std::set<std::string> names;
    for (int i = 0; i < 9; ++i) {
        const auto item = applications.itemForRepresentedObjectAtIndexPath(cards, {0, i});
        const StringDictionary& entry = applications.freeAppsData[static_cast<std::size_t>(i)];
        const std::string name = files.control<FakeTextField>("name").text;
        names.insert(name);
        EXPECT_EQ(name, entry.at("name"));
        EXPECT_EQ(files.control<FakeImageView>("icon").image, entry.at("icon"));
        EXPECT_EQ(files.control<FakeTextField>("desc").text,
                  name == "Orlamo" ? "Shortcuts at a glance" : entry.at("desc"));
        EXPECT_TRUE(item->view().wantsLayer);
        EXPECT_EQ(item->view().layer.cornerRadius, 10);
        EXPECT_EQ(item->view().layer.backgroundColor, Color::clearColor());
    }
    EXPECT_EQ(names.size(), 9U);
    EXPECT_TRUE(names.contains("Orlamo"));
}

}  // namespace
}  // namespace orlamo
