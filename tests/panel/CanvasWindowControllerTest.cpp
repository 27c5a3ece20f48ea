#include "panel/CanvasWindowController.h"

#include <gmock/gmock.h>

#include "core/ShortcutRecords.h"
#include "core/SystemShortcuts.h"
#include "panel/CanvasView.h"
#include "platform/VisualEffectView.h"
#include "tests/doubles/FakeDesktop.h"

namespace orlamo {
namespace {

class PanelController : public testing::Test {
protected:
    PanelController() {
        mainScreenSize.reset();
        frontmostBundleIdentifier.reset();
        isShortcutWindowShown = false;
        appMenuItems.clear();
        menuItemKeyCodes.clear();
        desktop.openEditor({FakeAccessibility::item("Save", "S")});
        desktop.preferences.setHotKeys(PropertyList::Dictionary{{"52", FakeSystemPreferences::hotKey(true, 2, 0)}});
    }

    FakeDesktop desktop;
    const RunningApplication program{1, desktop.bundle.identifier, "Orlamo"};
    CanvasWindowController controller;
};

TEST_F(PanelController, OpensABorderlessDarkWindowAboveOthersAndActivatesTheProgram) {
    desktop.defaults.values["CornerRadius"] = std::int64_t{12};
    desktop.application.whenActivated = [] {
        EXPECT_FALSE(appMenuItems.empty()) << "read while the other is in front";
    };
    controller.showShortcutWindow();
    const Window& panel = controller.canvasWindow();
    EXPECT_EQ(panel.frame(), (Rect{100, 100, 1240, 800}));
    EXPECT_EQ(panel.styleMask(), 0U);
    EXPECT_EQ(panel.level, 25);
    EXPECT_EQ(panel.appearance, "NSAppearanceNameDarkAqua");
    EXPECT_FALSE(panel.isOpaque);
    EXPECT_FALSE(panel.hasShadow);
    EXPECT_FALSE(panel.hidesOnDeactivate);
    EXPECT_TRUE(panel.isReleasedWhenClosed);
    EXPECT_TRUE(panel.isVisible());
    EXPECT_EQ(panel.backgroundColor, Color::clearColor());
    EXPECT_EQ(desktop.application.activations.size(), 1U);
    ASSERT_NE(controller.canvasView(), nullptr);
    EXPECT_EQ(controller.canvasView()->frame().size(), (Size{1240, 800}));
    EXPECT_EQ(controller.canvasView()->ShortcutWindowCornerRadius, 12);
    EXPECT_EQ(controller.canvasView()->ShortcutWindowBgColor, Color::textBackgroundColor());
}

TEST_F(PanelController, WithoutBlurTheMaterialIsThePlainerOneAndAllElseStays) {
    for (const auto& [isBlurStyle, material] : {std::pair{true, 15}, std::pair{false, 11}}) {
        desktop.defaults.values["isBlurStyle"] = isBlurStyle;
        controller.showShortcutWindow();
        const auto* const blur = dynamic_cast<VisualEffectView*>(controller.canvasWindow().contentView());
        ASSERT_NE(blur, nullptr);
        EXPECT_EQ(static_cast<int>(blur->material), material);
        EXPECT_EQ(static_cast<int>(blur->state), 1);
        EXPECT_EQ(static_cast<int>(blur->blendingMode), 1);
        EXPECT_EQ(blur->maskImage->cornerRadius, 30);
        EXPECT_FALSE(blur->maskImage->flipped);
        controller.hideShortcutWindow();
    }
}

TEST_F(PanelController, DoesNothingForTheProgramItself) {
    desktop.workspace.frontmost = program;
    controller.showShortcutWindow();
    EXPECT_TRUE(desktop.windows.records.empty());
    EXPECT_TRUE(desktop.application.activations.empty());
    EXPECT_EQ(desktop.log.lines,
              (std::vector<std::string>{"------------ 双击显示窗口 --------------",
                                        "前台应用的 Bundle Identifier: " + desktop.bundle.identifier}));
}

TEST_F(PanelController, AnUnreadableApplicationLeavesTheWindowHidden) {
    desktop.accessibility.trusted = false;
    controller.showShortcutWindow();
    EXPECT_EQ(desktop.application.activations.size(), 1U) << "the window is created all the same";
    EXPECT_EQ(desktop.windows.visibleWindows(), 0);
    EXPECT_FALSE(desktop.log.contains("获取到了快捷键，就设置UI"));
}

TEST_F(PanelController, WithoutAMainScreenOneLineIsLoggedAndNothingIsRead) {
    desktop.windows.main.reset();
    controller.showShortcutWindow();
    EXPECT_TRUE(desktop.windows.records.empty());
    EXPECT_TRUE(menuItemKeyCodes.empty());
    EXPECT_EQ(desktop.log.count("no main screen: the panel is not shown"), 1);
}

TEST_F(PanelController, HidingEmptiesTheListsAndHandsTheFocusBack) {
    isShortcutWindowShown = true;
    controller.showShortcutWindow();
    EXPECT_EQ(menuItemKeyCodes.size(), 1U);
    EXPECT_EQ(systemShortcutList.size(), 2U);
    desktop.workspace.frontmost = program;
    desktop.workspace.activations.clear();
    controller.hideShortcutWindow();
    EXPECT_FALSE(isShortcutWindowShown);
    EXPECT_TRUE(appMenuItems.empty());
    EXPECT_TRUE(menuItemElements.empty());
    EXPECT_TRUE(menuItemKeyCodes.empty());
    EXPECT_TRUE(systemShortcutList.empty());
    EXPECT_EQ(desktop.windows.visibleWindows(), 0);
    EXPECT_THAT(desktop.workspace.activations, testing::ElementsAre(testing::Pair(FakeDesktop::editorProcess, 2U)));
}

TEST_F(PanelController, HidingLeavesTheUserWhereTheyWentMeanwhileAndOneNeverShownHandsNothingBack) {
    desktop.workspace.frontmost = program;
    controller.hideShortcutWindow();
    EXPECT_TRUE(desktop.workspace.activations.empty());
    desktop.openEditor({FakeAccessibility::item("Save", "S")});
    controller.showShortcutWindow();
    desktop.workspace.activations.clear();
    desktop.workspace.frontmost = RunningApplication{77, "org.example.browser", "Browser"};
    controller.hideShortcutWindow();
    EXPECT_TRUE(desktop.workspace.activations.empty());
}

TEST_F(PanelController, EveryShowingStartsAnewButWithTheScreensSizeOfTheFirst) {
    controller.showShortcutWindow();
    ASSERT_NE(controller.canvasView(), nullptr);
    controller.hideShortcutWindow();
    EXPECT_EQ(controller.canvasView(), nullptr);
    desktop.windows.main->frame = {0, 0, 800, 600};
    controller.showShortcutWindow();
    EXPECT_EQ(controller.canvasWindow().frame().size(), (Size{1240, 800}));
    EXPECT_EQ(menuItemKeyCodes.size(), 1U) << "nothing is left of the showing before";
    EXPECT_EQ(desktop.windows.visibleWindows(), 1);
}

}  // namespace
}  // namespace orlamo
