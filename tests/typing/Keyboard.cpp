#include "tests/typing/Keyboard.h"

#include <xcb/xinput.h>
#include <xcb/xtest.h>

#include <cstdio>
#include <cstdlib>
#include <memory>

#include "platform/x11/Connection.h"

namespace orlamo::typing {

using x11::Owned;

const Keycodes modifierKeys{37, 50, 62, 64, 105, 108, 133, 134};

void giveUp(const std::string& why) {
    std::fprintf(stderr, "%s\n", why.c_str());
    std::exit(2);
}

Display::Display() : xcb_(xcb_connect(nullptr, nullptr)) {
    if (xcb_connection_has_error(xcb_) != 0) giveUp("no X server");
    root_ = xcb_setup_roots_iterator(xcb_get_setup(xcb_)).data->root;
}

Display::~Display() {
    xcb_disconnect(xcb_);
}

Keycodes Display::down() {
    const Owned<xcb_query_keymap_reply_t> answer(xcb_query_keymap_reply(xcb_, xcb_query_keymap(xcb_), nullptr));
    if (!answer) giveUp("the X server is gone");
    Keycodes keys;
    for (unsigned key = 0; key < 256; ++key) {
        if (((answer->keys[key / 8] >> (key % 8)) & 1) != 0) keys.insert(static_cast<std::uint8_t>(key));
    }
    return keys;
}

std::uint16_t Display::modifiers() {
    const Owned<xcb_query_pointer_reply_t> answer(
        xcb_query_pointer_reply(xcb_, xcb_query_pointer(xcb_, root_), nullptr));
    if (!answer) giveUp("the X server is gone");
    return answer->mask & 0xff;
}

void Display::release(std::uint8_t key) {
    xcb_test_fake_input(xcb_, XCB_KEY_RELEASE, key, XCB_CURRENT_TIME, root_, 0, 0, 0);
    down();
}

PhysicalKeyboard::PhysicalKeyboard() {
    xcb_connection_t* const xcb = display_.xcb();
    const auto* const extension = xcb_get_extension_data(xcb, &xcb_input_id);
    if (extension == nullptr || extension->present == 0) giveUp("the X server lacks the input extension");
    firstEvent_ = extension->first_event;
    const Owned<xcb_input_xi_query_version_reply_t> version(
        xcb_input_xi_query_version_reply(xcb, xcb_input_xi_query_version(xcb, 2, 2), nullptr));
    const Owned<xcb_input_xi_query_device_reply_t> devices(
        xcb_input_xi_query_device_reply(xcb, xcb_input_xi_query_device(xcb, XCB_INPUT_DEVICE_ALL), nullptr));
    if (!version || !devices) giveUp("the X server does not tell its keyboards");
    for (auto each = xcb_input_xi_query_device_infos_iterator(devices.get()); each.rem > 0;
         xcb_input_xi_device_info_next(&each)) {
        const std::string name(xcb_input_xi_device_info_name(each.data), each.data->name_len);
        if (each.data->type == XCB_INPUT_DEVICE_TYPE_SLAVE_KEYBOARD && name.find("XTEST") == std::string::npos) {
            device_ = static_cast<std::uint8_t>(each.data->deviceid);
        }
    }
    if (device_ == 0) giveUp("the X server has no keyboard of its own");
}

void PhysicalKeyboard::press(std::uint8_t key) {
    held_.insert(key);
    send(key, XCB_INPUT_DEVICE_KEY_PRESS);
}

void PhysicalKeyboard::release(std::uint8_t key) {
    held_.erase(key);
    send(key, XCB_INPUT_DEVICE_KEY_RELEASE);
}

void PhysicalKeyboard::send(std::uint8_t key, std::uint8_t event) {
    xcb_test_fake_input(display_.xcb(), firstEvent_ + event, key, XCB_CURRENT_TIME, XCB_NONE, 0, 0, device_);
    display_.down();
}

Recorder::Recorder() {
    const Owned<xcb_grab_keyboard_reply_t> grab(
        xcb_grab_keyboard_reply(display_.xcb(),
                                xcb_grab_keyboard(display_.xcb(), 0, display_.root(), XCB_CURRENT_TIME,
                                                  XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
                                nullptr));
    if (!grab || grab->status != XCB_GRAB_STATUS_SUCCESS) giveUp("the keyboard is another program's");
}

std::vector<Recorder::Key> Recorder::take() {
    display_.down();
    std::vector<Key> keys;
    while (const Owned<xcb_generic_event_t> event{xcb_poll_for_queued_event(display_.xcb())}) {
        const auto type = event->response_type & 0x7f;
        if (type != XCB_KEY_PRESS && type != XCB_KEY_RELEASE) continue;
        const auto& key = reinterpret_cast<const xcb_key_press_event_t&>(*event);
        if (!modifierKeys.contains(key.detail)) keys.push_back({key.detail, type == XCB_KEY_PRESS, key.state});
    }
    return keys;
}

}  // namespace orlamo::typing
