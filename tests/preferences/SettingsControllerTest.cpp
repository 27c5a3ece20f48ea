#include "preferences/SettingsController.h"

#include "platform/KeyedArchive.h"
#include "preferences/PopoverViewController.h"
#include "tests/preferences/PreferencesFixture.h"

namespace orlamo {
namespace {

using Value = UserDefaults::Value;

class Settings : public PreferencesTest {
protected:
    ControlState& box(const char* outlet) { return files.control<FakeCheckBox>(outlet).value; }
    Value stored(const char* key) { return desktop.defaults.objectForKey(key); }

    SettingsController page;
};

constexpr struct {
    const char* outlet;
    const char* action;
    const char* key;
} boxes[] = {{"showIconInDockCheckBox", "showApplicationDockIcons:", "dockIcon"},
             {"hideStatusBarIconCheckBox", "hideStatusBarIconClick:", "isHiddenStatusBar"},
             {"launchOnLoginCheckBox", "startAtLogin:", "isLaunchAtLoginEnabled"},
             {"isBlurStyleCheckBox", "UserBlurStyle:", "isBlurStyle"},
             {"isContainsAppleMenuBox", "showAppleMenu:", "isContainsAppleMenu"},
             {"isAutomaticCheckUpdateBox", "automaticCheckUpdate:", "isEnableAutomaticCheckUpdate"}};

TEST_F(Settings, LoadingShowsEachStoredSettingInItsOwnBoxAndLeavesTheDockAlone) {
    for (const auto& only : boxes) {
        desktop.defaults.values = {{only.key, true}};
        files.beforeViewDidLoad = [this](FakeInterfaceView&) { box("showIconInDockCheckBox") = ControlState::mixed; };
        SettingsController loaded;
        loaded.view();
        for (const auto& each : boxes) {
            const auto shown = each.key == only.key ? ControlState::on : ControlState::off;
            EXPECT_EQ(box(each.outlet), &each == boxes ? ControlState::mixed : shown) << each.outlet << only.key;
        }
    }
    EXPECT_EQ(desktop.defaults.writes, 0);
}

TEST_F(Settings, TheSessionMenusBoxFollowsTheDesktopEachTimeThePageAppearsAndSaysWhyItIsDisabled) {
    page.view();
    const std::pair<SessionMenuState, const char*> cases[] = {{SessionMenuState::unknownDesktop, ".unknown_desktop"},
                                                              {SessionMenuState::notBound, ".not_bound"},
                                                              {SessionMenuState::present, ".description"},
                                                              {SessionMenuState::noService, ".no_service"}};
    for (const auto& [state, ending] : cases) {
        desktop.accessibility.menuState = state;
        files.view("SettingsController")->appear();
        EXPECT_EQ(files.control<FakeCheckBox>("isContainsAppleMenuBox").enabled, state == SessionMenuState::present);
        EXPECT_EQ(files.control<FakeTextField>("isContainsAppleMenuBoxDescription").text,
                  std::string("settings.session_menu") + ending);
    }
}

TEST_F(Settings, EachBoxStoresWhetherItIsOnAndHasItsSideEffectsInOrder) {
    desktop.loginItems.succeeds = false;
    page.view();
    const auto blur = desktop.defaults.addObserver("isBlurStyle", [] { logLine("blur stored"); });
    const auto login = desktop.defaults.addObserver("isLaunchAtLoginEnabled", [] { logLine("login stored"); });
    for (const auto state : {ControlState::on, ControlState::mixed}) {
        for (const auto& each : boxes) {
            desktop.defaults.values.clear();
            box(each.outlet) = state;
            files.performFrom(each.outlet, each.action);
            EXPECT_EQ(desktop.defaults.values.size(), 1U) << each.action;
            EXPECT_EQ(stored(each.key), Value(state == ControlState::on)) << each.action;
        }
        EXPECT_EQ(desktop.application.activations.size(), state == ControlState::on ? 0U : 1U);
    }
    EXPECT_EQ(desktop.log.lines,
              (Lines{"Call LoginItemSetEnabled with [true] failed", "login stored", "使用模糊效果", "blur stored",
                     "Call LoginItemSetEnabled with [false] failed", "login stored", "blur stored", "不使用模糊效果"}));
    EXPECT_EQ(desktop.application.policies,
              (std::vector{Application::ActivationPolicy::regular, Application::ActivationPolicy::accessory}));
    EXPECT_EQ(desktop.application.activations.back(), Application::IgnoringOtherApps::yes);
}

TEST_F(Settings, ThePopUpShowsTheStoredTriggerElseCommandAndStoresTheChosenOne) {
    const std::pair<Value, std::string> cases[] = {{"Shift", "Shift"}, {{}, "Command"}, {"Hyper", "Control"}};
    files.beforeViewDidLoad = [this](auto&) {
        files.control<FakePopUpButton>("modifierKeyPopUpBtn").selected = "Control";
    };
    for (const auto& [value, shown] : cases) {
        desktop.defaults.values = {{"doubleModifierKey", value}};
        SettingsController loaded;
        loaded.view();
        EXPECT_EQ(files.control<FakePopUpButton>("modifierKeyPopUpBtn").selected, shown);
        files.performFrom("modifierKeyPopUpBtn", "ModifierKeySelected:");
        EXPECT_EQ(desktop.log.lines.back(), shown);
        EXPECT_EQ(stored("doubleModifierKey"), Value(shown));
    }
}

TEST_F(Settings, TheColourIsArchivedAndTheRadiusIsTheSameWholeNumberEverywhere) {
    page.view();
    auto& well = files.control<FakeColorWell>("ShortcutWindowColor");
    well.value = {0.25, 0.5, 0.75, 1};
    files.control<FakeSlider>("CornerRadiusSlider").number = 12.9;
    files.performFrom("ShortcutWindowColor", "ShortcutWindowBgChanged:");
    files.performFrom("CornerRadiusSlider", "sliderCornerRadiusValueChanged:");
    EXPECT_EQ(unarchivedColor(std::get<UserDefaults::Data>(stored("selectedColorData"))), well.value);
    EXPECT_EQ(stored("CornerRadius"), Value(std::int64_t{12}));
    EXPECT_EQ(files.control<FakeTextField>("circleLabel").text, "12");
    EXPECT_EQ(desktop.log.lines, (Lines{"改变颜色..0.0", "滑动的圆角半径： 12"}));
}

TEST_F(Settings, HelpShowsATransientPopoverAboveItsButtonAndLeadsToItsPage) {
    page.view();
    button.area = {0, 0, 21, 22};
    files.perform("HelpButtonClick:", button);
    files.perform("HelpButtonClick:", button);
    ASSERT_EQ(files.popovers.size(), 2U);
    EXPECT_FALSE(files.popovers[0]->isAlive);
    const FakePopoverRecord& shown = *files.popovers[1];
    EXPECT_EQ(shown.behavior, Popover::Behavior::transient);
    const auto* const content = dynamic_cast<PopoverViewController*>(shown.content);
    ASSERT_NE(content, nullptr);
    EXPECT_FALSE(content->popover.expired());
    EXPECT_EQ(shown.rect, button.area);
    EXPECT_EQ(shown.control, &button);
    EXPECT_EQ(shown.edge, RectEdge::maxY);

    files.perform("AuthorityAction:", button);
    EXPECT_EQ(desktop.workspace.opened, Lines{"permissionHelp.example"});
    EXPECT_EQ(desktop.log.lines, Lines{"default browser was successfully opened"});
}

TEST_F(Settings, AnInterfaceWithoutItsControlsStillWorks) {
    for (const OutletBinding& outlet : page.outlets()) files.missing.emplace(outlet.name);
    page.view();
    files.view("SettingsController")->appear();
    EXPECT_EQ(desktop.log.lines, Lines{"SettingsController 即将加入窗口时"});
}

}  // namespace
}  // namespace orlamo
