#include "panel/CanvasWindow.h"

#include "platform/Application.h"

namespace orlamo {

CanvasWindow::CanvasWindow(Rect contentRect, unsigned, Backing, Defer)
    : Window(contentRect, borderless, Backing::buffered, Defer::no) {
    appearance = "NSAppearanceNameDarkAqua";
    level = statusLevel;
    isOpaque = false;
    hasShadow = false;
    hidesOnDeactivate = false;
    isReleasedWhenClosed = true;
    Application::shared().activate(Application::IgnoringOtherApps::yes);
}

CanvasWindow::CanvasWindow() : CanvasWindow(Rect{}, borderless, Backing::buffered, Defer::no) {}

}  // namespace orlamo
