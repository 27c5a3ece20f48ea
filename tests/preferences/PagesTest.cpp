#include "preferences/FreeAppsViewController.h"
#include "preferences/TutorialViewController.h"
#include "preferences/UserSupportController.h"
#include "tests/preferences/PreferencesFixture.h"

namespace orlamo {
namespace {

class Pages : public PreferencesTest {
protected:
    TutorialViewController tutorial;
    UserSupportController support;
    FreeAppsViewController applications;
};

TEST_F(Pages, EachButtonLogsItsPagesAddressAndWhetherItOpened) {
    const std::pair<const char*, const char*> pages[] = {
        {"TutorialVideoButtonTap:", "videoTutorial.example"},
        {"QuestionsAndAnswersButtonTap:", "questionsAndAnswers.example"},
        {"TechnicalSupportButtonTap:", "support.example"},
        {"QQGroupButtonTap:", "chatGroup.example"},
        {"officialWebsiteButtonTap:", "home.example"}};
    tutorial.view();
    support.view();
    applications.view();
    for (const auto& [action, address] : pages) {
        for (const bool opens : {true, false}) {
            desktop.workspace.openingSucceeds = opens;
            desktop.log.lines.clear();
            files.perform(action, button);
            EXPECT_EQ(desktop.workspace.opened.back(), address);
            Lines lines{std::string("官网地址：") + address};
            if (opens) lines.emplace_back("default browser was successfully opened");
            EXPECT_EQ(desktop.log.lines, lines);
        }
    }
}

TEST_F(Pages, MoreAppsLeadsToTheListOnceTwoDaysAreOverAndNowhereWithoutATime) {
    applications.view();
    const double now = desktop.clock.now;
    const std::pair<UserDefaults::Value, Lines> cases[] = {
        {now - 172800, {"developer.example"}},
        {now - 172801, {"applications.example"}},
        {static_cast<std::int64_t>(now) - 172801, {"applications.example"}},
        {now + 60, {"developer.example"}},
        {std::monostate{}, {}},
        {"1600000000", {}},
        {true, {}}};
    for (const auto& [installTime, opened] : cases) {
        desktop.workspace.opened.clear();
        desktop.defaults.values = {{"installTime", installTime}};
        files.perform("moreApps:", button);
        EXPECT_EQ(desktop.workspace.opened, opened);
    }
    EXPECT_TRUE(desktop.log.lines.empty());
}

TEST_F(Pages, TheApplicationsFlowInOneColumnOfCardsUnlessTheFileSaysOtherwise) {
    applications.view();
    const auto& cards = files.control<FakeCollectionView>("collectionView");
    EXPECT_EQ(cards.layout->scrollDirection, FlowLayout::ScrollDirection::vertical);
    EXPECT_FALSE(cards.layout->sectionHeadersPinToVisibleBounds || cards.layout->sectionFootersPinToVisibleBounds);
    EXPECT_EQ(cards.layout->itemSize, (Size{580, 80}));
    EXPECT_EQ(cards.layout->minimumLineSpacing + cards.layout->minimumInteritemSpacing, 0);
    files.beforeViewDidLoad = [this](auto&) { files.control<FakeCollectionView>("collectionView").layout.reset(); };
    FreeAppsViewController other;
    other.view();
    const auto& others = files.control<FakeCollectionView>("collectionView");
    EXPECT_TRUE(others.selectable && others.allowsEmptySelection && !others.allowsMultipleSelection);
    EXPECT_EQ(others.dataSource, &other);
}

TEST_F(Pages, ThereIsACardForEachOfNineApplications) {
    desktop.bundle.strings["freeapps.orlamo.desc"] = "At a glance";
    FakeCollectionView cards;
    EXPECT_EQ(applications.numberOfSectionsInCollectionView(cards), 1);
    ASSERT_EQ(applications.numberOfItemsInSection(cards, 0), 9);
    std::set<std::string> names;
    for (int i = 0; i < 9; ++i) {
        const auto item = applications.itemForRepresentedObjectAtIndexPath(cards, {0, i});
        const auto& entry = applications.freeAppsData[static_cast<std::size_t>(i)];
        const auto& name = *names.insert(files.control<FakeTextField>("name").text).first;
        EXPECT_EQ(name, entry.at("name"));
        EXPECT_EQ(files.control<FakeImageView>("icon").image, "app.orlamo." + name);
        EXPECT_EQ(files.control<FakeTextField>("desc").text, name == "Orlamo" ? "At a glance" : entry.at("desc"));
        EXPECT_TRUE(item->view().wantsLayer);
        EXPECT_EQ(item->view().layer.cornerRadius, 10);
    }
    EXPECT_EQ(names.size(), 9U);
    EXPECT_TRUE(names.contains("Orlamo"));
}

}  // namespace
}  // namespace orlamo
