#pragma once

#include <map>
#include <memory>

#include "platform/qt/controls/InterfaceLoader.h"
#include "platform/qt/controls/QtInterfaceView.h"

namespace orlamo::qt {

/// Ties what a file made to its owner: controls, outlets, actions, images, the attributes of views. What does not fit
/// is one log line each.
class InterfaceWiring {
public:
    InterfaceWiring(InterfaceLoader& loader, QtInterfaceView& view, InterfaceOwner& owner);

    void wire();

private:
    void makeControls();
    void setOutlets();
    void connectActions();
    void connectAction(QWidget& widget, const ActionBinding& action);
    void setAttributes();

    InterfaceLoader& loader_;
    QtInterfaceView& view_;
    InterfaceOwner& owner_;
    std::map<QWidget*, std::shared_ptr<Control>> controls_;
};

}  // namespace orlamo::qt
