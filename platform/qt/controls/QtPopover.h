#pragma once

#include <memory>

#include "platform/Controls.h"

namespace orlamo::qt {

class PopoverWindow;

/// A dark rounded window with an arrow. While it is shown, the content's widget stands in it; it never deletes that.
class QtPopover final : public Popover {
public:
    QtPopover();
    ~QtPopover() override;

    void setContentViewController(ViewController& controller) override;
    /// The control is one of this toolkit's. The rectangle's y points upward. When the popover closes, the keyboard is
    /// the control's again.
    void showRelativeToRect(const Rect& rect, Control& control, RectEdge preferredEdge) override;
    bool isShown() const override;

private:
    ViewController* controller_ = nullptr;
    std::unique_ptr<PopoverWindow> window_;
};

}  // namespace orlamo::qt
