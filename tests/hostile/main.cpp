// Plays one behaviour in a real session, with a window in front: orlamo_hostile_peer BEHAVIOUR
#include <sys/socket.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "Peer.h"

using namespace orlamo::hostile;

namespace {

void openWindow(const char* title) {
    xcb_connection_t* const server = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(server) != 0) return;
    const xcb_screen_t* const screen = xcb_setup_roots_iterator(xcb_get_setup(server)).data;
    const xcb_window_t window = xcb_generate_id(server);
    const std::array<std::uint32_t, 1> white{screen->white_pixel};
    xcb_create_window(server, XCB_COPY_FROM_PARENT, window, screen->root, 40, 40, 300, 200, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, XCB_CW_BACK_PIXEL, white.data());
    xcb_change_property(server, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8,
                        static_cast<std::uint32_t>(std::strlen(title)), title);
    constexpr std::string_view name = "_NET_WM_PID";
    const auto asked = xcb_intern_atom(server, 0, name.size(), name.data());
    if (auto* const atom = xcb_intern_atom_reply(server, asked, nullptr)) {
        const auto process = static_cast<std::uint32_t>(getpid());
        xcb_change_property(server, XCB_PROP_MODE_REPLACE, window, atom->atom, XCB_ATOM_CARDINAL, 32, 1, &process);
        std::free(atom);
    }
    xcb_map_window(server, window);
    xcb_flush(server);  // the window lives as long as the process
}

std::string accessibilityAddress() {
    sd_bus* session = nullptr;
    sd_bus_message* answer = nullptr;
    const char* address = "";
    constexpr const char* launcher = "org.a11y.Bus";
    if (sd_bus_default_user(&session) < 0) return "";
    sd_bus_call_method(session, launcher, "/org/a11y/bus", launcher, "GetAddress", nullptr, &answer, "");
    if (answer != nullptr) sd_bus_message_read(answer, "s", &address);
    return address;
}

}  // namespace

int main(int count, char** words) {
    const auto& all = behaviours();
    const auto named = [&](const Behaviour& one) { return count == 2 && std::strcmp(one.name, words[1]) == 0; };
    const auto behaviour = std::ranges::find_if(all, named);
    if (behaviour == all.end()) {
        for (const Behaviour& one : all) std::puts(one.name);
        return 2;
    }
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) return 1;
    Presses presses;
    Peer peer(*behaviour, presses, accessibilityAddress());
    peer.embed();
    openWindow(behaviour->name);
    peer.serve(ends[0]);
}
