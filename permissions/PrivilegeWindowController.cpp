#include "permissions/PrivilegeWindowController.h"

#include "permissions/PrivilegeController.h"

namespace orlamo {

PrivilegeWindowController::PrivilegeWindowController()
    : InterfaceWindowController("PrivilegeWindowController", std::make_unique<PrivilegeController>()) {}

void PrivilegeWindowController::windowDidLoad() {
    InterfaceWindowController::windowDidLoad();
    Window& privilegeWindow = *window();
    privilegeWindow.appearance = "NSAppearanceNameDarkAqua";
    privilegeWindow.hasShadow = false;
    privilegeWindow.center();
    privilegeWindow.isOpaque = false;
    privilegeWindow.backgroundColor = Color::clearColor();
    InterfaceView& content = contentViewController().view();
    content.wantsLayer = true;
    content.layer.cornerRadius = 30.0;
    content.layer.masksToBounds = true;
}

}  // namespace orlamo
