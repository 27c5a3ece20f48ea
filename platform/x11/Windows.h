#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/WindowEffects.h"
#include "platform/x11/Connection.h"
#include "platform/x11/FocusMemory.h"

namespace orlamo::x11 {

/// Questions about other people's windows. A window that is gone answers like one without properties.
class Windows {
public:
    explicit Windows(Connection& connection);

    /// The process behind a window, as the server knows it (X-Resource, else _NET_WM_PID); 0 when it cannot be told.
    int processIdentifier(xcb_window_t window);
    bool isOwn(xcb_window_t window);

    /// The window with the input focus; none for the root window, for nobody, and for "whatever is pointed at".
    std::optional<xcb_window_t> focus();
    FocusHolder focusHolder();
    bool pointerIsOverOwnWindow();
    bool isViewable(xcb_window_t window);
    /// Whether window managers leave it alone.
    bool isUnmanaged(xcb_window_t window);
    /// False when the window cannot take it.
    bool setFocus(xcb_window_t window);
    /// Called with true just before one of this program's windows is given the focus, so that what is asked of the
    /// server then is in force with the first key that arrives there; with false when the window did not take it. One
    /// listener.
    void onFocusing(std::function<void(bool)> listener) { focusing_ = std::move(listener); }
    /// To the front, with the focus, as when the user asks for it; without a window manager at once.
    void activate(xcb_window_t window);
    /// A request about a window in the words of the window managers' convention.
    void sendToManager(xcb_window_t window, std::string_view type, std::array<std::uint32_t, 5> data);
    /// From now on the connection hears of that window's focus, mapping and end.
    void watch(xcb_window_t window);

    /// _NET_ACTIVE_WINDOW of a window manager that is running; none when it has none or there is no such manager.
    std::optional<xcb_window_t> activeWindow();
    bool hasWindowManager();
    /// The active window; without a window manager the application window with the input focus.
    std::optional<xcb_window_t> frontmostWindow();
    /// Where a window lies on the screen, without its border; none when it is gone.
    std::optional<PixelRect> area(xcb_window_t window);
    /// Application windows, bottom to top.
    std::vector<xcb_window_t> stackedWindows();
    /// The application window that holds a window or is it; the window itself when there is none.
    xcb_window_t applicationWindow(xcb_window_t window);
    /// The window at the end of its WM_TRANSIENT_FOR chain: a dialog's application.
    xcb_window_t transientOwner(xcb_window_t window);
    /// The process of the application that a window is a part of.
    int applicationProcess(xcb_window_t window) { return processIdentifier(transientOwner(applicationWindow(window))); }

    /// A text property's bytes up to its first zero; empty when there is none.
    std::string text(xcb_window_t window, std::string_view property);
    /// The class part of WM_CLASS.
    std::string windowClass(xcb_window_t window);
    /// A list of 32-bit values: numbers, atoms, windows.
    std::vector<std::uint32_t> numbers(xcb_window_t window, std::string_view property);

private:
    std::string bytes(xcb_window_t window, std::string_view property);
    std::vector<xcb_window_t> children(xcb_window_t window);
    int processByResource(xcb_window_t window);

    Connection& connection_;
    std::function<void(bool)> focusing_;
    int ownProcess_;  // this process by the server's count, which differs in a container
};

}  // namespace orlamo::x11
