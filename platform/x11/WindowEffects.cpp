#include "platform/x11/WindowEffects.h"

#include <unistd.h>
#include <xcb/shape.h>

#include <algorithm>
#include <array>
#include <string>

#include "platform/Log.h"
#include "platform/RunLoop.h"
#include "platform/x11/RoundedShape.h"
#include "platform/x11/ScreenCopy.h"

namespace orlamo::x11 {

namespace {

constexpr std::string_view blurRegion = "_KDE_NET_WM_BLUR_BEHIND_REGION";
constexpr double keptSeconds = 0.5;

// The actions and the source of a _NET_WM_STATE request.
constexpr std::uint32_t removeState = 0;
constexpr std::uint32_t addState = 1;
constexpr std::uint32_t sourceApplication = 1;

// The class part only: the instance stays what the toolkit made of the command line.
void setWindowClass(Connection& connection, Windows& windows, xcb_window_t window, std::string_view identifier) {
    std::string both = windows.text(window, "WM_CLASS");
    both.append(1, '\0').append(identifier).append(1, '\0');
    xcb_change_property(connection.xcb(), XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8,
                        static_cast<std::uint32_t>(both.size()), both.data());
}

}  // namespace

WindowEffects::WindowEffects(Connection& connection, Windows& windows, FocusMemory& memory)
    : connection_(connection), windows_(windows), memory_(memory) {
    subscription_ = connection_.subscribe([this](const xcb_generic_event_t& event) {
        if ((event.response_type & 0x7f) != XCB_MAP_NOTIFY) return;
        mapped(reinterpret_cast<const xcb_map_notify_event_t&>(event).window);
    });
}

bool WindowEffects::isComposited() {
    const xcb_atom_t manager = connection_.atom("_NET_WM_CM_S" + std::to_string(connection_.screenNumber()));
    const auto owner =
        connection_.reply(xcb_get_selection_owner_reply, xcb_get_selection_owner(connection_.xcb(), manager));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

bool WindowEffects::canBlurBehind() {
    if (!isComposited()) return false;
    // The compositor hangs the property on the root window while its blur effect is loaded.
    const xcb_atom_t region = connection_.atom(blurRegion);
    const auto properties =
        connection_.reply(xcb_list_properties_reply, xcb_list_properties(connection_.xcb(), connection_.root()));
    if (!properties) return false;
    const xcb_atom_t* const first = xcb_list_properties_atoms(properties.get());
    const xcb_atom_t* const last = first + xcb_list_properties_atoms_length(properties.get());
    if (std::find(first, last, region) != last) return true;
    const auto supported = windows_.numbers(connection_.root(), "_NET_SUPPORTED");
    return std::ranges::find(supported, region) != supported.end();
}

void WindowEffects::blurBehind(NativeWindow window, int width, int height, int radius) {
    std::vector<std::uint32_t> region;
    for (const PixelRect& band : roundedBands(width, height, radius)) {
        for (const int value : {band.x, band.y, band.width, band.height}) {
            region.push_back(static_cast<std::uint32_t>(value));
        }
    }
    xcb_change_property(connection_.xcb(), XCB_PROP_MODE_REPLACE, static_cast<xcb_window_t>(window),
                        connection_.atom(blurRegion), XCB_ATOM_CARDINAL, 32, static_cast<std::uint32_t>(region.size()),
                        region.data());
    connection_.flush();
}

std::optional<PixelImage> WindowEffects::copyScreen(const PixelRect& area) {
    return copyScreenArea(connection_, area);
}

std::optional<PixelRect> WindowEffects::focusedArea() {
    const auto focus = windows_.focus();
    if (focus && *focus != keeper_ && windows_.isOwn(*focus)) return windows_.area(*focus);
    const auto frontmost = windows_.frontmostWindow();
    return frontmost ? windows_.area(*frontmost) : std::nullopt;
}

void WindowEffects::shapeRounded(NativeWindow window, int width, int height, int radius) {
    if (!connection_.extensions().shape) return;  // said once, at the start
    std::vector<xcb_rectangle_t> rectangles;
    for (const PixelRect& band : roundedBands(width, height, radius)) {
        rectangles.push_back({static_cast<std::int16_t>(band.x), static_cast<std::int16_t>(band.y),
                              static_cast<std::uint16_t>(band.width), static_cast<std::uint16_t>(band.height)});
    }
    for (const xcb_shape_sk_t kind : {XCB_SHAPE_SK_BOUNDING, XCB_SHAPE_SK_INPUT}) {
        xcb_shape_rectangles(connection_.xcb(), XCB_SHAPE_SO_SET, static_cast<xcb_shape_kind_t>(kind),
                             XCB_CLIP_ORDERING_YX_BANDED, static_cast<xcb_window_t>(window), 0, 0,
                             static_cast<std::uint32_t>(rectangles.size()), rectangles.data());
    }
    connection_.flush();
}

void WindowEffects::giveFocus(NativeWindow window) {
    const auto own = static_cast<xcb_window_t>(window);
    if (windows_.hasWindowManager() && !windows_.isUnmanaged(own)) return windows_.activate(own);
    remember();
    windows_.watch(own);
    waitingForMap_ = windows_.setFocus(own) ? 0 : own;
}

void WindowEffects::introduce(NativeWindow window, std::string_view applicationIdentifier, Listing listing) {
    const auto own = static_cast<xcb_window_t>(window);
    windows_.watch(own);  // so that the event monitors hear when the user gives it the focus
    setWindowClass(connection_, windows_, own, applicationIdentifier);
    const std::array states{connection_.atom("_NET_WM_STATE_SKIP_TASKBAR"),
                            connection_.atom("_NET_WM_STATE_SKIP_PAGER")};
    if (!windows_.numbers(own, "WM_STATE").empty()) {
        const std::uint32_t change = listing == Listing::unlisted ? addState : removeState;
        return windows_.sendToManager(own, "_NET_WM_STATE", {change, states[0], states[1], sourceApplication});
    }
    // Nobody manages it yet: its own property says how it starts.
    auto now = windows_.numbers(own, "_NET_WM_STATE");
    std::erase_if(now, [&states](std::uint32_t state) { return std::ranges::count(states, state) > 0; });
    if (listing == Listing::unlisted) now.insert(now.end(), states.begin(), states.end());
    xcb_change_property(connection_.xcb(), XCB_PROP_MODE_REPLACE, own, connection_.atom("_NET_WM_STATE"), XCB_ATOM_ATOM,
                        32, static_cast<std::uint32_t>(now.size()), now.data());
    connection_.serverTime();  // done before the toolkit's connection shows the window
}

void WindowEffects::keepFocus(NativeWindow window) {
    const auto own = static_cast<xcb_window_t>(window);
    if (waitingForMap_ == own) waitingForMap_ = 0;
    if (!memory_.former() || windows_.focus() != own || !windows_.isUnmanaged(own)) return;
    // The answer is awaited: the toolkit may unmap its window after this.
    if (keeper_ == 0) createKeeper();
    xcb_map_window(connection_.xcb(), keeper_);
    windows_.setFocus(keeper_);
    RunLoop::shared().asyncAfter(keptSeconds, [this, life = std::weak_ptr<bool>(life_)] {
        if (!life.expired()) dropKeptFocus();
    });
}

void WindowEffects::dropKeptFocus() {
    xcb_unmap_window(connection_.xcb(), keeper_);
    connection_.flush();
}

void WindowEffects::createKeeper() {
    keeper_ = xcb_generate_id(connection_.xcb());
    const std::uint32_t unmanaged = 1;
    xcb_create_window(connection_.xcb(), 0, keeper_, connection_.root(), -1, -1, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT, &unmanaged);
    // How it is known as ours where X-Resource is missing.
    const auto process = static_cast<std::uint32_t>(::getpid());
    xcb_change_property(connection_.xcb(), XCB_PROP_MODE_REPLACE, keeper_, connection_.atom("_NET_WM_PID"),
                        XCB_ATOM_CARDINAL, 32, 1, &process);
}

void WindowEffects::mapped(xcb_window_t window) {
    if (window != waitingForMap_) return;
    waitingForMap_ = 0;
    if (!windows_.setFocus(window)) logLine("the window system refuses the panel the input focus");
}

void WindowEffects::remember() {
    const FocusHolder holder = windows_.focusHolder();
    std::optional<FocusMemory::Former> former;
    const auto focus = windows_.focus();
    if (focus && holder == FocusHolder::otherProgram) {
        former = FocusMemory::Former{*focus, windows_.applicationProcess(*focus)};
    }
    memory_.taken(holder, former);
}

}  // namespace orlamo::x11
