#pragma once

#include <functional>

#include "platform/WindowSystem.h"

namespace orlamo::qt {

class QtApplication;
class TextCache;

/// Needs a QGuiApplication. The collaborators outlive every host.
class QtWindowSystem final : public WindowSystem {
public:
    /// Makes the host of a window that shows a controller's view.
    using ControlsHost = std::function<std::unique_ptr<WindowHost>(Window&, QtApplication&)>;

    QtWindowSystem(TextCache& texts, QtApplication& application, ControlsHost controlsHost = {})
        : texts_(texts), application_(application), controlsHost_(std::move(controlsHost)) {}

    std::unique_ptr<WindowHost> createHost(Window& window) override;
    std::optional<Screen> mainScreen() override;
    std::vector<Screen> screens() override;
    Point mouseLocation() override;

private:
    TextCache& texts_;
    QtApplication& application_;
    ControlsHost controlsHost_;
};

}  // namespace orlamo::qt
