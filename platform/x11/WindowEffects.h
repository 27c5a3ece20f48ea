#pragma once

#include "platform/WindowEffects.h"
#include "platform/x11/Connection.h"
#include "platform/x11/FocusMemory.h"
#include "platform/x11/Windows.h"

namespace orlamo::x11 {

class WindowEffects final : public orlamo::WindowEffects {
public:
    /// The memory is shared with the Workspace that gives the focus back.
    WindowEffects(Connection& connection, Windows& windows, FocusMemory& memory);

    bool isComposited() override;
    bool canBlurBehind() override;
    void blurBehind(NativeWindow window, int width, int height, int radius) override;
    std::optional<PixelImage> copyScreen(const PixelRect& area) override;
    void shapeRounded(NativeWindow window, int width, int height, int radius) override;
    /// A window that is not on the screen yet gets the focus as soon as it is.
    void giveFocus(NativeWindow window) override;

private:
    void remember();
    void mapped(xcb_window_t window);

    Connection& connection_;
    Windows& windows_;
    FocusMemory& memory_;
    xcb_window_t waitingForMap_ = 0;
    Connection::Subscription subscription_;
};

}  // namespace orlamo::x11
