#include "shell/utility/Utility.h"

#include <array>

#include "panel/CanvasView.h"
#include "panel/CanvasWindowController.h"
#include "platform/Application.h"
#include "platform/Bundle.h"
#include "platform/Clock.h"
#include "platform/Log.h"
#include "platform/LoginItems.h"
#include "platform/NotificationCenter.h"
#include "platform/UserDefaults.h"
#include "shell/settings/Settings.h"

namespace orlamo {

namespace {

constexpr std::uint64_t allModifiers =
    EventFlags::shift | EventFlags::control | EventFlags::option | EventFlags::command;
constexpr double doublePressMs = 500.0;
constexpr std::uint16_t escapeKeyCode = 53;

struct Trigger {
    std::string_view name;
    std::uint64_t modifier;
    std::string_view message;
    ModifierLatch latch;
};

std::array<Trigger, 3> triggers{{
    {"Command", EventFlags::command, "双击command....", {}},
    {"Shift", EventFlags::shift, "双击Shift...", {}},
    {"Control", EventFlags::control, "双击control....", {}},
}};

void togglePanel(CanvasWindowController& controller) {
    isShortcutWindowShown = !isShortcutWindowShown;
    isShortcutWindowShown ? controller.showShortcutWindow() : controller.hideShortcutWindow();
}

}  // namespace

Utility& Utility::shared() {
    static Utility utility(*Application::shared().delegate);
    return utility;
}

Utility::Utility(ApplicationDelegate& delegate) : appDelegate(delegate) {}

void Utility::startMonitoring(CanvasWindowController& controller) {
    EventMonitors& monitors = EventMonitors::shared();
    monitors.addLocalMonitor(
        flagsChangedMask, [this, &controller](const Event& event) { return localModifiersChanged(controller, event); });
    monitors.addGlobalMonitor(flagsChangedMask,
                              [this, &controller](const Event& event) { triggerModifiersChanged(controller, event); });
    monitors.addLocalMonitor(keyDownMask, [&controller](const Event& event) {
        if (event.keyCode == escapeKeyCode) {
            logLine("ESC 键被按下");
            controller.hideShortcutWindow();
        }
        return event;
    });
}

Event Utility::localModifiersChanged(CanvasWindowController& controller, const Event& event) {
    NotificationCenter::defaultCenter().post("update");
    if (isShortcutWindowShown) {
        logLine("单击修饰键。。。。。。");
        if (CanvasView* const canvas = controller.canvasView()) canvas->modifierFlagsDidChange(event);
    }
    triggerModifiersChanged(controller, event);
    return event;
}

void Utility::triggerModifiersChanged(CanvasWindowController& controller, const Event& event) {
    // Read at every event, so that a change of the setting counts at once.
    const auto name = UserDefaults::standardUserDefaults().stringForKey(SettingsKeys::doubleModifierKey);
    if (name) handleModifierFlags(controller, *name, event.modifierFlags);
}

void Utility::handleModifierFlags(CanvasWindowController& controller, std::string_view name, std::uint64_t flags) {
    Trigger* trigger = nullptr;
    for (Trigger& candidate : triggers) {
        if (candidate.name == name) trigger = &candidate;
    }
    if (trigger == nullptr) return;
    if ((flags & allModifiers & ~trigger->modifier) != 0) return;
    ModifierLatch& latch = trigger->latch;
    if ((flags & trigger->modifier) != 0) {
        latch.pressed = true;
        return;
    }
    if (!latch.pressed) return;
    const double now = Clock::shared().secondsSince1970() * 1000.0;
    if (now - latch.lastReleaseMs < doublePressMs) {
        logLine(trigger->message);
        togglePanel(controller);
    }
    latch.lastReleaseMs = now;
    latch.pressed = false;
}

void Utility::setLaunchAtLogin(bool enable) {
    const std::string helper = Bundle::shared().bundleIdentifier() + "Helper";
    const bool done = LoginItems::shared().SMLoginItemSetEnabled(helper, enable);
    logLine(std::string("Call LoginItemSetEnabled with [") + (enable ? "true" : "false") +
            (done ? "] success" : "] failed"));
}

void Utility::saveSelectedColor(const Color& color) {
    orlamo::saveSelectedColor(color);
}

Color Utility::loadSelectedColor() {
    return orlamo::loadSelectedColor();
}

std::string Utility::appVersion() const {
    const PropertyList version = Bundle::shared().infoDictionaryValue("CFBundleShortVersionString");
    const auto* const text = version.get<std::string>();
    return text != nullptr ? *text : "";
}

}  // namespace orlamo
