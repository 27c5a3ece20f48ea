#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "platform/WindowEffects.h"
#include "platform/x11/Connection.h"

namespace orlamo::x11 {

/// An icon in the notification area of X11: a small window of ours in the panel's. While it lives, it goes wherever
/// such a panel is, now or later; where there is none, it waits to hear of one.
class TrayIcon {
public:
    /// A picture of `size` x `size` pixels whose template parts have the colour `ink` (0xRRGGBB); colours multiplied by
    /// their alpha.
    using Draw = std::function<PixelImage(int size, std::uint32_t ink)>;
    using Clicked = std::function<void()>;

    TrayIcon(Connection& connection, Draw draw, Clicked clicked);
    ~TrayIcon();
    TrayIcon(const TrayIcon&) = delete;
    TrayIcon& operator=(const TrayIcon&) = delete;

    /// After what draw() gives has changed.
    void repaint();

private:
    struct Visual {
        xcb_visualid_t id = 0;
        std::uint8_t depth = 0;
        bool hasAlpha = false;
    };

    void dock();
    void undock();
    Visual visualOfTray();
    void createWindow(const Visual& visual);
    void describeWindow();
    void requestDock();
    void handle(const xcb_generic_event_t& event);
    void handleReparent(const xcb_reparent_notify_event_t& event);
    std::optional<PixelImage> behind();
    std::uint32_t ink();

    Connection& connection_;
    Draw draw_;
    Clicked clicked_;
    xcb_atom_t selection_;  // whoever owns it is the panel
    xcb_window_t tray_ = XCB_WINDOW_NONE;
    xcb_window_t window_ = XCB_WINDOW_NONE;
    xcb_colormap_t colormap_ = XCB_NONE;
    Visual visual_;
    int width_ = 0;
    int height_ = 0;
    bool isSeen_ = false;                   // the panel shows it, at its place
    std::optional<PixelImage> background_;  // behind the icon, before it was painted first
    Connection::Subscription events_;
};

}  // namespace orlamo::x11
