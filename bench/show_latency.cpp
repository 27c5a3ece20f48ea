// Presses the trigger and takes the time from its second release until the panel's first frame is on the screen.
// Usage: show_latency RUNS. One line per run: the moments of the release, of the mapping and of the first frame, in
// milliseconds of the monotonic clock. Closes the panel by Escape after each run.
#include <X11/keysym.h>
#include <poll.h>
#include <xcb/damage.h>
#include <xcb/xcb.h>
#include <xcb/xtest.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

double milliseconds() {
    return std::chrono::duration<double, std::milli>(Clock::now().time_since_epoch()).count();
}

struct FreeDeleter {
    void operator()(void* memory) const { std::free(memory); }
};
template <class T>
using Owned = std::unique_ptr<T, FreeDeleter>;

class Bench {
public:
    Bench() : xcb_(xcb_connect(nullptr, nullptr)) {
        if (xcb_connection_has_error(xcb_) != 0) std::exit(1);
        root_ = xcb_setup_roots_iterator(xcb_get_setup(xcb_)).data->root;
        damageEvent_ = xcb_get_extension_data(xcb_, &xcb_damage_id)->first_event;
        Owned<xcb_damage_query_version_reply_t>(
            xcb_damage_query_version_reply(xcb_, xcb_damage_query_version(xcb_, 1, 1), nullptr));
        const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(xcb_, root_, XCB_CW_EVENT_MASK, &mask);
        damage_ = xcb_generate_id(xcb_);
        xcb_damage_create(xcb_, damage_, root_, XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
        xcb_flush(xcb_);
    }
    ~Bench() { xcb_disconnect(xcb_); }

    bool run() {
        const xcb_keycode_t control = keycode(XK_Control_L);
        drain();
        tap(control);
        std::this_thread::sleep_for(std::chrono::milliseconds(60));
        press(control, true);
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        drain();
        const double released = milliseconds();
        press(control, false);

        xcb_window_t panel = 0;
        xcb_rectangle_t area{};
        double mapped = 0;
        double framed = 0;
        const bool seen = waitFor(3000, [&](const xcb_generic_event_t& event) {
            const int type = event.response_type & 0x7F;
            if (type == XCB_MAP_NOTIFY && panel == 0) {
                const auto& map = reinterpret_cast<const xcb_map_notify_event_t&>(event);
                if (map.override_redirect == 0) return false;
                panel = map.window;
                mapped = milliseconds();
                area = geometry(panel);
            } else if (type == damageEvent_ + XCB_DAMAGE_NOTIFY && panel != 0) {
                const auto& damage = reinterpret_cast<const xcb_damage_notify_event_t&>(event);
                if (!coversMost(damage.area, area)) return false;
                framed = milliseconds();
                return true;
            }
            return false;
        });
        if (!seen) return false;
        std::printf("%.3f %.3f %.3f\n", released, mapped, framed);
        std::fflush(stdout);
        std::this_thread::sleep_for(std::chrono::milliseconds(150));  // nobody is faster
        tap(keycode(XK_Escape));
        waitFor(3000, [&](const xcb_generic_event_t& event) {
            return (event.response_type & 0x7F) == XCB_UNMAP_NOTIFY &&
                   reinterpret_cast<const xcb_unmap_notify_event_t&>(event).window == panel;
        });
        std::this_thread::sleep_for(std::chrono::milliseconds(700));  // out of the trigger's half second
        return true;
    }

private:
    static bool coversMost(const xcb_rectangle_t& damaged, const xcb_rectangle_t& window) {
        const int width = std::min(damaged.x + damaged.width, window.x + window.width) - std::max(damaged.x, window.x);
        const int height =
            std::min(damaged.y + damaged.height, window.y + window.height) - std::max(damaged.y, window.y);
        return width > 0 && height > 0 && 2 * width * height > window.width * window.height;
    }

    xcb_rectangle_t geometry(xcb_window_t window) {
        const Owned<xcb_get_geometry_reply_t> reply(
            xcb_get_geometry_reply(xcb_, xcb_get_geometry(xcb_, window), nullptr));
        if (reply == nullptr) return {};
        return {reply->x, reply->y, reply->width, reply->height};
    }

    xcb_keycode_t keycode(xcb_keysym_t wanted) {
        const auto* const setup = xcb_get_setup(xcb_);
        const int count = setup->max_keycode - setup->min_keycode + 1;
        const Owned<xcb_get_keyboard_mapping_reply_t> map(xcb_get_keyboard_mapping_reply(
            xcb_, xcb_get_keyboard_mapping(xcb_, setup->min_keycode, static_cast<std::uint8_t>(count)), nullptr));
        const xcb_keysym_t* const symbols = xcb_get_keyboard_mapping_keysyms(map.get());
        for (int i = 0; i < count; ++i) {
            if (symbols[i * map->keysyms_per_keycode] == wanted) {
                return static_cast<xcb_keycode_t>(setup->min_keycode + i);
            }
        }
        return 0;
    }

    void press(xcb_keycode_t key, bool down) {
        xcb_test_fake_input(xcb_, down ? XCB_KEY_PRESS : XCB_KEY_RELEASE, key, XCB_CURRENT_TIME, root_, 0, 0, 0);
        xcb_flush(xcb_);
    }
    void tap(xcb_keycode_t key) {
        press(key, true);
        press(key, false);
    }

    void drain() {
        Owned<xcb_get_input_focus_reply_t>(xcb_get_input_focus_reply(xcb_, xcb_get_input_focus(xcb_), nullptr));
        while (Owned<xcb_generic_event_t>(xcb_poll_for_event(xcb_)) != nullptr) {
        }
    }

    bool waitFor(int timeout, const std::function<bool(const xcb_generic_event_t&)>& found) {
        const double end = milliseconds() + timeout;
        while (milliseconds() < end) {
            while (const Owned<xcb_generic_event_t> event{xcb_poll_for_event(xcb_)}) {
                if (found(*event)) return true;
            }
            pollfd descriptor{xcb_get_file_descriptor(xcb_), POLLIN, 0};
            poll(&descriptor, 1, 20);
        }
        return false;
    }

    xcb_connection_t* xcb_;
    xcb_window_t root_ = 0;
    xcb_damage_damage_t damage_ = 0;
    int damageEvent_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
    const int runs = argc > 1 ? std::atoi(argv[1]) : 20;
    Bench bench;
    for (int i = 0; i < runs; ++i) {
        if (!bench.run()) {
            std::fprintf(stderr, "no panel within 3 s\n");
            return 1;
        }
    }
}
