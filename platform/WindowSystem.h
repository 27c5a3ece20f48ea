#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/Geometry.h"
#include "platform/Service.h"

namespace orlamo {

class Window;

struct Screen {
    Rect frame;                 // points; the primary screen's has its origin at 0, 0
    std::string localizedName;  // as the desktop names its output
};

/// The native side of one Window. It asks the window for what it shows and tells it what the pointer does.
class WindowHost {
public:
    virtual ~WindowHost() = default;

    /// The window's frame in screen points changed, also in the middle of a drawing pass.
    virtual void frameChanged(const Rect& frame) = 0;
    /// Runs a drawing pass first, so that the window appears at its final place and size.
    virtual void orderFront() = 0;
    /// Gives a window that is in front the input focus.
    virtual void makeKey() {}
    virtual void orderOut() = 0;
    /// Some view wants a drawing pass; the host runs one soon, however often it was asked.
    virtual void setNeedsDisplay() = 0;
};

/// Windows and screens of the desktop.
class WindowSystem : public Service<WindowSystem> {
public:
    virtual ~WindowSystem() = default;

    /// `window` outlives its host.
    virtual std::unique_ptr<WindowHost> createHost(Window& window) = 0;
    /// The screen with the window that has the keyboard focus, the program's own included; without one, the screen that
    /// the desktop calls its primary.
    virtual std::optional<Screen> mainScreen() = 0;
    virtual std::vector<Screen> screens() = 0;
    /// The pointer, in screen points.
    virtual Point mouseLocation() = 0;
};

}  // namespace orlamo
