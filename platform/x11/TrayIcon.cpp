#include "platform/x11/TrayIcon.h"

#include <unistd.h>

#include <algorithm>
#include <string>
#include <utility>

#include "platform/Log.h"
#include "platform/x11/Blend.h"
#include "platform/x11/ScreenCopy.h"
#include "platform/x11/Tray.h"
#include "platform/x11/TrayInk.h"
#include "platform/x11/Windows.h"

namespace orlamo::x11 {

namespace {

constexpr int firstSize = 22;  // pixels; most panels give another one
constexpr std::uint32_t hintedMinimumSize = 1U << 4;
constexpr int largestSize = 128;
constexpr std::uint32_t requestDockOpcode = 0;
constexpr std::uint32_t embedVersion = 0;
constexpr std::uint32_t embedMapped = 1;
constexpr std::string_view instanceAndClass("orlamo\0Orlamo\0", 14);
constexpr std::string_view name = "Orlamo";

template <class Event>
const Event& as(const xcb_generic_event_t& event) {
    return reinterpret_cast<const Event&>(event);
}

}  // namespace

TrayIcon::TrayIcon(Connection& connection, Draw draw, Clicked clicked)
    : connection_(connection),
      draw_(std::move(draw)),
      clicked_(std::move(clicked)),
      selection_(traySelection(connection)),
      events_(connection.subscribe([this](const xcb_generic_event_t& event) { handle(event); })) {
    dock();
}

TrayIcon::~TrayIcon() {
    events_.reset();
    undock();
}

void TrayIcon::dock() {
    undock();
    tray_ = watchTray(connection_, selection_);
    if (tray_ != XCB_WINDOW_NONE) {
        createWindow(visualOfTray());
        requestDock();
    }
    connection_.flush();
}

void TrayIcon::undock() {
    if (window_ != XCB_WINDOW_NONE) xcb_destroy_window(connection_.xcb(), window_);
    if (colormap_ != XCB_NONE) xcb_free_colormap(connection_.xcb(), colormap_);
    connection_.flush();
    window_ = tray_ = XCB_WINDOW_NONE;
    colormap_ = XCB_NONE;
    width_ = height_ = 0;
    isSeen_ = false;
    background_.reset();
}

/// The one that the panel asks for, if it is one with alpha; else the screen's.
TrayIcon::Visual TrayIcon::visualOfTray() {
    const auto wanted = Windows(connection_).numbers(tray_, "_NET_SYSTEM_TRAY_VISUAL");
    auto depths = xcb_screen_allowed_depths_iterator(&connection_.screen());
    for (; !wanted.empty() && depths.rem > 0; xcb_depth_next(&depths)) {
        auto visuals = xcb_depth_visuals_iterator(depths.data);
        for (; visuals.rem > 0; xcb_visualtype_next(&visuals)) {
            if (visuals.data->visual_id == wanted.front() && depths.data->depth == 32) {
                return {visuals.data->visual_id, 32, true};
            }
        }
    }
    return {connection_.screen().root_visual, connection_.screen().root_depth, false};
}

void TrayIcon::createWindow(const Visual& visual) {
    xcb_connection_t* const xcb = connection_.xcb();
    visual_ = visual;
    colormap_ = xcb_generate_id(xcb);
    xcb_create_colormap(xcb, XCB_COLORMAP_ALLOC_NONE, colormap_, connection_.root(), visual.id);
    window_ = xcb_generate_id(xcb);
    const std::uint32_t values[] = {0, 0,
                                    XCB_EVENT_MASK_EXPOSURE | XCB_EVENT_MASK_STRUCTURE_NOTIFY |
                                        XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE,
                                    colormap_};
    xcb_create_window(xcb, visual.depth, window_, connection_.root(), -firstSize, -firstSize, firstSize, firstSize, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, visual.id,
                      XCB_CW_BACK_PIXEL | XCB_CW_BORDER_PIXEL | XCB_CW_EVENT_MASK | XCB_CW_COLORMAP, values);
    width_ = height_ = firstSize;
    describeWindow();
}

void TrayIcon::describeWindow() {
    const auto setText = [this](xcb_atom_t property, xcb_atom_t type, std::string_view value) {
        xcb_change_property(connection_.xcb(), XCB_PROP_MODE_REPLACE, window_, property, type, 8,
                            static_cast<std::uint32_t>(value.size()), value.data());
    };
    const auto setNumbers = [this](xcb_atom_t property, xcb_atom_t type, std::initializer_list<std::uint32_t> value) {
        xcb_change_property(connection_.xcb(), XCB_PROP_MODE_REPLACE, window_, property, type, 32,
                            static_cast<std::uint32_t>(value.size()), value.begin());
    };
    setText(XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, instanceAndClass);
    setText(XCB_ATOM_WM_NAME, XCB_ATOM_STRING, name);
    setText(connection_.atom("_NET_WM_NAME"), connection_.atom("UTF8_STRING"), name);
    setNumbers(connection_.atom("_NET_WM_PID"), XCB_ATOM_CARDINAL, {static_cast<std::uint32_t>(::getpid())});
    // Some panels ask for a size instead of giving one: flags, four unused numbers, the least size, ten more.
    setNumbers(XCB_ATOM_WM_NORMAL_HINTS, XCB_ATOM_WM_SIZE_HINTS,
               {hintedMinimumSize, 0, 0, 0, 0, firstSize, firstSize, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
    const xcb_atom_t embedding = connection_.atom("_XEMBED_INFO");
    setNumbers(embedding, embedding, {embedVersion, embedMapped});
}

void TrayIcon::requestDock() {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = tray_;
    message.type = connection_.atom("_NET_SYSTEM_TRAY_OPCODE");
    message.data.data32[0] = connection_.serverTime();
    message.data.data32[1] = requestDockOpcode;
    message.data.data32[2] = window_;
    xcb_send_event(connection_.xcb(), 0, tray_, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&message));
}

void TrayIcon::handle(const xcb_generic_event_t& event) {
    if (isNewTray(connection_, selection_, event) || isEndOf(tray_, event)) return dock();
    if (isTrayColorChange(connection_, tray_, event)) return repaint();
    switch (event.response_type & 0x7f) {
        case XCB_REPARENT_NOTIFY:
            handleReparent(as<xcb_reparent_notify_event_t>(event));
            break;
        case XCB_CONFIGURE_NOTIFY: {
            const auto& configured = as<xcb_configure_notify_event_t>(event);
            if (configured.window != window_) break;
            const bool isResized = configured.width != width_ || configured.height != height_;
            width_ = configured.width;
            height_ = configured.height;
            if (isResized) repaint();
            break;
        }
        case XCB_EXPOSE: {
            const auto& exposed = as<xcb_expose_event_t>(event);
            if (exposed.window != window_ || exposed.count != 0) break;
            isSeen_ = true;
            repaint();
            break;
        }
        case XCB_BUTTON_RELEASE: {
            // Not the press: until the release the server gives nobody else the pointer, and so no menu.
            const auto& button = as<xcb_button_release_event_t>(event);
            const bool isClick = button.detail == XCB_BUTTON_INDEX_1 || button.detail == XCB_BUTTON_INDEX_3;
            if (button.event == window_ && isClick) clicked_();
            break;
        }
        default:
            break;
    }
}

void TrayIcon::handleReparent(const xcb_reparent_notify_event_t& event) {
    if (event.window != window_ || window_ == XCB_WINDOW_NONE) return;
    if (event.parent == connection_.root()) {
        // Put out: on the screen it would be a window of its own. The panel's end comes after that, or a new panel.
        xcb_destroy_window(connection_.xcb(), std::exchange(window_, XCB_WINDOW_NONE));
        connection_.flush();
        return;
    }
    // Only now is it known to have the panel's depth, without which that background would be refused.
    if (visual_.hasAlpha) return;
    const std::uint32_t background = XCB_BACK_PIXMAP_PARENT_RELATIVE;
    xcb_change_window_attributes(connection_.xcb(), window_, XCB_CW_BACK_PIXMAP, &background);
    connection_.flush();
}

/// The panel there. It paints the background of a window of its own depth, which is right before a compositor has shown
/// any of it; behind one with alpha there is only what the screen shows.
std::optional<PixelImage> TrayIcon::behind() {
    if (!visual_.hasAlpha) return copyWindowArea(connection_, window_, {0, 0, width_, height_});
    const auto place =
        connection_.reply(xcb_translate_coordinates_reply,
                          xcb_translate_coordinates(connection_.xcb(), window_, connection_.root(), 0, 0));
    if (!place) return std::nullopt;
    return copyScreenArea(connection_, {place->dst_x, place->dst_y, width_, height_});
}

std::uint32_t TrayIcon::ink() {
    const auto colors = Windows(connection_).numbers(tray_, "_NET_SYSTEM_TRAY_COLORS");
    if (!background_) background_ = behind().value_or(PixelImage());
    return trayInk(colors, *background_);
}

void TrayIcon::repaint() {
    if (window_ == XCB_WINDOW_NONE || !isSeen_ || width_ <= 0 || height_ <= 0) return;
    if (!visual_.hasAlpha) {
        xcb_clear_area(connection_.xcb(), 0, window_, 0, 0, 0, 0);
        background_.reset();
    }
    const int size = std::clamp(std::min(width_, height_), 1, largestSize);
    const PixelImage picture = draw_(size, ink());
    const bool isDrawn =
        blendPicture(connection_, window_, visual_.id, (width_ - picture.width) / 2, (height_ - picture.height) / 2,
                     picture, visual_.hasAlpha ? Blend::replace : Blend::over);
    if (!isDrawn) logLine("status icon: the X server cannot blend pictures");
}

}  // namespace orlamo::x11
