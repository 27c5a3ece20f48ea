#include "shell/AppDelegate.h"

#include <string>

#include "permissions/PrivilegeManager.h"
#include "platform/EventMonitors.h"
#include "platform/Log.h"
#include "platform/WindowSystem.h"
#include "preferences/Localization.h"
#include "shell/settings/Settings.h"
#include "shell/utility/Utility.h"
#include "update/UpdateSchedule.h"
#include "update/UpdaterDelegate.h"

namespace orlamo {

namespace {

using CheckOrigin = SPUStandardUpdaterController::Origin;

constexpr std::int64_t preferredPosition = 50;  // of the status item, counted by the desktop

}  // namespace

AppDelegate::AppDelegate()
    : updaterController(Updates::shared().initWithStartingUpdater(Updates::StartingUpdater::yes,
                                                                  std::make_unique<UpdaterDelegate>())),
      defaults(UserDefaults::standardUserDefaults()) {}

void AppDelegate::applicationWillFinishLaunching() {
    defaults.setObject(SettingsKeys::statusItemPosition, preferredPosition);
}

void AppDelegate::applicationDidFinishLaunching() {
    if (shouldCheckForUpdates()) updaterController->checkForUpdates(CheckOrigin::launch);
    recordUpdateCheckDate();
    openSettings();
    checkFirstLaunch();
    PrivilegeManager::shared().checkPermission();
    logLine("launch: trigger monitors");
    Utility::shared().startMonitoring(canvasWindowController);
    logLine("launch: click monitor");
    EventMonitors::shared().addGlobalMonitor(leftMouseDownMask,
                                             [this](const Event&) { hideShortcutWindowFromClick(); });
    setDefaultTrigger();
    logLine("launch: status item");
    setupStatusItem();
    logLine("launch: settings observers");
    observeSettings();
}

bool AppDelegate::applicationShouldHandleReopen(bool) {
    openSettings();
    return true;
}

void AppDelegate::openSettings() {
    Application::shared().activate(Application::IgnoringOtherApps::yes);
    preferences.showWindow();
}

void AppDelegate::updateApp() {
    updaterController->checkForUpdates(CheckOrigin::user);
}

bool AppDelegate::shouldCheckForUpdates() {
    return UpdateSchedule::shouldCheckForUpdates();
}

void AppDelegate::recordUpdateCheckDate() {
    UpdateSchedule::recordUpdateCheckDate();
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

void AppDelegate::setDefaultTrigger() {
    if (!std::holds_alternative<std::monostate>(defaults.objectForKey(SettingsKeys::doubleModifierKey))) return;
    defaults.setObject(SettingsKeys::doubleModifierKey, std::string("Command"));
    defaults.synchronize();
}

void AppDelegate::setupStatusItem() {
    statusBarItem = StatusBar::systemStatusBar().statusItemWithLength(StatusBar::squareStatusItemLength);
    if (statusBarItem == nullptr) return;
    // Shown at every launch, whatever isHiddenStatusBar holds: a user who hid it finds the way back.
    statusBarItem->setVisible(true);
    statusBarItem->setImage({"menuBarIcon", true});
    mainMenu.items = {
        {MenuItem::Kind::entry, Localization::StatusBar::setting, [this] { openSettings(); }, {"gear", true}},
        {MenuItem::Kind::entry, Localization::StatusBar::update, [this] { updateApp(); }, {}},
        MenuItem::separatorItem(),
        {MenuItem::Kind::entry,
         Localization::StatusBar::quit,
         [] { Application::shared().terminate(); },
         {"escape", true}}};
    statusBarItem->setMenu(mainMenu);
}

void AppDelegate::observeSettings() {
    constexpr std::array observed{SettingsKeys::isHiddenStatusBar, SettingsKeys::statusItemPosition};
    for (std::size_t i = 0; i < observed.size(); ++i) {
        observations_[i] = defaults.addObserver(std::string(observed[i]),
                                                [this, keyPath = observed[i]] { observeValueForKeyPath(keyPath); });
    }
}

void AppDelegate::observeValueForKeyPath(std::string_view keyPath) {
    if (keyPath == SettingsKeys::isHiddenStatusBar) updateStatusBarIcon();
    if (keyPath == SettingsKeys::statusItemPosition) copyStatusItemPosition();
}

void AppDelegate::updateStatusBarIcon() {
    logLine("更新状态栏图标。。。。");
    const bool isHidden = defaults.boolForKey(SettingsKeys::isHiddenStatusBar);
    if (isHidden) {
        logLine("---隐藏");
    } else {
        logLine("----显示");
        const std::int64_t position = defaults.integerForKey(SettingsKeys::statusItemPosition);
        defaults.setObject(SettingsKeys::statusItemPosition, position);
        defaults.synchronize();
    }
    if (statusBarItem != nullptr) statusBarItem->setVisible(!isHidden);
}

void AppDelegate::copyStatusItemPosition() {
    const UserDefaults::Value value = defaults.objectForKey(SettingsKeys::statusItemPosition);
    const auto* const position = std::get_if<std::int64_t>(&value);
    if (position == nullptr || *position <= 0) return;
    defaults.setObject(SettingsKeys::statusItemPositionCopy, *position);
    defaults.synchronize();
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
