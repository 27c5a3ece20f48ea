#include "shell/utility/Utility.h"

#include <gmock/gmock.h>

#include "panel/CanvasWindowController.h"
#include "platform/NotificationCenter.h"
#include "shell/settings/SettingsKeys.h"
#include "tests/doubles/FakeDesktop.h"

namespace orlamo {
namespace {

using namespace EventFlags;
constexpr std::uint64_t none = noneHeld, capsLock = 0x10000;

class Trigger : public testing::Test {
protected:
    Trigger() {
        isShortcutWindowShown = false;
        // The latches live for the process: what an earlier test released must lie long ago.
        static double start = 1'700'000'000;
        desktop.clock.now = start += 1000;
        desktop.openEditor({FakeAccessibility::item("Save", "S")});
        utility.startMonitoring(controller);
        choose("Command");
    }
    ~Trigger() override { controller.hideShortcutWindow(); }

    void choose(const std::string& name) { desktop.defaults.values["doubleModifierKey"] = name; }
    void flags(std::uint64_t held) {
        desktop.monitors.deliverGlobal({.type = Event::Type::flagsChanged, .modifierFlags = held});
    }
    void tap(std::uint64_t modifier) {
        flags(modifier);
        flags(none);
    }
    void wait(double milliseconds) { desktop.clock.now += milliseconds / 1000; }

    FakeDesktop desktop;
    ApplicationDelegate delegate;
    CanvasWindowController controller;
    Utility utility{delegate};
};

TEST_F(Trigger, TwoReleasesLessThanHalfASecondApartOpenThePanel) {
    tap(command);
    EXPECT_FALSE(isShortcutWindowShown) << "the first counted release never does";
    wait(500);
    tap(command);
    EXPECT_FALSE(isShortcutWindowShown);
    wait(499);
    flags(command);
    EXPECT_FALSE(isShortcutWindowShown) << "not yet released";
    flags(none);
    EXPECT_TRUE(isShortcutWindowShown) << "the late release became the new reference";
    EXPECT_TRUE(desktop.log.contains("双击command...."));
    EXPECT_EQ(desktop.windows.visibleWindows(), 1);
    tap(command);
    EXPECT_FALSE(isShortcutWindowShown) << "every further release toggles again";
    EXPECT_EQ(desktop.windows.visibleWindows(), 0);
}

TEST_F(Trigger, EachOfTheThreeModifiersCanBeChosenAndTheOthersThenDoNothing) {
    const struct {
        const char* name;
        std::uint64_t modifier;
        const char* message;
    } cases[]{{"Command", command, "双击command...."},
              {"Shift", shift, "双击Shift..."},
              {"Control", control, "双击control...."}};
    for (const auto& chosen : cases) {
        choose(chosen.name);
        for (const auto& pressed : cases) {
            wait(2000);
            tap(pressed.modifier);
            tap(pressed.modifier);
            EXPECT_EQ(isShortcutWindowShown, pressed.modifier == chosen.modifier) << chosen.name << pressed.name;
            if (isShortcutWindowShown) {
                EXPECT_TRUE(desktop.log.contains(chosen.message));
                controller.hideShortcutWindow();
            }
        }
    }
}

TEST_F(Trigger, AnyOtherNameSwitchesItOff) {
    for (const char* const name : {"Option", "command", ""}) {
        choose(name);
        for (const std::uint64_t modifier : {command, shift, control, option}) {
            tap(modifier);
            tap(modifier);
        }
    }
    desktop.defaults.values.clear();
    tap(command);
    tap(command);
    EXPECT_FALSE(isShortcutWindowShown);
}

TEST_F(Trigger, CountsOnlyAModifierThatWentDownAloneButForLocksAndTheFunctionKey) {
    const std::pair<std::vector<std::uint64_t>, bool> cases[] = {
        {{command, none, shift, shift | command, shift, none}, false},
        {{command, none, command, command | shift, command, none}, true},
        {{command | capsLock | 0x800000, capsLock, command | capsLock | 0x800000, capsLock}, true}};
    for (const auto& [states, opens] : cases) {
        wait(2000);
        for (const std::uint64_t held : states) flags(held);
        EXPECT_EQ(isShortcutWindowShown, opens) << testing::PrintToString(states);
        controller.hideShortcutWindow();
    }
}

TEST_F(Trigger, WhileTheProgramIsActiveAPressAlsoRecoloursThePanel) {
    tap(command);
    tap(command);
    ASSERT_TRUE(isShortcutWindowShown);
    desktop.log.lines.clear();
    const Event event{.type = Event::Type::flagsChanged, .modifierFlags = shift};
    int updates = 0;
    const auto observation = NotificationCenter::defaultCenter().addObserver("update", [&updates] { ++updates; });
    EXPECT_EQ(desktop.monitors.deliverLocal(event).modifierFlags, shift) << "the event goes on as it came";
    EXPECT_EQ(updates, 1);
    EXPECT_EQ(desktop.log.lines, (std::vector<std::string>{"单击修饰键。。。。。。", "修饰键状态变化: 131072"}));
    wait(2000);
    for (const std::uint64_t held : {command, none, command, none}) {
        desktop.monitors.deliverLocal({.type = Event::Type::flagsChanged, .modifierFlags = held});
    }
    EXPECT_FALSE(isShortcutWindowShown) << "a double press closes it from here too";
}

TEST_F(Trigger, EscapeHidesThePanelAndGoesOnOtherKeysDoNothing) {
    isShortcutWindowShown = true;
    desktop.monitors.deliverLocal({.type = Event::Type::keyDown, .modifierFlags = none, .keyCode = 12});
    EXPECT_TRUE(isShortcutWindowShown);
    const Event escape =
        desktop.monitors.deliverLocal({.type = Event::Type::keyDown, .modifierFlags = none, .keyCode = 53});
    EXPECT_EQ(escape.keyCode, 53);
    EXPECT_FALSE(isShortcutWindowShown);
    EXPECT_TRUE(desktop.log.contains("ESC 键被按下"));
}

TEST_F(Trigger, TheLoginHelperIsNamedAfterTheProgramAndTheOutcomeLogged) {
    utility.setLaunchAtLogin(true);
    EXPECT_EQ(desktop.loginItems.requests[0], std::pair(desktop.bundle.identifier + "Helper", true));
    EXPECT_TRUE(desktop.log.contains("Call LoginItemSetEnabled with [true] success"));
}

}  // namespace
}  // namespace orlamo
