#pragma once

#include <memory>

#include "platform/Window.h"
#include "platform/WindowSystem.h"
#include "platform/qt/controls/ControlsWindow.h"

namespace orlamo::qt {

class QtApplication;

/// Shows a window whose content is a controller's interface, as a window of the desktop. Its frame is that of the
/// content, without the window manager's border. There is one dark look, whatever the window's appearance. Native
/// resources exist from orderFront to orderOut.
class QtControlsWindowHost final : public WindowHost, private ControlsWindow::Listener {
public:
    QtControlsWindowHost(Window& window, QtApplication& application) : window_(window), application_(application) {}
    ~QtControlsWindowHost() override { orderOut(); }

    void frameChanged(const Rect& frame) override;
    void orderFront() override;
    void makeKey() override;
    void orderOut() override;
    void setNeedsDisplay() override {}  // the controls draw themselves

private:
    struct Retire {
        void operator()(ControlsWindow* shell) const { shell->retire(); }
    };

    void userCloses() override { window_.performClose(); }
    void geometryChanged() override;
    void becameActive() override;

    void create();
    void place();
    void cutCorners();
    double cornerRadius() const;

    Window& window_;
    QtApplication& application_;
    std::unique_ptr<ControlsWindow, Retire> shell_;
    bool isPlacing_ = false;
};

}  // namespace orlamo::qt
