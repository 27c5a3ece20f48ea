#pragma once

#include "platform/WindowSystem.h"

namespace orlamo::qt {

class QtApplication;
class TextCache;

/// Needs a QGuiApplication. The collaborators outlive every host.
class QtWindowSystem final : public WindowSystem {
public:
    QtWindowSystem(TextCache& texts, QtApplication& application) : texts_(texts), application_(application) {}

    std::unique_ptr<WindowHost> createHost(Window& window) override;
    std::optional<Screen> mainScreen() override;
    std::vector<Screen> screens() override;
    Point mouseLocation() override;

private:
    TextCache& texts_;
    QtApplication& application_;
};

}  // namespace orlamo::qt
