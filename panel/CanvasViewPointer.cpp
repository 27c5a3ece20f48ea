// The pointer: which cell it is over, and what a press does.
#include <algorithm>
#include <limits>

#include "panel/CanvasView.h"
#include "panel/CanvasWindowController.h"
#include "platform/Accessibility.h"
#include "platform/EventPoster.h"
#include "platform/Log.h"
#include "platform/RunLoop.h"

namespace orlamo {

namespace {

constexpr double closingDelay = 0.01;  // seconds, so that the press is over when the panel goes

template <class Cells>
const typename Cells::value_type* cellAt(const Cells& cells, Point point) {
    const auto found = std::ranges::find_if(cells, [point](const auto& cell) { return cell.rect.contains(point); });
    return found == cells.end() ? nullptr : &*found;
}

void postKey(std::uint16_t keyCode, bool keyDown, std::uint64_t flags) {
    KeyboardEvent event = CGEventCreateKeyboardEvent(keyCode, keyDown);
    CGEventSetFlags(event, flags);
    EventPoster::shared().CGEventPost(EventTapLocation::session, event);
}

}  // namespace

void CanvasView::viewDidMoveToSuperview() {
    View::viewDidMoveToSuperview();
    addTrackingArea(
        {bounds(), TrackingArea::mouseEnteredAndExited | TrackingArea::mouseMoved | TrackingArea::activeAlways});
}

// Cells may lie beyond the bounds, so what was drawn says where the pointer counts.
void CanvasView::trackDrawnArea() {
    for (TrackingArea& area : trackingAreas()) area.rect = bounds().united(drawnArea_);
}

bool CanvasView::hearsPressAt(Point point) const {
    return bounds().contains(point) || drawnArea_.contains(point);
}

void CanvasView::mouseEntered(const MouseEvent& event) {
    View::mouseEntered(event);
    isMouseInsideRect = true;
    setNeedsDisplay(true);
}

void CanvasView::mouseExited(const MouseEvent& event) {
    View::mouseExited(event);
    isMouseInsideRect = false;
    setNeedsDisplay(true);
}

void CanvasView::mouseMoved(const MouseEvent& event) {
    View::mouseMoved(event);
    const Point point = convertPointFromView(event.locationInWindow, nullptr);
    logLine("Mouse Position: " + describe(point.x) + ", " + describe(point.y));
    // Not inside until a cell says so; without application cells nobody else would say it.
    isMouseInsideRect = false;
    currentHighlightedRect.reset();
    systemHighlightedRect.reset();
    if (const auto* const cell = cellAt(currentShortM, point)) {
        const std::string rect = describe(cell->rect);
        logLine("当前程序鼠标进入的选项rect: " + rect);
        logLine("文字: " + cell->title + "---- 尺寸: " + rect);
        isMouseInsideRect = true;
        currentHighlightedRect = cell->rect;
    } else if (const auto found = std::ranges::find_if(shortcutsM,
                                                       [point](const ShortcutsModel& model) {
                                                           return model.rect.contains(point) && !model.modifier.empty();
                                                       });
               found != shortcutsM.end()) {
        logLine("文字: " + found->title + "---- 尺寸: " + describe(found->rect));
        isMouseInsideRect = true;
        systemHighlightedRect = found->rect;
    }
    setNeedsDisplay(true);
}

void CanvasView::mouseDown(const MouseEvent& event) {
    View::mouseDown(event);
    logLine("Mouse Clicked at: " + describe(event.locationInWindow.x) + ", " + describe(event.locationInWindow.y));
    // The second press of a double click may come before the panel is gone: nothing is performed twice.
    if (isClosing_) return;
    const Point point = convertPointFromView(event.locationInWindow, nullptr);
    performApplicationCellClick(point);
    performSystemCellClick(point);
}

void CanvasView::performApplicationCellClick(Point point) {
    const CurrentShortcutsModel* const cell = cellAt(currentShortM, point);
    if (cell == nullptr) return;
    logLine("是这个点");
    logLine("currentLocation: " + describe(point));
    logLine("current: " + describe(cell->rect));
    logLine("当前程序title:" + cell->title);
    logLine("当前程序的菜单栏点击的区域:" + describe(cell->rect));

    AXUIElementRef element;
    for (std::size_t i = 0; i < menuItemTitles.size() && element == nullptr; ++i) {
        if (i >= menuItemElements.size()) {
            logLine("无法找到指定的键值");
        } else if (menuItemTitles[i] == cell->title) {
            element = menuItemElements[i];
        }
    }
    if (element != nullptr) {
        logLine("点击了: " + cell->title);
        const AXError error = Accessibility::shared().AXUIElementPerformAction(element, "AXPress");
        logLine(error == AXError::success ? "成功执行点击操作"
                                          : "点击操作失败，错误码：" + std::to_string(static_cast<int>(error)));
    }
    closePanelSoon();
}

void CanvasView::performSystemCellClick(Point point) {
    const ShortcutsModel* const cell = cellAt(shortcutsM, point);
    if (cell == nullptr) return;
    const std::string rect = describe(cell->rect);
    logLine("是这个点");
    logLine("location: " + describe(point));
    logLine("rect: " + rect);
    logLine("title: " + cell->title);
    logLine("frame: " + rect);
    logLine("修饰键: " + std::to_string(cell->modifierFlags));
    logLine("按键: " + std::to_string(cell->keycode));
    logLine("修饰键: " + cell->modifier + "   按键符号: " + cell->keyString);
    if (cell->keycode < 0 || cell->keycode > std::numeric_limits<std::uint16_t>::max() || cell->modifierFlags < 0) {
        logLine("no key to post for " + cell->title);
    } else {
        const auto keyCode = static_cast<std::uint16_t>(cell->keycode);
        const auto flags = static_cast<std::uint64_t>(cell->modifierFlags);
        postKey(keyCode, true, flags);
        postKey(keyCode, false, flags);
    }
    closePanelSoon();
}

void CanvasView::closePanelSoon() {
    isClosing_ = true;
    RunLoop::shared().asyncAfter(closingDelay, [view = std::weak_ptr<CanvasView*>(self_)] {
        const auto alive = view.lock();
        if (alive == nullptr || (*alive)->window() == nullptr) return;
        auto* const controller = dynamic_cast<CanvasWindowController*>((*alive)->window()->windowController);
        if (controller != nullptr) controller->hideShortcutWindow();
    });
}

}  // namespace orlamo
