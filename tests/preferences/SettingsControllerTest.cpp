#include "preferences/SettingsController.h"

#include "platform/KeyedArchive.h"
#include "preferences/PopoverViewController.h"
#include "tests/preferences/PreferencesFixture.h"

namespace orlamo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Settings : public PreferencesTest {
protected:
    FakeCheckBox& box(const char* outlet) { return files.control<FakeCheckBox>(outlet); }
    UserDefaults::Value stored(const char* key) { return desktop.defaults.objectForKey(key); }

    SettingsController page;
};

struct BoxAndKey {
    const char* outlet;
    const char* action;
    const char* key;
    bool isMirrored = true;
};

constexpr BoxAndKey boxes[] = {
    {"showIconInDockCheckBox", "showApplicationDockIcons:", "dockIcon", false},
    {"hideStatusBarIconCheckBox", "hideStatusBarIconClick:", "isHiddenStatusBar"},
    {"launchOnLoginCheckBox", "startAtLogin:", "isLaunchAtLoginEnabled"},
    {"isBlurStyleCheckBox", "UserBlurStyle:", "isBlurStyle"},
    {"isContainsAppleMenuBox", "showAppleMenu:", "isContainsAppleMenu"},
    {"isAutomaticCheckUpdateBox", "automaticCheckUpdate:", "isEnableAutomaticCheckUpdate"},
};

TEST_F(Settings, LoadingShowsEachStoredSettingInItsOwnBox) {
    for (const BoxAndKey& only : boxes) {
        desktop.defaults.values = {{only.key, true}};
        files.beforeViewDidLoad = [](FakeInterfaceView& view) {
            for (const auto& [name, control] : view.controls) {
                if (auto* const box = dynamic_cast<FakeCheckBox*>(control.get())) box->value = ControlState::mixed;
            }
        };
        SettingsController loaded;
        loaded.view();
        for (const BoxAndKey& each : boxes) {
            const ControlState shown = each.key == only.key ? ControlState::on : ControlState::off;
            EXPECT_EQ(box(each.outlet).value, each.isMirrored ? shown : ControlState::mixed)
                << each.outlet << " with " << only.key;
        }
    }
    EXPECT_EQ(desktop.defaults.writes, 0);
}

TEST_F(Settings, EachBoxStoresItsStateUnderItsKeyAndOnlyOnCountsAsOn) {
    page.view();
    for (const BoxAndKey& each : boxes) {
        for (const ControlState state : {ControlState::on, ControlState::off, ControlState::mixed}) {
            desktop.defaults.values.clear();
            box(each.outlet).value = state;
            files.performFrom(each.outlet, each.action);
            EXPECT_EQ(desktop.defaults.values.size(), 1U) << each.action;
            EXPECT_EQ(stored(each.key), UserDefaults::Value(state == ControlState::on)) << each.action;
        }
    }
}

TEST_F(Settings, TheDockBoxChangesTheActivationPolicyAndStaysInFrontWhenOff) {
    page.view();
    FakeCheckBox dock;
    dock.value = ControlState::on;
    files.perform("showApplicationDockIcons:", dock);
    EXPECT_THAT(desktop.application.activations, IsEmpty());
    dock.value = ControlState::off;
    files.perform("showApplicationDockIcons:", dock);
    EXPECT_THAT(desktop.application.policies,
                ElementsAre(Application::ActivationPolicy::regular, Application::ActivationPolicy::accessory));
    EXPECT_THAT(desktop.application.activations, ElementsAre(Application::IgnoringOtherApps::yes));
}

TEST_F(Settings, AFailedLoginItemIsLoggedAndTheChoiceKept) {
    desktop.loginItems.succeeds = false;
    page.view();
    box("launchOnLoginCheckBox").value = ControlState::on;
    files.performFrom("launchOnLoginCheckBox", "startAtLogin:");
    EXPECT_THAT(desktop.loginItems.requests, ElementsAre(std::pair(std::string("org.orlamo.OrlamoHelper"), true)));
    EXPECT_THAT(desktop.log.lines, ElementsAre("Call LoginItemSetEnabled with [true] failed"));
    EXPECT_EQ(stored("isLaunchAtLoginEnabled"), UserDefaults::Value(true));
    EXPECT_EQ(box("launchOnLoginCheckBox").value, ControlState::on);
}

TEST_F(Settings, TheBlurIsLoggedBeforeItIsStoredAndItsAbsenceAfter) {
    page.view();
    FakeCheckBox blur;
    const auto observation = desktop.defaults.addObserver("isBlurStyle", [] { logLine("stored"); });
    blur.value = ControlState::on;
    files.perform("UserBlurStyle:", blur);
    blur.value = ControlState::off;
    files.perform("UserBlurStyle:", blur);
    EXPECT_THAT(desktop.log.lines, ElementsAre("使用模糊效果", "stored", "stored", "不使用模糊效果"));
}

TEST_F(Settings, ThePopUpShowsTheStoredTriggerElseCommandAndKeepsItsItemForAnUnknownOne) {
    const std::pair<UserDefaults::Value, std::string> cases[] = {
        {std::string("Shift"), "Shift"}, {std::monostate{}, "Command"}, {std::string("Hyper"), "Control"}};
    files.beforeViewDidLoad = [](FakeInterfaceView& view) {
        dynamic_cast<FakePopUpButton&>(*view.controls.at("modifierKeyPopUpBtn")).selected = "Control";
    };
    for (const auto& [value, shown] : cases) {
        desktop.defaults.values = {{"doubleModifierKey", value}};
        if (std::holds_alternative<std::monostate>(value)) desktop.defaults.values.clear();
        SettingsController loaded;
        loaded.view();
        EXPECT_EQ(files.control<FakePopUpButton>("modifierKeyPopUpBtn").selected, shown);
    }
}

TEST_F(Settings, TheChosenTriggerIsLoggedAndStoredByItsTitle) {
    page.view();
    FakePopUpButton popUp;
    files.perform("ModifierKeySelected:", popUp);
    EXPECT_TRUE(desktop.defaults.values.empty()) << "nothing is selected";
    popUp.selected = "Shift";
    files.perform("ModifierKeySelected:", popUp);
    EXPECT_THAT(desktop.log.lines, ElementsAre("Shift"));
    EXPECT_EQ(stored("doubleModifierKey"), UserDefaults::Value(std::string("Shift")));
}

TEST_F(Settings, AColourIsStoredAsItsArchive) {
    page.view();
    auto& well = files.control<FakeColorWell>("ShortcutWindowColor");
    well.value = {0.25, 0.5, 0.75, 1};
    files.performFrom("ShortcutWindowColor", "ShortcutWindowBgChanged:");
    EXPECT_THAT(desktop.log.lines, ElementsAre("改变颜色..0.0"));
    EXPECT_EQ(unarchivedColor(std::get<UserDefaults::Data>(stored("selectedColorData"))), well.value);
}

TEST_F(Settings, TheSliderStoresLogsAndShowsTheSameWholeNumber) {
    page.view();
    auto& label = files.control<FakeTextField>("circleLabel");
    EXPECT_EQ(label.text, "") << "comes from the interface file";
    files.control<FakeSlider>("CornerRadiusSlider").number = 12.9;
    files.performFrom("CornerRadiusSlider", "sliderCornerRadiusValueChanged:");
    EXPECT_THAT(desktop.log.lines, ElementsAre("滑动的圆角半径： 12"));
    EXPECT_EQ(stored("CornerRadius"), UserDefaults::Value(std::int64_t{12}));
    EXPECT_EQ(label.text, "12");
}

TEST_F(Settings, HelpShowsATransientPopoverAtItsButton) {
    page.view();
    FakeButton button;
    button.area = {0, 0, 21, 22};
    files.perform("HelpButtonClick:", button);
    files.perform("HelpButtonClick:", button);
    ASSERT_EQ(files.popovers.size(), 2U);
    EXPECT_FALSE(files.popovers[0]->isAlive);
    const FakePopoverRecord& shown = *files.popovers[1];
    EXPECT_EQ(shown.behavior, Popover::Behavior::transient);
    EXPECT_NE(dynamic_cast<PopoverViewController*>(shown.content), nullptr);
    EXPECT_EQ(shown.rect, button.area);
    EXPECT_EQ(shown.control, &button);
    EXPECT_EQ(shown.edge, RectEdge::maxY);
    EXPECT_TRUE(shown.isShown);
    EXPECT_NE(files.view("PopoverViewController"), nullptr);
}

TEST_F(Settings, TheHelpLinkLogsOnlyThatABrowserOpened) {
    page.view();
    FakeButton link;
    files.perform("AuthorityAction:", link);
    desktop.workspace.openingSucceeds = false;
    files.perform("AuthorityAction:", link);
    EXPECT_EQ(desktop.workspace.opened, std::vector<std::string>(2, "https://permissionHelp.example/"));
    EXPECT_THAT(desktop.log.lines, ElementsAre("default browser was successfully opened"));
}

TEST_F(Settings, AnInterfaceWithoutItsControlsStillWorks) {
    for (const OutletBinding& outlet : page.outlets()) files.missing.emplace(outlet.name);
    page.view();
    files.view("SettingsController")->appear();
    FakeSlider slider;
    slider.number = 30;
    files.perform("sliderCornerRadiusValueChanged:", slider);
    EXPECT_THAT(desktop.log.lines, ElementsAre("SettingsController 即将加入窗口时", "滑动的圆角半径： 30"));
}

}  // namespace
}  // namespace orlamo
