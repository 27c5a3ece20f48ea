#pragma once

#include "platform/InterfaceWindowController.h"

namespace orlamo {

/// The preferences window. Closing it keeps it and its pages.
class Preferences : public InterfaceWindowController {
public:
    Preferences();

    int originalWindowLevel = 0;

    void windowDidLoad() override;
    bool windowShouldClose() override;
};

}  // namespace orlamo
