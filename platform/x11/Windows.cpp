#include "platform/x11/Windows.h"

#include <unistd.h>
#include <xcb/res.h>

#include <algorithm>
#include <cstring>

namespace orlamo::x11 {

namespace {

constexpr int maximumDepth = 32;
constexpr std::uint32_t maximumPropertyWords = 16384;
constexpr std::uint32_t sourcePager = 2;  // the user asked for it, not the application

}  // namespace

Windows::Windows(Connection& connection)
    : connection_(connection), ownProcess_(processByResource(connection.helperWindow())) {}

int Windows::processByResource(xcb_window_t window) {
    if (!connection_.extensions().res) return 0;
    const xcb_res_client_id_spec_t which{window, XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
    const auto answer =
        connection_.reply(xcb_res_query_client_ids_reply, xcb_res_query_client_ids(connection_.xcb(), 1, &which));
    if (!answer) return 0;
    auto iterator = xcb_res_query_client_ids_ids_iterator(answer.get());
    for (; iterator.rem > 0; xcb_res_client_id_value_next(&iterator)) {
        const bool isProcess = (iterator.data->spec.mask & XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID) != 0;
        if (isProcess && xcb_res_client_id_value_value_length(iterator.data) > 0) {
            return static_cast<int>(*xcb_res_client_id_value_value(iterator.data));
        }
    }
    return 0;
}

int Windows::processIdentifier(xcb_window_t window) {
    if (const int process = processByResource(window); process > 0) return process;
    const auto named = numbers(window, "_NET_WM_PID");
    return named.empty() ? 0 : static_cast<int>(named.front());
}

bool Windows::isOwn(xcb_window_t window) {
    if (const int process = processByResource(window); process > 0) return process == ownProcess_;
    const auto named = numbers(applicationWindow(window), "_NET_WM_PID");
    return !named.empty() && static_cast<int>(named.front()) == ::getpid();
}

std::optional<xcb_window_t> Windows::focus() {
    const auto answer = connection_.reply(xcb_get_input_focus_reply, xcb_get_input_focus(connection_.xcb()));
    if (!answer || answer->focus <= XCB_INPUT_FOCUS_POINTER_ROOT || answer->focus == connection_.root()) {
        return std::nullopt;
    }
    return answer->focus;
}

FocusHolder Windows::focusHolder() {
    const auto window = focus();
    if (!window) return FocusHolder::nobody;
    if (isOwn(*window)) return FocusHolder::thisProgram;
    // Window managers park the focus on a window of their own while no application has it.
    const auto manager = numbers(connection_.root(), "_NET_SUPPORTING_WM_CHECK");
    const bool parked = !manager.empty() && processIdentifier(*window) == processIdentifier(manager.front()) &&
                        !std::ranges::count(stackedWindows(), applicationWindow(*window));
    return parked ? FocusHolder::nobody : FocusHolder::otherProgram;
}

bool Windows::pointerIsOverOwnWindow() {
    xcb_window_t window = connection_.root();
    for (int depth = 0; depth < maximumDepth; ++depth) {
        const auto pointer = connection_.reply(xcb_query_pointer_reply, xcb_query_pointer(connection_.xcb(), window));
        if (!pointer || pointer->child == XCB_WINDOW_NONE) break;
        window = pointer->child;
    }
    return window != connection_.root() && isOwn(window);
}

bool Windows::isViewable(xcb_window_t window) {
    const auto attributes =
        connection_.reply(xcb_get_window_attributes_reply, xcb_get_window_attributes(connection_.xcb(), window));
    return attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
}

bool Windows::isUnmanaged(xcb_window_t window) {
    const auto attributes =
        connection_.reply(xcb_get_window_attributes_reply, xcb_get_window_attributes(connection_.xcb(), window));
    return attributes && attributes->override_redirect != 0;
}

bool Windows::setFocus(xcb_window_t window) {
    if (!isViewable(window)) return false;
    const xcb_timestamp_t now = connection_.serverTime();
    if (focusing_) focusing_(true);
    const bool taken =
        connection_.succeeded(xcb_set_input_focus_checked(connection_.xcb(), XCB_INPUT_FOCUS_PARENT, window, now));
    if (!taken && focusing_) focusing_(false);
    return taken;
}

void Windows::activate(xcb_window_t window) {
    if (!hasWindowManager()) {
        const std::uint32_t above = XCB_STACK_MODE_ABOVE;
        xcb_configure_window(connection_.xcb(), window, XCB_CONFIG_WINDOW_STACK_MODE, &above);
        setFocus(window);
        return;
    }
    sendToManager(window, "_NET_ACTIVE_WINDOW", {sourcePager, connection_.serverTime()});
}

void Windows::sendToManager(xcb_window_t window, std::string_view type, std::array<std::uint32_t, 5> data) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = connection_.atom(type);
    std::ranges::copy(data, message.data.data32);
    xcb_send_event(connection_.xcb(), 0, connection_.root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&message));
    connection_.flush();
}

void Windows::watch(xcb_window_t window) {
    const std::uint32_t mask = XCB_EVENT_MASK_FOCUS_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection_.xcb(), window, XCB_CW_EVENT_MASK, &mask);
    connection_.flush();
}

bool Windows::hasWindowManager() {
    const auto check = numbers(connection_.root(), "_NET_SUPPORTING_WM_CHECK");
    if (check.empty()) return false;
    // A manager that died leaves the property behind, but not the window.
    const auto self = numbers(check.front(), "_NET_SUPPORTING_WM_CHECK");
    return !self.empty() && self.front() == check.front();
}

std::optional<xcb_window_t> Windows::activeWindow() {
    if (!hasWindowManager()) return std::nullopt;
    const auto active = numbers(connection_.root(), "_NET_ACTIVE_WINDOW");
    if (active.empty() || active.front() == XCB_WINDOW_NONE) return std::nullopt;
    return active.front();
}

std::optional<xcb_window_t> Windows::frontmostWindow() {
    if (const auto active = activeWindow()) return active;
    if (hasWindowManager()) return std::nullopt;
    const auto focused = focus();
    if (!focused) return std::nullopt;
    return applicationWindow(*focused);
}

std::optional<PixelRect> Windows::area(xcb_window_t window) {
    const auto sizeCookie = xcb_get_geometry(connection_.xcb(), window);
    const auto placeCookie = xcb_translate_coordinates(connection_.xcb(), window, connection_.root(), 0, 0);
    const auto size = connection_.reply(xcb_get_geometry_reply, sizeCookie);
    const auto place = connection_.reply(xcb_translate_coordinates_reply, placeCookie);
    if (!size || !place) return std::nullopt;
    return PixelRect{place->dst_x, place->dst_y, size->width, size->height};
}

std::vector<xcb_window_t> Windows::stackedWindows() {
    if (hasWindowManager()) {
        auto stacked = numbers(connection_.root(), "_NET_CLIENT_LIST_STACKING");
        // Some tell the order only once it has changed for the first time.
        return stacked.empty() ? numbers(connection_.root(), "_NET_CLIENT_LIST") : stacked;
    }
    std::vector<xcb_window_t> found;
    for (const xcb_window_t window : children(connection_.root())) {
        if (!windowClass(window).empty() && isViewable(window)) found.push_back(window);
    }
    return found;
}

std::vector<xcb_window_t> Windows::children(xcb_window_t window) {
    const auto tree = connection_.reply(xcb_query_tree_reply, xcb_query_tree(connection_.xcb(), window));
    if (!tree) return {};
    const xcb_window_t* const first = xcb_query_tree_children(tree.get());
    return {first, first + xcb_query_tree_children_length(tree.get())};
}

xcb_window_t Windows::applicationWindow(xcb_window_t window) {
    xcb_window_t candidate = window;
    for (int depth = 0; depth < maximumDepth; ++depth) {
        if (!windowClass(candidate).empty()) return candidate;
        const auto tree = connection_.reply(xcb_query_tree_reply, xcb_query_tree(connection_.xcb(), candidate));
        if (!tree || tree->parent == tree->root || tree->parent == XCB_WINDOW_NONE) break;
        candidate = tree->parent;
    }
    return window;
}

xcb_window_t Windows::transientOwner(xcb_window_t window) {
    for (int depth = 0; depth < maximumDepth; ++depth) {
        const auto owner = numbers(window, "WM_TRANSIENT_FOR");
        if (owner.empty() || owner.front() == XCB_WINDOW_NONE || owner.front() == connection_.root()) break;
        if (processIdentifier(owner.front()) == 0) break;
        window = owner.front();
    }
    return window;
}

std::string Windows::bytes(xcb_window_t window, std::string_view property) {
    const auto answer = connection_.reply(xcb_get_property_reply,
                                          xcb_get_property(connection_.xcb(), 0, window, connection_.atom(property),
                                                           XCB_GET_PROPERTY_TYPE_ANY, 0, maximumPropertyWords));
    if (!answer) return {};
    const auto length = static_cast<std::size_t>(xcb_get_property_value_length(answer.get()));
    return {static_cast<const char*>(xcb_get_property_value(answer.get())), length};
}

std::string Windows::text(xcb_window_t window, std::string_view property) {
    std::string value = bytes(window, property);
    value.resize(std::strlen(value.c_str()));
    return value;
}

std::string Windows::windowClass(xcb_window_t window) {
    const std::string both = bytes(window, "WM_CLASS");
    const auto end = both.find('\0');
    if (end == std::string::npos) return both;
    return both.c_str() + end + 1;
}

std::vector<std::uint32_t> Windows::numbers(xcb_window_t window, std::string_view property) {
    const std::string value = bytes(window, property);
    std::vector<std::uint32_t> found(value.size() / sizeof(std::uint32_t));
    if (!found.empty()) std::memcpy(found.data(), value.data(), found.size() * sizeof(std::uint32_t));
    return found;
}

}  // namespace orlamo::x11
