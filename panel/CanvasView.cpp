#include "panel/CanvasView.h"

#include <algorithm>
#include <iterator>

#include "core/SystemShortcuts.h"
#include "platform/Accessibility.h"
#include "platform/Log.h"
#include "platform/UserDefaults.h"
#include "shell/settings/Settings.h"

namespace orlamo {

namespace {

// What the session's menu takes up in the list: one heading and four items.
constexpr std::size_t appleMenuEntries = 5;

}  // namespace

CanvasView::CanvasView(Rect frame)
    : View(frame),
      systemTotal(static_cast<std::int64_t>(systemShortcutList.size())),
      ShortcutWindowBgColor(loadSelectedColor()),
      ShortcutWindowCornerRadius(
          static_cast<double>(UserDefaults::standardUserDefaults().integerForKey(SettingsKeys::CornerRadius))),
      self_(std::make_shared<CanvasView*>(this)) {}

std::unique_ptr<CanvasView> CanvasView::initWithCoder() {
    return std::unique_ptr<CanvasView>(new CanvasView(Rect{}));
}

std::unique_ptr<CanvasView> CanvasView::initWithFrame(Rect frame) {
    std::unique_ptr<CanvasView> view(new CanvasView(frame));
    view->trimAppleMenu();
    systemShortcutList = loadSystemShortcuts();
    logLine("获取应用快捷键=====  " + describe(appMenuItems));
    logLine("获取系统快捷键=====  " + describe(systemShortcutList));
    view->updateObservation_ = NotificationCenter::defaultCenter().addObserver(
        "update", [target = view.get()] { target->updateCurrentView(); });
    return view;
}

// With fewer entries than the session's menu has, what stands before the application's name goes. Where there is no
// such menu, the first entries are the application's own and stay.
void CanvasView::trimAppleMenu() {
    if (!Accessibility::shared().hasSessionMenu()) return;
    if (UserDefaults::standardUserDefaults().boolForKey(SettingsKeys::isContainsAppleMenu)) return;
    const std::size_t removable = std::min(appleMenuEntries, static_cast<std::size_t>(entryTotal()));
    const auto end = appMenuItems.begin() + static_cast<std::ptrdiff_t>(removable);
    itemsToRemove.assign(appMenuItems.begin(), end);
    appMenuItems.erase(appMenuItems.begin(), end);
}

void CanvasView::drawRect(GraphicsContext& context, const Rect& dirty) {
    View::drawRect(context, dirty);
    context_ = &context;
    drawPanel();
    context_ = nullptr;
    resizeWindowToContent();
    trackDrawnArea();
}

void CanvasView::resizeSubviewsWithOldSize(Size oldSize) {
    View::resizeSubviewsWithOldSize(oldSize);
    currentHighlightedRect.reset();
    systemHighlightedRect.reset();
}

void CanvasView::updateCurrentView() {
    setNeedsDisplay(true);
}

void CanvasView::modifierFlagsDidChange(const Event& event) {
    logLine("修饰键状态变化: " + std::to_string(event.modifierFlags));
    setNeedsDisplay(true);
}

void CanvasView::resetPanelState() {
    appMenuItems.clear();
    systemShortcutList.clear();
    menuItemElements.clear();
    menuItemKeyCodes.clear();
    currentHighlightedRect.reset();
    systemHighlightedRect.reset();
}

}  // namespace orlamo
