#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/RunLoop.h"

namespace orlamo::x11 {

struct FreeDeleter {
    void operator()(void* memory) const { std::free(memory); }
};
/// What xcb hands out: owned by the receiver, null when there was an error.
template <class T>
using Owned = std::unique_ptr<T, FreeDeleter>;

/// What the server offers. Each missing one costs only what needs it, and one log line.
struct Extensions {
    bool xkb = false;
    bool xinput = false;  // 2.2 or later: raw events arrive while another program holds a grab
    bool xtest = false;
    bool res = false;  // 1.2 or later: tells the process of a window
    bool shape = false;
    bool shm = false;
    std::uint8_t xkbEvent = 0;      // response type of its events
    std::uint8_t xinputOpcode = 0;  // of its generic events
};

/// The adapters' own connection to the X server, beside the toolkit's. Main thread only; RunLoop is installed before.
/// A connection that breaks is logged once; from then on replies are null and no events come.
class Connection {
public:
    using EventHandler = std::function<void(const xcb_generic_event_t&)>;
    /// The handler is called for as long as this lives.
    using Subscription = std::shared_ptr<EventHandler>;

    /// The display of that name, or of the environment when it is null. On failure null, and `error` says why.
    static std::unique_ptr<Connection> open(std::string& error, const char* display = nullptr);
    /// Whether the environment's display lets this program in; else `error` says why not. Needs no run loop.
    static bool isPossible(std::string& error);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    xcb_connection_t* xcb() const { return xcb_; }
    const xcb_screen_t& screen() const { return *screen_; }
    int screenNumber() const { return screenNumber_; }
    xcb_window_t root() const { return screen_->root; }
    /// A window of this connection that is never shown.
    xcb_window_t helperWindow() const { return helper_; }
    const Extensions& extensions() const { return extensions_; }
    bool isAlive();

    /// Interned once; 0 on a broken connection.
    xcb_atom_t atom(std::string_view name);
    /// The server's time at this moment, for requests that must not carry "now".
    xcb_timestamp_t serverTime();

    [[nodiscard]] Subscription subscribe(EventHandler handler);

    /// Waits for an answer. Events that came with it are handed out soon after, from the run loop.
    template <class Reply, class Cookie>
    Owned<Reply> reply(Reply* (*wait)(xcb_connection_t*, Cookie, xcb_generic_error_t**), Cookie cookie) {
        xcb_generic_error_t* error = nullptr;
        Owned<Reply> answer(wait(xcb_, cookie, &error));
        std::free(error);
        noteRoundTrip();
        return answer;
    }
    /// Waits until the server has seen a checked request; whether it took it.
    bool succeeded(xcb_void_cookie_t cookie);
    void flush();
    /// Keeps what a round trip of a library on xcb() has read along. The operations above do it themselves.
    void noteRoundTrip();

private:
    Connection(xcb_connection_t* xcb, int screenNumber);
    void queryExtensions();
    void createHelperWindow();
    /// Moves what xcb has already read into pending_, or takes note of the time in it.
    void collect(Owned<xcb_generic_event_t> event);
    void drain();
    void dispatch(const xcb_generic_event_t& event);

    xcb_connection_t* xcb_;
    int screenNumber_;
    const xcb_screen_t* screen_ = nullptr;
    xcb_window_t helper_ = 0;
    Extensions extensions_;
    std::map<std::string, xcb_atom_t, std::less<>> atoms_;
    std::vector<std::weak_ptr<EventHandler>> handlers_;
    std::deque<Owned<xcb_generic_event_t>> pending_;
    xcb_timestamp_t time_ = 0;
    bool draining_ = false;
    bool drainDue_ = false;
    bool lossLogged_ = false;
    std::shared_ptr<bool> life_ = std::make_shared<bool>(true);  // a delayed drain checks it
    std::unique_ptr<RunLoop::Handle> watch_;
};

}  // namespace orlamo::x11
