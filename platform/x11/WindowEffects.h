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
    std::optional<PixelRect> focusedArea() override;
    void shapeRounded(NativeWindow window, int width, int height, int radius) override;
    /// A window that is not on the screen yet gets the focus as soon as it is.
    void giveFocus(NativeWindow window) override;
    void introduce(NativeWindow window, std::string_view applicationIdentifier, Listing listing) override;
    /// Nothing for a window that the window manager manages, or when there is no window to return the focus to.
    void keepFocus(NativeWindow window) override;

private:
    void remember();
    void mapped(xcb_window_t window);
    /// Nobody asked for the focus that was kept: the window manager shall choose.
    void dropKeptFocus();
    void createKeeper();

    Connection& connection_;
    Windows& windows_;
    FocusMemory& memory_;
    xcb_window_t waitingForMap_ = 0;
    xcb_window_t keeper_ = 0;  // never seen; has the focus between our last window and the one it is returned to
    std::shared_ptr<bool> life_ = std::make_shared<bool>(true);  // delayed tasks check it
    Connection::Subscription subscription_;
};

}  // namespace orlamo::x11
