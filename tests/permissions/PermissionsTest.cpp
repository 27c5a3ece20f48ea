#include <gmock/gmock.h>

#include "permissions/PrivilegeController.h"
#include "permissions/PrivilegeManager.h"
#include "tests/doubles/FakeDesktop.h"
#include "tests/doubles/FakeInterfaceFiles.h"

namespace orlamo {
namespace {

const std::string panes = "x-apple.systempreferences:com.apple.preference.security?Privacy_";
const std::string accessibilityPane = panes + "Accessibility", screenCapturePane = panes + "ScreenCapture";

using Lines = std::vector<std::string>;

class Permissions : public testing::Test {
protected:
    Permissions() {
        desktop.bundle.strings = {{"accessibility.permission.gained", "On"},
                                  {"accessibility.permission.not.obtained", "Off"}};
        desktop.bundle.info["WebPages"] =
            PropertyList(PropertyList::Dictionary{{"permissionHelp", PropertyList(std::string("https://a.example/"))}});
    }
    std::ptrdiff_t offLines() const { return desktop.log.count("没有开启辅助功能"); }
    std::ptrdiff_t onLines() const { return desktop.log.count("已开启辅助功能"); }

    FakeDesktop desktop;
    FakeInterfaceFiles files;
    FakeButton button;
    ApplicationDelegate delegate;
    PrivilegeManager manager{delegate};
};

TEST_F(Permissions, ATrustedProgramLooksOnceAndShowsNothing) {
    manager.checkPermission();
    EXPECT_EQ(manager.timer, nullptr);
    desktop.accessibility.trusted = false;
    desktop.runLoop.advance(60);
    EXPECT_EQ(desktop.log.lines, std::vector<std::string>{"已开启辅助功能"}) << "a later revocation is not noticed";
    EXPECT_TRUE(desktop.windows.records.empty());
}

TEST_F(Permissions, GrantedAfterTwelveSecondsTheWindowCloses) {
    desktop.accessibility.trusted = false;
    manager.checkPermission();
    desktop.runLoop.advance(1.9);
    EXPECT_EQ(desktop.windows.visibleWindows(), 0);
    desktop.runLoop.advance(0.2);
    ASSERT_EQ(desktop.windows.visibleWindows(), 1);
    FakeInterfaceView* const view = files.view("PrivilegeController");
    ASSERT_NE(view, nullptr);
    view->appear();
    desktop.runLoop.advance(9.9);
    EXPECT_EQ(offLines(), 3) << "at 0, 5 and 10 seconds";
    EXPECT_EQ(files.control<FakeCheckBox>("accessibilityCheckBox").text, "Off");

    desktop.accessibility.trusted = true;
    desktop.runLoop.advance(1.1);
    EXPECT_EQ(desktop.windows.visibleWindows(), 0) << "the window notices within its second";
    EXPECT_EQ(onLines(), 0);
    desktop.runLoop.advance(2);
    EXPECT_EQ(onLines(), 1) << "the manager at 15 seconds";
    EXPECT_EQ(manager.timer, nullptr);
    EXPECT_EQ(desktop.runLoop.pending(), 0U);
}

TEST_F(Permissions, TheWindowIsShownOnceHoweverLongThePermissionIsMissing) {
    desktop.accessibility.trusted = false;
    manager.checkPermission();
    desktop.runLoop.advance(3);
    manager.priviegeWindow.close();
    desktop.runLoop.advance(62);
    EXPECT_EQ(offLines(), 14);
    ASSERT_EQ(desktop.windows.records.size(), 1U);
    EXPECT_EQ(desktop.windows.records.front()->orderFronts, 1);
}

TEST_F(Permissions, TheWindowIsDarkClearAndRounded) {
    PrivilegeWindowController controller;
    controller.showWindow();
    const Window& window = *controller.window();
    EXPECT_EQ(window.appearance, "NSAppearanceNameDarkAqua");
    EXPECT_FALSE(window.hasShadow || window.isOpaque);
    EXPECT_EQ(window.backgroundColor, Color::clearColor());
    EXPECT_EQ(window.frame().x + window.frame().width / 2, desktop.windows.main->frame.width / 2);
    const InterfaceView& content = controller.contentViewController().view();
    EXPECT_TRUE(content.wantsLayer && content.layer.masksToBounds);
    EXPECT_EQ(content.layer.cornerRadius, 30.0);
}

class PermissionPane : public Permissions {
protected:
    PermissionPane() { controller.view(); }
    PrivilegeController controller;
};

TEST_F(PermissionPane, TheRowFollowsThePermissionEverySecond) {
    auto& box = files.control<FakeCheckBox>("accessibilityCheckBox");
    auto& button = files.control<FakeButton>("accessibilityAuthorizationButton");
    desktop.accessibility.trusted = false;
    box.value = ControlState::on;
    controller.viewWillAppear();
    EXPECT_TRUE(desktop.log.lines.empty()) << "the first look comes a second later";
    desktop.runLoop.advance(1);
    EXPECT_EQ(desktop.log.lines, std::vector<std::string>{"辅助功能"});
    EXPECT_TRUE(box.value == ControlState::off && box.text == "Off" && !button.hidden);
    desktop.accessibility.trusted = true;
    desktop.runLoop.advance(1);
    EXPECT_TRUE(box.value == ControlState::on && box.text == "On" && button.hidden);
    EXPECT_EQ(controller.timer, nullptr);
}

TEST_F(PermissionPane, EachButtonOpensWhatItsTagSays) {
    const struct {
        std::int64_t tag;
        bool trusted;
        Lines lines, opened;
        std::size_t presses;
    } cases[]{{1, false, {"授权----辅助功能"}, {accessibilityPane}, 1},
              {2, false, {"授权----屏幕录制"}, {screenCapturePane}, 0},
              {2, true, {"授权----屏幕录制"}, {}, 0},
              {3, false, {"授权----全盘访问"}, {}, 0},
              {4, false, {}, {}, 0}};
    desktop.windows.mouse = {12, 34};
    for (const auto& each : cases) {
        desktop.log.lines.clear();
        desktop.workspace.opened.clear();
        desktop.poster.pointer.clear();
        desktop.accessibility.trusted = each.trusted;
        button.tagNumber = each.tag;
        button.value = ControlState::off;
        files.perform("getPermissions:", button);
        EXPECT_EQ(button.value, ControlState::on) << each.tag;
        EXPECT_EQ(desktop.log.lines, each.lines) << each.tag;
        EXPECT_EQ(desktop.workspace.opened, each.opened) << each.tag;
        ASSERT_EQ(desktop.poster.pointer.size(), each.presses) << each.tag;
        for (const auto& [tap, press] : desktop.poster.pointer) {
            EXPECT_EQ(tap, EventTapLocation::hid);
            EXPECT_EQ(press.type, PointerEvent::Type::leftMouseDown);
            EXPECT_EQ(press.location, (Point{12, 34}));
        }
    }
}

TEST_F(PermissionPane, OnlyATickedBoxOpensTheSettingsAndTheHelpLinkItsPage) {
    auto& box = files.control<FakeCheckBox>("accessibilityCheckBox");
    files.perform("toggleAccessibility:", box);
    EXPECT_TRUE(desktop.workspace.opened.empty());
    box.value = ControlState::on;
    files.perform("toggleAccessibility:", box);
    files.perform("WatchingPermissionsConfiguration:", button);
    EXPECT_EQ(desktop.workspace.opened, (Lines{accessibilityPane, "https://a.example/"}));
    EXPECT_EQ(desktop.poster.pointer.size(), 1U);
}

TEST_F(Permissions, TheCloseButtonEndsTheRefreshAndClosesTheWindow) {
    PrivilegeWindowController window;
    window.showWindow();
    auto& controller = dynamic_cast<PrivilegeController&>(window.contentViewController());
    controller.viewWillAppear();
    files.perform("closeWindow:", button);
    EXPECT_EQ(controller.timer, nullptr);
    EXPECT_EQ(desktop.windows.visibleWindows(), 0);
    controller.viewWillAppear();
    controller.viewWillDisappear();
    EXPECT_EQ(controller.timer, nullptr) << "however the window goes";
}

}  // namespace
}  // namespace orlamo
