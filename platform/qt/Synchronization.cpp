#include "platform/qt/Synchronization.h"

#include <QGuiApplication>

// After the toolkit's headers, whose names it takes for macros.
#include <X11/Xlib.h>

namespace orlamo::qt {

// Not the toolkit's other way to its connection, which waits as well: it names each window through Xlib but never asks
// Xlib anything, and Xlib keeps a note of each of its requests until an answer to a later one comes.
void synchronize() {
    auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    Display* const display = x11 != nullptr ? x11->display() : nullptr;
    if (display == nullptr) return;  // another window system
    constexpr int keepEvents = 0;
    XSync(display, keepEvents);
}

}  // namespace orlamo::qt
