#include "shell/AppDelegate.h"

#include "platform/EventMonitors.h"
#include "platform/Log.h"
#include "platform/WindowSystem.h"
#include "shell/settings/Settings.h"
#include "shell/utility/Utility.h"

namespace orlamo {

namespace {

AppDelegate* currentDelegate = nullptr;

}  // namespace

AppDelegate::AppDelegate() : defaults(UserDefaults::standardUserDefaults()) {
    currentDelegate = this;
}

AppDelegate::~AppDelegate() {
    currentDelegate = nullptr;
}

AppDelegate* AppDelegate::current() {
    return currentDelegate;
}

void AppDelegate::applicationDidFinishLaunching() {
    checkFirstLaunch();
    Utility::shared().startMonitoring(canvasWindowController);
    EventMonitors::shared().addGlobalMonitor(leftMouseDownMask,
                                             [this](const Event&) { hideShortcutWindowFromClick(); });
    if (std::holds_alternative<std::monostate>(defaults.objectForKey(SettingsKeys::doubleModifierKey))) {
        defaults.setObject(SettingsKeys::doubleModifierKey, std::string("Command"));
        defaults.synchronize();
    }
}

void AppDelegate::checkFirstLaunch() {
    if (defaults.boolForKey(SettingsKeys::isFirstLaunch)) {
        logLine("这不是第一次启动应用程序");
        return;
    }
    logLine("这是第一次启动应用程序，打印默认值");
    writeDefaultValues(defaults);
    defaults.setObject(SettingsKeys::isFirstLaunch, true);
}

void AppDelegate::hideShortcutWindowFromClick() {
    const Point pointer = WindowSystem::shared().mouseLocation();
    for (const Screen& screen : WindowSystem::shared().screens()) {
        if (!screen.frame.contains(pointer)) continue;
        logLine("鼠标在屏幕 " + screen.localizedName + " 的范围内，隐藏窗口");
        isOpen = false;
        closeShortcutWindow();
        isShortcutWindowShown = false;
        return;
    }
}

void AppDelegate::closeShortcutWindow() {
    if (isOpen) return;
    logLine("关闭快捷键窗口。。。");
    canvasWindowController.hideShortcutWindow();
}

}  // namespace orlamo
