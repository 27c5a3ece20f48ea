#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <memory>
#include <vector>

#include "platform/Interface.h"

namespace orlamo::qt {

/// A loaded interface: owns its root widget and the controls over it, and tells its owner when the view comes and goes.
/// Whoever shows the widget puts it among his own and takes it out again (setParent(nullptr)) in time.
class QtInterfaceView final : public QObject, public InterfaceView {
public:
    /// The owner outlives the view.
    QtInterfaceView(std::unique_ptr<QWidget> root, InterfaceOwner& owner);
    ~QtInterfaceView() override;

    QWidget& widget() const { return *root_; }
    Size size() const override;

    /// Controllers hold it weakly from now on.
    void adopt(std::shared_ptr<Control> control) { controls_.push_back(std::move(control)); }

private:
    bool eventFilter(QObject* object, QEvent* event) override;
    void applyLayer();
    void paintLayer();

    QPointer<QWidget> root_;
    InterfaceOwner& owner_;
    std::vector<std::shared_ptr<Control>> controls_;
    bool hasAppeared_ = false;
};

/// The view as this toolkit made it: every InterfaceView of QtInterfaceFiles is one.
inline QtInterfaceView& native(InterfaceView& view) {
    return static_cast<QtInterfaceView&>(view);
}

}  // namespace orlamo::qt
