#pragma once

#include "platform/Window.h"

namespace orlamo {

/// The panel's window: borderless, transparent, above normal windows. Creating it activates the program.
class CanvasWindow : public Window {
public:
    /// Keeps the content rectangle (screen points); always borderless, buffered and not deferred, whatever was asked.
    CanvasWindow(Rect contentRect, unsigned styleMask, Backing backing, Defer defer);
    CanvasWindow();
};

}  // namespace orlamo
