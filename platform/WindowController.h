#pragma once

#include "platform/Window.h"

namespace orlamo {

/// Owns what a window is about; the window knows it as its windowController. Does not own the window.
class WindowController {
public:
    explicit WindowController(Window* window = nullptr) { setWindow(window); }
    virtual ~WindowController() { setWindow(nullptr); }
    WindowController(const WindowController&) = delete;
    WindowController& operator=(const WindowController&) = delete;

    Window* window() const { return window_; }
    void setWindow(Window* window) {
        if (window_ != nullptr && window_->windowController == this) window_->windowController = nullptr;
        window_ = window;
        if (window_ != nullptr) window_->windowController = this;
    }
    virtual bool windowShouldClose() { return true; }
    /// Closes the window if there is one.
    void close() {
        if (window_ != nullptr) window_->close();
    }

private:
    Window* window_ = nullptr;
};

}  // namespace orlamo
