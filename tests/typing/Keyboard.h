#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace orlamo::typing {

using Keycodes = std::set<std::uint8_t>;

/// A connection to the X server of the environment. Ends the program when there is none.
class Display {
public:
    Display();
    ~Display();
    Display(const Display&) = delete;
    Display& operator=(const Display&) = delete;

    xcb_connection_t* xcb() const { return xcb_; }
    xcb_window_t root() const { return root_; }
    /// What is down on the core keyboard, whoever pressed it, once the server has done all that was asked before.
    Keycodes down();
    /// The core keyboard's real modifiers that are held, latched or locked.
    std::uint16_t modifiers();
    /// Through the test extension's own keyboard, as every program may.
    void release(std::uint8_t key);

private:
    xcb_connection_t* xcb_;
    xcb_window_t root_ = 0;
};

/// The user's keyboard: a device of its own beside the one on which programs type.
class PhysicalKeyboard {
public:
    /// Finds the server's keyboard; ends the program when it has none.
    PhysicalKeyboard();
    void press(std::uint8_t key);
    void release(std::uint8_t key);
    const Keycodes& held() const { return held_; }

private:
    void send(std::uint8_t key, std::uint8_t event);

    Display display_;
    std::uint8_t device_ = 0;
    std::uint8_t firstEvent_ = 0;
    Keycodes held_;
};

/// Takes every key of the display to itself, as no focus and no window manager then can, and keeps it.
class Recorder {
public:
    struct Key {
        std::uint8_t code = 0;
        bool isPress = false;
        std::uint16_t state = 0;  // before it
    };

    Recorder();
    /// What has arrived since the last time, modifiers left out.
    std::vector<Key> take();

private:
    Display display_;
};

/// The keys of the modifiers, left and right, and of AltGr.
extern const Keycodes modifierKeys;

[[noreturn]] void giveUp(const std::string& why);

}  // namespace orlamo::typing
