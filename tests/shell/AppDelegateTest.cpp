#include "shell/AppDelegate.h"

#include <gmock/gmock.h>

#include "shell/settings/Settings.h"
#include "shell/utility/Utility.h"
#include "tests/doubles/FakeDesktop.h"
#include "tests/doubles/FakeInterfaceFiles.h"
#include "tests/doubles/FakeStatusBar.h"
#include "tests/doubles/FakeUpdates.h"

namespace orlamo {
namespace {

using Lines = std::vector<std::string>;
using Values = std::map<std::string, UserDefaults::Value, std::less<>>;

class Launch : public testing::Test {
protected:
    Launch() { desktop.application.delegate = &delegate; }

    void launch() {
        delegate.applicationWillFinishLaunching();
        delegate.applicationDidFinishLaunching();
        desktop.log.lines.clear();
    }

    FakeDesktop desktop;
    FakeInterfaceFiles files;
    FakeStatusBar statusBar;
    FakeUpdates updates;
    AppDelegate delegate;
};

const Values initialBooleans{{"isLaunchAtLoginEnabled", false},
                             {"isHiddenStatusBar", false},
                             {"isBlurStyle", true},
                             {"isContainsAppleMenu", true},
                             {"isEnableAutomaticCheckUpdate", true}};

TEST_F(Launch, TheStepsFollowEachOtherInOrder) {
    updates.onCheck = [] { logLine("a check"); };
    files.beforeViewDidLoad = [](FakeInterfaceView& view) {
        if (view.name == "InitialViewController") logLine("the preferences");
    };
    desktop.application.whenActivated = [] { logLine("the program comes to the front"); };
    EXPECT_EQ(updates.startedWith, Updates::StartingUpdater::yes) << "before the launch";
    EXPECT_NE(updates.delegate, nullptr);

    delegate.applicationWillFinishLaunching();
    EXPECT_EQ(desktop.defaults.values, (Values{{"NSStatusItem Preferred Position Item-0", std::int64_t{50}}}));
    delegate.applicationDidFinishLaunching();
    using testing::StartsWith;
    EXPECT_THAT(desktop.log.lines,
                testing::ElementsAre("a check", StartsWith("应用程序更新检查已完成，时间："),
                                     "the program comes to the front", "the preferences",
                                     "这是第一次启动应用程序，打印默认值", "已开启辅助功能", "launch: trigger monitors",
                                     "launch: click monitor", "launch: status item", "launch: settings observers"));
    EXPECT_THAT(desktop.application.activations, testing::ElementsAre(Application::IgnoringOtherApps::yes));
    EXPECT_TRUE(desktop.application.policies.empty());
    EXPECT_THAT(desktop.monitors.localMasks(), testing::ElementsAre(4096U, 1024U));
    EXPECT_THAT(desktop.monitors.globalMasks(), testing::ElementsAre(4096U, 2U));
}

TEST_F(Launch, TheNextLaunchLooksForNoUpdatesAndShowsTheIconAlsoWhenItIsHidden) {
    launch();
    updates.checks.clear();
    desktop.defaults.values["isHiddenStatusBar"] = true;
    launch();
    EXPECT_TRUE(updates.checks.empty());
    EXPECT_TRUE(statusBar.item->isVisible);
}

TEST_F(Launch, TheStatusMenuHasFourEntriesThatDoTheirWorkAndASecondLaunchThatOfTheFirst) {
    launch();
    const FakeStatusItemRecord& item = *statusBar.item;
    EXPECT_EQ(item.length, -2);
    EXPECT_TRUE(item.image.name == "menuBarIcon" && item.image.isTemplate);
    const std::vector<std::array<std::string, 2>> expected{{"statusBar.title.setting", "gear"},
                                                           {"statusBar.title.update", ""},
                                                           {"", ""},
                                                           {"statusBar.title.quit", "escape"}};
    ASSERT_EQ(item.menu.items.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(item.menu.items[i].title, expected[i][0]);
        EXPECT_EQ(item.menu.items[i].image.name, expected[i][1]);
        EXPECT_EQ(item.menu.items[i].image.isTemplate, !expected[i][1].empty());
        EXPECT_EQ(item.menu.items[i].kind == MenuItem::Kind::separator, i == 2);
    }
    const std::size_t activations = desktop.application.activations.size();
    delegate.preferences.close();
    item.menu.items[0].action();
    EXPECT_EQ(desktop.windows.visibleWindows(), 1);
    EXPECT_EQ(desktop.application.activations.size(), activations + 1);
    delegate.preferences.close();
    EXPECT_TRUE(delegate.applicationShouldHandleReopen(false)) << "what a second launch does";
    EXPECT_EQ(desktop.windows.visibleWindows(), 1);
    EXPECT_EQ(desktop.windows.records.size(), 1U) << "the same window";
    updates.checks.clear();
    item.menu.items[1].action();
    EXPECT_THAT(updates.checks, testing::ElementsAre(SPUStandardUpdaterController::Origin::user));
    item.menu.items[3].action();
    EXPECT_EQ(desktop.application.terminations, 1);
}

TEST_F(Launch, TheIconFollowsItsSetting) {
    launch();
    desktop.defaults.setObject("isHiddenStatusBar", true);
    EXPECT_FALSE(statusBar.item->isVisible);
    EXPECT_EQ(desktop.log.lines, (Lines{"更新状态栏图标。。。。", "---隐藏"}));
    desktop.log.lines.clear();
    desktop.defaults.values["NSStatusItem Preferred Position Item-0"] = std::int64_t{70};
    const int synchronizations = desktop.defaults.synchronizations;
    desktop.defaults.setObject("isHiddenStatusBar", false);
    EXPECT_TRUE(statusBar.item->isVisible);
    EXPECT_EQ(desktop.log.lines, (Lines{"更新状态栏图标。。。。", "----显示"}));
    EXPECT_EQ(desktop.defaults.integerForKey("NSStatusItemPreferredPositionItem-0"), 70) << "written back, so copied";
    EXPECT_EQ(desktop.defaults.synchronizations, synchronizations + 2);

    delegate.statusBarItem.reset();
    desktop.defaults.setObject("isHiddenStatusBar", true);
}

TEST_F(Launch, APositiveWholePositionIsCopied) {
    launch();
    const char* const copy = "NSStatusItemPreferredPositionItem-0";
    EXPECT_FALSE(desktop.defaults.values.contains(copy)) << "no initial call";
    const std::vector<std::pair<UserDefaults::Value, std::int64_t>> cases{
        {std::int64_t{1}, 1}, {std::int64_t{0}, 1}, {std::int64_t{-3}, 1}, {std::string("7"), 1}, {std::int64_t{9}, 9}};
    for (const auto& [value, copied] : cases) {
        desktop.defaults.setObject("NSStatusItem Preferred Position Item-0", value);
        EXPECT_EQ(desktop.defaults.integerForKey(copy), copied);
    }
}

TEST_F(Launch, AFreshAccountGetsTheDefaultsOnce) {
    delegate.checkFirstLaunch();
    Values expected = initialBooleans;
    expected["isFirstLaunch"] = true;
    EXPECT_EQ(desktop.defaults.values, expected);
    EXPECT_EQ(desktop.log.lines.back(), "这是第一次启动应用程序，打印默认值");

    desktop.defaults.values.erase("isBlurStyle");
    delegate.checkFirstLaunch();
    EXPECT_FALSE(desktop.defaults.values.contains("isBlurStyle")) << "later launches write nothing";
    EXPECT_EQ(desktop.log.lines.back(), "这不是第一次启动应用程序");
}

TEST_F(Launch, OneMissingOrMistypedBooleanResetsAllFive) {
    Values others = initialBooleans;
    for (auto& [name, value] : others) value = !std::get<bool>(value);
    for (const auto& unusable :
         {UserDefaults::Value(), UserDefaults::Value("true"), UserDefaults::Value(std::int64_t{2})}) {
        for (const std::string_view key : defaultsInitializationKeys) {
            desktop.defaults.values = others;
            desktop.defaults.values[std::string(key)] = unusable;
            writeDefaultValues(desktop.defaults);
            EXPECT_EQ(desktop.defaults.values, initialBooleans) << key;
        }
    }
    desktop.defaults.values = others;
    desktop.defaults.values["isBlurStyle"] = 0.0;
    desktop.defaults.values["isHiddenStatusBar"] = std::int64_t{1};
    desktop.defaults.values["isContainsAppleMenu"] = std::int64_t{0};
    desktop.defaults.values["isLaunchAtLoginEnabled"] = 1.0;
    writeDefaultValues(desktop.defaults);
    EXPECT_EQ(desktop.defaults.values, others) << "five good ones stay as they were";
}

TEST_F(Launch, TheColourComesBackAsItWasStoredAndElseIsTheSystems) {
    EXPECT_EQ(loadSelectedColor(), Color::textBackgroundColor());
    const Color color{0.1, 0.25, 0.7, 0.5};
    saveSelectedColor(color);
    EXPECT_EQ(loadSelectedColor(), color);
    desktop.defaults.values["selectedColorData"] = UserDefaults::Data{'O', 'r', 'l', 'C', 1, 0, 0};
    EXPECT_EQ(loadSelectedColor(), Color::textBackgroundColor());
}

TEST_F(Launch, TheTriggerDefaultsToCommandAndAChosenOneStays) {
    desktop.defaults.values["doubleModifierKey"] = std::string("Shift");
    delegate.applicationDidFinishLaunching();
    EXPECT_TRUE(desktop.defaults.boolForKey("isFirstLaunch"));
    EXPECT_EQ(desktop.defaults.stringForKey("doubleModifierKey"), "Shift");
    desktop.defaults.values.erase("doubleModifierKey");
    delegate.applicationDidFinishLaunching();
    EXPECT_EQ(desktop.defaults.stringForKey("doubleModifierKey"), "Command");
    EXPECT_EQ(desktop.defaults.synchronizations, 1);
}

TEST_F(Launch, APressInAnotherApplicationClosesThePanelWhereverThePointerIsOnAScreen) {
    delegate.applicationDidFinishLaunching();
    desktop.windows.others = {{{1440, 0, 800, 600}, "Second"}};
    const Event press{.type = Event::Type::leftMouseDown};
    const std::pair<Point, std::string> cases[] = {
        {{10, 10}, "Test screen"}, {{1500, 599}, "Second"}, {{1500, 700}, ""}};
    for (const auto& [pointer, screen] : cases) {
        desktop.log.lines.clear();
        desktop.windows.mouse = pointer;
        isShortcutWindowShown = delegate.isOpen = true;
        desktop.monitors.deliverGlobal(press);
        EXPECT_EQ(isShortcutWindowShown, screen.empty());
        const Lines lines{"鼠标在屏幕 " + screen + " 的范围内，隐藏窗口", "关闭快捷键窗口。。。"};
        EXPECT_EQ(desktop.log.lines, screen.empty() ? Lines{} : lines);
    }
    desktop.openEditor({FakeAccessibility::item("Save", "S")});
    delegate.canvasWindowController.showShortcutWindow();
    EXPECT_NE(delegate.canvasWindowController.canvasView(), nullptr);
    desktop.windows.mouse = {10, 10};
    desktop.monitors.deliverGlobal(press);
    EXPECT_EQ(delegate.canvasWindowController.canvasView(), nullptr);
    isShortcutWindowShown = false;
}

}  // namespace
}  // namespace orlamo
