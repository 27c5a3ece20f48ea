#include "platform/x11/Connection.h"

#include <xcb/res.h>
#include <xcb/shape.h>
#include <xcb/shm.h>
#include <xcb/xinput.h>
#include <xcb/xtest.h>

#include "platform/Log.h"
#include "platform/x11/Xkb.h"

namespace orlamo::x11 {

namespace {

const xcb_screen_t* screenOf(xcb_connection_t* xcb, int number) {
    auto iterator = xcb_setup_roots_iterator(xcb_get_setup(xcb));
    for (; iterator.rem > 0; xcb_screen_next(&iterator), --number) {
        if (number == 0) return iterator.data;
    }
    return nullptr;
}

constexpr std::uint8_t responseType(const xcb_generic_event_t& event) {
    return event.response_type & 0x7f;
}

xcb_connection_t* connected(std::string& error, const char* display, int& screenNumber) {
    xcb_connection_t* const xcb = xcb_connect(display, &screenNumber);
    if (xcb_connection_has_error(xcb) == 0 && screenOf(xcb, screenNumber) != nullptr) return xcb;
    const char* const environment = std::getenv("DISPLAY");
    const char* const name = display != nullptr ? display : environment;
    error = name != nullptr ? std::string("cannot connect to the X server ") + name : "DISPLAY is not set";
    xcb_disconnect(xcb);
    return nullptr;
}

}  // namespace

std::unique_ptr<Connection> Connection::open(std::string& error, const char* display) {
    int screenNumber = 0;
    xcb_connection_t* const xcb = connected(error, display, screenNumber);
    if (xcb == nullptr) return nullptr;
    return std::unique_ptr<Connection>(new Connection(xcb, screenNumber));
}

bool Connection::isPossible(std::string& error) {
    int screenNumber = 0;
    xcb_connection_t* const xcb = connected(error, nullptr, screenNumber);
    if (xcb != nullptr) xcb_disconnect(xcb);
    return xcb != nullptr;
}

Connection::Connection(xcb_connection_t* xcb, int screenNumber)
    : xcb_(xcb), screenNumber_(screenNumber), screen_(screenOf(xcb, screenNumber)) {
    createHelperWindow();
    queryExtensions();
    watch_ = RunLoop::shared().watchReadable(xcb_get_file_descriptor(xcb_), [this] { drain(); });
}

Connection::~Connection() {
    watch_.reset();
    xcb_disconnect(xcb_);
}

void Connection::createHelperWindow() {
    helper_ = xcb_generate_id(xcb_);
    const std::uint32_t values[] = {1, XCB_EVENT_MASK_PROPERTY_CHANGE};
    xcb_create_window(xcb_, 0, helper_, root(), -1, -1, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT,
                      XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
}

void Connection::queryExtensions() {
    xcb_extension_t* const wanted[] = {&xcb_xkb_id, &xcb_input_id, &xcb_test_id,
                                       &xcb_res_id, &xcb_shape_id, &xcb_shm_id};
    for (xcb_extension_t* const extension : wanted) xcb_prefetch_extension_data(xcb_, extension);
    const auto present = [this](xcb_extension_t& extension) -> const xcb_query_extension_reply_t* {
        const auto* const data = xcb_get_extension_data(xcb_, &extension);
        return data != nullptr && data->present != 0 ? data : nullptr;
    };
    if (const auto* const data = present(xcb_xkb_id)) {
        const auto used = reply(xcb_xkb_use_extension_reply, xcb_xkb_use_extension(xcb_, 1, 0));
        extensions_.xkb = used && used->supported != 0;
        extensions_.xkbEvent = data->first_event;
    }
    if (const auto* const data = present(xcb_input_id)) {
        const auto version = reply(xcb_input_xi_query_version_reply, xcb_input_xi_query_version(xcb_, 2, 2));
        extensions_.xinput =
            version && (version->major_version > 2 || (version->major_version == 2 && version->minor_version >= 2));
        extensions_.xinputOpcode = data->major_opcode;
    }
    if (present(xcb_res_id) != nullptr) {
        const auto version = reply(xcb_res_query_version_reply, xcb_res_query_version(xcb_, 1, 2));
        extensions_.res = version && (version->server_major > 1 || version->server_minor >= 2);
    }
    extensions_.xtest = present(xcb_test_id) != nullptr;
    extensions_.shape = present(xcb_shape_id) != nullptr;
    extensions_.shm = present(xcb_shm_id) != nullptr;

    const struct {
        bool present;
        const char* consequence;
    } rows[] = {
        {extensions_.xkb, "XKEYBOARD: no trigger key, no held modifiers, no system cell can be performed"},
        {extensions_.xinput, "XInputExtension 2.2: no clicks elsewhere, no Escape"},
        {extensions_.xtest, "XTEST: no system cell can be performed"},
        {extensions_.res, "X-Resource 1.2: applications are known only by _NET_WM_PID"},
        {extensions_.shape, "SHAPE: the panel has square corners"},
        {extensions_.shm, "MIT-SHM: the screen is copied more slowly"},
    };
    for (const auto& row : rows) {
        if (!row.present) logLine(std::string("the X server lacks ") + row.consequence);
    }
}

bool Connection::isAlive() {
    if (xcb_connection_has_error(xcb_) == 0) return true;
    if (!lossLogged_) {
        lossLogged_ = true;
        logLine("the connection to the X server is lost");
    }
    watch_.reset();
    return false;
}

xcb_atom_t Connection::atom(std::string_view name) {
    if (const auto known = atoms_.find(name); known != atoms_.end()) return known->second;
    const auto answer =
        reply(xcb_intern_atom_reply, xcb_intern_atom(xcb_, 0, static_cast<std::uint16_t>(name.size()), name.data()));
    if (!answer) return XCB_ATOM_NONE;
    atoms_.emplace(name, answer->atom);
    return answer->atom;
}

xcb_timestamp_t Connection::serverTime() {
    // An empty change of our own window's property comes back as an event with the time, before the next answer does.
    xcb_change_property(xcb_, XCB_PROP_MODE_APPEND, helper_, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8, 0, nullptr);
    reply(xcb_get_input_focus_reply, xcb_get_input_focus(xcb_));
    return time_;
}

Connection::Subscription Connection::subscribe(EventHandler handler) {
    auto subscription = std::make_shared<EventHandler>(std::move(handler));
    handlers_.push_back(subscription);
    return subscription;
}

bool Connection::succeeded(xcb_void_cookie_t cookie) {
    const Owned<xcb_generic_error_t> error(xcb_request_check(xcb_, cookie));
    noteRoundTrip();
    return error == nullptr && isAlive();
}

void Connection::flush() {
    xcb_flush(xcb_);
}

void Connection::noteRoundTrip() {
    if (!isAlive()) return;
    while (xcb_generic_event_t* const event = xcb_poll_for_queued_event(xcb_))
        collect(Owned<xcb_generic_event_t>(event));
    // The descriptor is not readable for what has been read already.
    if (pending_.empty() || draining_ || drainDue_) return;
    drainDue_ = true;
    RunLoop::shared().asyncAfter(0, [this, life = std::weak_ptr<bool>(life_)] {
        if (life.expired()) return;
        drainDue_ = false;
        drain();
    });
}

void Connection::collect(Owned<xcb_generic_event_t> event) {
    if (responseType(*event) == XCB_PROPERTY_NOTIFY) {
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(*event);
        if (change.window == helper_) {
            time_ = change.time;
            return;
        }
    }
    pending_.push_back(std::move(event));
}

void Connection::drain() {
    if (draining_) return;
    draining_ = true;
    for (;;) {
        while (xcb_generic_event_t* const event = xcb_poll_for_event(xcb_)) collect(Owned<xcb_generic_event_t>(event));
        if (pending_.empty()) break;
        const Owned<xcb_generic_event_t> event = std::move(pending_.front());
        pending_.pop_front();
        dispatch(*event);
    }
    draining_ = false;
    xcb_flush(xcb_);
    isAlive();
}

void Connection::dispatch(const xcb_generic_event_t& event) {
    if (responseType(event) == 0) return;  // an error of a request nobody waited for, such as a window just gone
    std::erase_if(handlers_, [](const auto& handler) { return handler.expired(); });
    const auto handlers = handlers_;
    for (const auto& weak : handlers) {
        if (const Subscription handler = weak.lock()) (*handler)(event);
    }
}

}  // namespace orlamo::x11
