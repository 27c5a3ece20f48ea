#pragma once

#include <QPointer>
#include <QVariant>
#include <QWidget>
#include <functional>

#include "platform/Controls.h"

namespace orlamo::qt {

/// The widget behind a control; every adapter is one. Found by dynamic_cast from Control.
class WidgetControl {
public:
    virtual ~WidgetControl() = default;
    /// Null once the widget is gone.
    virtual QWidget* widget() const = 0;
    /// Calls `perform` whenever the user, never the program, changes or presses the control. At most one `perform`.
    /// False: this kind of control performs nothing.
    virtual bool setAction(std::function<void()> /*perform*/) { return false; }
};

/// What all controls have in common, over a widget of the loaded interface. The widget may go first; then the control
/// answers like one that is empty and hidden. `Interface` is Control or a kind of it.
template <class Interface, class Widget = QWidget>
class ControlAdapter : public Interface, public WidgetControl {
public:
    explicit ControlAdapter(Widget& widget) : widget_(&widget) {}

    QWidget* widget() const override { return widget_.data(); }

    std::int64_t tag() const override { return widget_ ? widget_->property("tag").toLongLong() : 0; }
    double doubleValue() const override { return 0; }
    // A widget whose window was not shown yet counts as hidden for the toolkit; here only one that was told so does.
    bool isHidden() const override {
        return !widget_ || (widget_->isHidden() && widget_->testAttribute(Qt::WA_WState_ExplicitShowHide));
    }
    void setHidden(bool hidden) override {
        if (widget_) widget_->setHidden(hidden);
    }
    void setEnabled(bool enabled) override {
        if (widget_) widget_->setEnabled(enabled);
    }
    Rect bounds() const override {
        return widget_ ? Rect{0, 0, double(widget_->width()), double(widget_->height())} : Rect{};
    }

protected:
    /// Null once the widget is gone.
    Widget* native() const { return widget_.data(); }

private:
    QPointer<Widget> widget_;
};

}  // namespace orlamo::qt
