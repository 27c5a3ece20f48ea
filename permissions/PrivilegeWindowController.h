#pragma once

#include "platform/InterfaceWindowController.h"

namespace orlamo {

/// The window that asks for the permission: dark, rounded, without a frame.
class PrivilegeWindowController : public InterfaceWindowController {
public:
    PrivilegeWindowController();

    void windowDidLoad() override;
};

}  // namespace orlamo
