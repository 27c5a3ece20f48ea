#include "core/MenuHarvest.h"

#include "core/MenuWalk.h"
#include "platform/Clock.h"
#include "platform/Workspace.h"

namespace orlamo {

namespace {

// Applications build their menus when they become active; that takes them a moment.
constexpr double secondsToBecomeActive = 0.05;

std::vector<AXUIElementRef> readMenuBar(int processIdentifier) {
    Accessibility& accessibility = Accessibility::shared();
    AXValue value;
    if (accessibility.AXUIElementCopyAttributeValue(accessibility.AXUIElementCreateApplication(processIdentifier),
                                                    "AXMenuBar", value) != AXError::success) {
        return {};
    }
    const auto* const menuBar = std::get_if<AXUIElementRef>(&value);
    if (menuBar == nullptr || *menuBar == nullptr) return {};
    return readChildren(*menuBar).value_or(std::vector<AXUIElementRef>());
}

}  // namespace

std::vector<MenuEntry> harvestMenuShortcuts() {
    const auto application = Workspace::shared().frontmostApplication();
    menuItemTitles.clear();
    menuItemElements.clear();
    if (application) Workspace::shared().activateWithOptions(*application, Workspace::activateIgnoringOtherApps);
    Clock::shared().sleepUntil(Clock::shared().secondsSince1970() + secondsToBecomeActive);

    const std::vector<AXUIElementRef> items = readMenuBar(application ? application->processIdentifier : 0);
    MenuWalk walk;
    for (std::size_t i = 0; i < items.size(); ++i) walk.walkMenuBarItem(items[i], i);
    return walk.finish();
}

}  // namespace orlamo
