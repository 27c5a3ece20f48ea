#include "platform/qt/controls/QtPopover.h"

#include <cmath>

#include "platform/Log.h"
#include "platform/ViewController.h"
#include "platform/qt/controls/ControlAdapter.h"
#include "platform/qt/controls/DocumentSize.h"
#include "platform/qt/controls/PopoverWindow.h"
#include "platform/qt/controls/QtInterfaceView.h"

namespace orlamo::qt {

QtPopover::QtPopover() = default;

QtPopover::~QtPopover() = default;

void QtPopover::setContentViewController(ViewController& controller) {
    controller_ = &controller;
}

void QtPopover::showRelativeToRect(const Rect& rect, Control& control, RectEdge preferredEdge) {
    const auto* const adapter = dynamic_cast<const WidgetControl*>(&control);
    QWidget* const anchor = adapter != nullptr ? adapter->widget() : nullptr;
    if (anchor == nullptr || controller_ == nullptr) {
        logLine("popover: nothing to show, or nothing to show it at");
        return;
    }
    InterfaceView& view = controller_->view();
    QWidget& content = native(view).widget();
    if (window_ == nullptr || window_->behavior() != behavior) window_ = std::make_unique<PopoverWindow>(behavior);
    const QRect place(static_cast<int>(std::lround(rect.x)),
                      static_cast<int>(std::lround(anchor->height() - rect.maxY())),
                      static_cast<int>(std::lround(rect.width)), static_cast<int>(std::lround(rect.height)));
    window_->showBeside(*anchor, place, preferredEdge, content, neededSize(content));
}

bool QtPopover::isShown() const {
    return window_ != nullptr && window_->isVisible();
}

}  // namespace orlamo::qt
