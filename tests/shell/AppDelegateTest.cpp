#include "shell/AppDelegate.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/settings/Settings.h"
#include "shell/utility/Utility.h"
#include "tests/doubles/FakeDesktop.h"

namespace orlamo {
namespace {

using Values = std::map<std::string, UserDefaults::Value, std::less<>>;

class Launch : public testing::Test {
protected:
    FakeDesktop desktop;
    AppDelegate delegate;
};

const Values initialBooleans{{"isLaunchAtLoginEnabled", false},
                             {"isHiddenStatusBar", false},
                             {"isBlurStyle", true},
                             {"isContainsAppleMenu", true},
                             {"isEnableAutomaticCheckUpdate", true}};

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
    const std::vector<UserDefaults::Value> unusable{std::monostate{}, std::string("true"), std::int64_t{2}};
    for (const auto& value : unusable) {
        for (const std::string_view key : defaultsInitializationKeys) {
            desktop.defaults.values.clear();
            for (const auto& [name, initial] : initialBooleans) {
                desktop.defaults.values[name] = !std::get<bool>(initial);
            }
            desktop.defaults.values[std::string(key)] = value;
            writeDefaultValues(desktop.defaults);
            EXPECT_EQ(desktop.defaults.values, initialBooleans) << key;
        }
    }
}

TEST_F(Launch, FiveStoredBooleansStayAsTheyWere) {
    for (const auto& [name, initial] : initialBooleans) desktop.defaults.values[name] = !std::get<bool>(initial);
    desktop.defaults.values["isBlurStyle"] = 0.0;
    Values before = desktop.defaults.values;
    writeDefaultValues(desktop.defaults);
    before["isBlurStyle"] = false;
    EXPECT_EQ(desktop.defaults.values, before);
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

TEST_F(Launch, MonitorsAreInstalledForModifiersKeysAndPresses) {
    delegate.applicationDidFinishLaunching();
    EXPECT_THAT(desktop.monitors.localMasks(), testing::ElementsAre(4096U, 1024U));
    EXPECT_THAT(desktop.monitors.globalMasks(), testing::ElementsAre(4096U, 2U));
}

TEST_F(Launch, APressInAnotherApplicationClosesThePanelWhereverThePointerIsOnAScreen) {
    delegate.applicationDidFinishLaunching();
    desktop.windows.others = {{{1440, 0, 800, 600}, "Second"}};
    const Event press{.type = Event::Type::leftMouseDown};
    struct Case {
        Point pointer;
        const char* screen;
    };
    for (const Case& expected :
         {Case{{10, 10}, "Test screen"}, Case{{1500, 599}, "Second"}, Case{{1500, 700}, nullptr}}) {
        desktop.log.lines.clear();
        desktop.windows.mouse = expected.pointer;
        isShortcutWindowShown = true;
        desktop.monitors.deliverGlobal(press);
        EXPECT_EQ(isShortcutWindowShown, expected.screen == nullptr);
        if (expected.screen == nullptr) {
            EXPECT_TRUE(desktop.log.lines.empty());
            continue;
        }
        EXPECT_EQ(desktop.log.lines,
                  (std::vector<std::string>{"鼠标在屏幕 " + std::string(expected.screen) + " 的范围内，隐藏窗口",
                                            "关闭快捷键窗口。。。"}));
    }
    isShortcutWindowShown = false;
}

}  // namespace
}  // namespace orlamo
