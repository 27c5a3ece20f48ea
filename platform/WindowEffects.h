#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/Service.h"

namespace orlamo {

/// Device pixels, origin at the upper left corner of the whole screen area, y downward.
struct PixelRect {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

/// Rows from the top, 32 bits a pixel as 0xffRRGGBB; `pixels.size()` is width times height.
struct PixelImage {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;
};

using NativeWindow = std::uint64_t;

enum class Listing { listed, unlisted };

/// What the window system can do for a window beyond showing what it draws. An adapter of platform/ for another.
class WindowEffects : public Service<WindowEffects> {
public:
    virtual ~WindowEffects() = default;

    /// Whether translucent windows are blended with what lies behind them, now.
    virtual bool isComposited() = 0;
    /// Whether the compositor blurs behind a window on request.
    virtual bool canBlurBehind() = 0;
    /// Asks for that behind a rounded rectangle of the whole window. Sizes in device pixels.
    virtual void blurBehind(NativeWindow window, int width, int height, int radius) = 0;
    /// What the screen shows there now. Parts beyond the screen are black. None when it cannot be read.
    virtual std::optional<PixelImage> copyScreen(const PixelRect& area) = 0;
    /// Where the window lies that the user's keys go to; none when no window has them.
    virtual std::optional<PixelRect> focusedArea() { return std::nullopt; }
    /// Cuts the window, and the presses it takes, to a rounded rectangle. Sizes in device pixels.
    virtual void shapeRounded(NativeWindow window, int width, int height, int radius) = 0;
    /// Gives a visible window the input focus; remembers which window had it, for Workspace to return it. Where a
    /// window manager manages the window, asks that to do so.
    virtual void giveFocus(NativeWindow window) = 0;
    /// Tells the window manager whose window it manages and whether the taskbar and the switcher list it. Before each
    /// time that the window appears, and whenever the answer changes.
    virtual void introduce(NativeWindow, std::string_view /*applicationIdentifier*/, Listing) {}
    /// Before such a window leaves the screen: if it has the focus, this program keeps it until Workspace returns it,
    /// so that no window manager picks a window meanwhile.
    virtual void keepFocus(NativeWindow) {}
};

}  // namespace orlamo
