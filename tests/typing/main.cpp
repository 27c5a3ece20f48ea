// Types combinations of keys on the display of the environment and looks at what arrives there.
//
//   orlamo_typing combinations COUNT   while a second keyboard presses and releases modifiers: each one arrives as it
//                                      was asked for, or not at all with a line in the log; nothing stays pressed
//   orlamo_typing kills COUNT          programs that type are killed, at any moment or by themselves between key-down
//                                      and key-up: nothing stays pressed
//
// The layout is whatever the display has. The exit status is 1 when something was wrong, 2 when nothing could be tried.
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <mutex>
#include <random>
#include <thread>

#include "platform/x11/EventPoster.h"
#include "platform/x11/KeyTable.h"
#include "tests/doubles/FakeLog.h"
#include "tests/doubles/FakeRunLoop.h"
#include "tests/typing/Keyboard.h"

using namespace orlamo;
using namespace orlamo::typing;
using namespace std::chrono_literals;

namespace {

constexpr auto stuckAfter = 500ms;

struct Combination {
    std::uint16_t keyCode = 0;
    std::uint64_t flags = 0;
    std::uint16_t state = 0;  // as an event tells these modifiers
};

Combination anyCombination(std::mt19937& random) {
    constexpr std::pair<std::uint64_t, std::uint16_t> roles[] = {{EventFlags::shift, XCB_MOD_MASK_SHIFT},
                                                                 {EventFlags::command, XCB_MOD_MASK_CONTROL},
                                                                 {EventFlags::option, XCB_MOD_MASK_1},
                                                                 {EventFlags::control, XCB_MOD_MASK_4}};
    Combination made;
    do {
        made.keyCode = static_cast<std::uint16_t>(random() % 128);
    } while (x11::keyRow(made.keyCode) == nullptr);
    for (const auto& [flag, state] : roles) {
        if (random() % 2 == 0) continue;
        made.flags |= flag;
        made.state |= state;
    }
    return made;
}

/// What app/main.cpp puts together for typing.
class Typist {
public:
    void post(const Combination& wanted, bool down) {
        KeyboardEvent event = CGEventCreateKeyboardEvent(wanted.keyCode, down);
        CGEventSetFlags(event, wanted.flags);
        poster_.CGEventPost(EventTapLocation::session, event);
    }
    /// The line that says why it is not typed; empty when there is none.
    std::string type(const Combination& wanted) {
        log_.lines.clear();
        post(wanted, true);
        post(wanted, false);
        connection_->serverTime();
        for (const std::string& line : log_.lines) {
            if (line.find(" is not posted: ") != std::string::npos) return line;
        }
        return {};
    }

private:
    static std::unique_ptr<x11::Connection> opened() {
        std::string error;
        auto connection = x11::Connection::open(error);
        if (!connection) giveUp(error);
        return connection;
    }

    FakeLog log_;
    FakeRunLoop runLoop_;
    std::unique_ptr<x11::Connection> connection_ = opened();
    x11::CoreKeyboard keyboard_{*connection_};
    x11::Windows windows_{*connection_};
    x11::WindowManager manager_{*connection_, windows_};
    x11::EventPoster poster_{*connection_, keyboard_, manager_};
};

/// What the keys type, asked of the server without a line of the program's own reading of layouts.
class Legend {
public:
    bool types(std::uint8_t key, const x11::KeyRow& row) const {
        constexpr std::uint8_t besideOne = 49;
        if (row.virtualKeyCode == x11::graveKeyCode && key == besideOne) return true;
        const xcb_keysym_t* const symbols = symbolsOf(key);
        for (const xcb_keysym_t withNothingHeld : {symbols[0], symbols[2]}) {  // on the first and the second layout
            if (withNothingHeld != 0 && (withNothingHeld == row.keysym || withNothingHeld == row.other)) return true;
        }
        return false;
    }

    /// Whether the server keeps it to itself, as Ctrl+Alt+F1, which switches the console: no program hears of it.
    bool isForServer(const Combination& wanted) const {
        constexpr std::uint16_t both = XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1;
        if ((wanted.state & (both | XCB_MOD_MASK_SHIFT)) != both) return false;
        const auto isCommand = [](xcb_keysym_t symbol) {
            return symbol >> 8 == 0x1008fe;
        };  // XF86Switch_VT_1 and so on
        for (unsigned key = first; key <= last; ++key) {
            const xcb_keysym_t* const symbols = symbolsOf(key);
            if (types(static_cast<std::uint8_t>(key), *x11::keyRow(wanted.keyCode)) &&
                std::any_of(symbols, symbols + table_->keysyms_per_keycode, isCommand))
                return true;
        }
        return false;
    }

private:
    static constexpr unsigned first = 8, last = 255;
    const xcb_keysym_t* symbolsOf(unsigned key) const {
        return xcb_get_keyboard_mapping_keysyms(table_.get()) + (key - first) * table_->keysyms_per_keycode;
    }

    Display display_;
    x11::Owned<xcb_get_keyboard_mapping_reply_t> table_{xcb_get_keyboard_mapping_reply(
        display_.xcb(), xcb_get_keyboard_mapping(display_.xcb(), first, last - first + 1), nullptr)};
};

/// A user who fiddles with the modifiers all the time. Between two actions the lock is free.
class Fiddler {
public:
    /// Looks at the keyboard while the user does nothing.
    template <class Look>
    auto pausing(Look look) {
        const std::lock_guard lock(mutex_);
        return look(keyboard_.held());
    }
    long actions() const { return actions_; }

private:
    void run(const std::stop_token& end) {
        std::mt19937 random(2);
        while (!end.stop_requested()) {
            {
                const std::lock_guard lock(mutex_);
                const Keycodes held = keyboard_.held();
                // Mostly nothing or one is held: else nearly everything would be refused.
                if (!held.empty() && (held.size() > 1 || random() % 2 == 0)) {
                    keyboard_.release(*std::next(held.begin(), random() % held.size()));
                    ++actions_;
                } else if (random() % 3 == 0) {
                    const std::uint8_t key = *std::next(modifierKeys.begin(), random() % modifierKeys.size());
                    if (!held.contains(key)) {
                        keyboard_.press(key);
                        ++actions_;
                    }
                }
            }
            std::this_thread::sleep_for(std::chrono::microseconds(random() % 400));
        }
        const std::lock_guard lock(mutex_);
        for (const std::uint8_t key : Keycodes(keyboard_.held())) keyboard_.release(key);
    }

    PhysicalKeyboard keyboard_;
    std::mutex mutex_;
    std::atomic<long> actions_ = 0;
    std::jthread thread_{[this](const std::stop_token& end) { run(end); }};
};

std::string described(const std::vector<Recorder::Key>& keys) {
    std::string text;
    for (const auto& key : keys) {
        text += (key.isPress ? " +" : " -") + std::to_string(key.code) + " state " + std::to_string(key.state);
    }
    return text.empty() ? " nothing" : text;
}

/// Whether exactly this arrived.
bool isAsAsked(const std::vector<Recorder::Key>& arrived, const Combination& wanted, const Legend& legend) {
    constexpr std::uint16_t roles = XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1 | XCB_MOD_MASK_4;
    return arrived.size() == 2 && arrived[0].isPress && !arrived[1].isPress && arrived[0].code == arrived[1].code &&
           (arrived[0].state & roles) == wanted.state && (arrived[1].state & roles) == wanted.state &&
           legend.types(arrived[0].code, *x11::keyRow(wanted.keyCode));
}

int typeCombinations(int count) {
    Typist typist;
    Recorder recorder;
    const Legend legend;
    Display display;
    std::mt19937 random(1);
    int typed = 0, refused = 0, wrong = 0, stuck = 0;
    long actions = 0;
    {
        Fiddler fiddler;
        for (int number = 0; number < count; ++number) {
            Combination wanted = anyCombination(random);
            while (legend.isForServer(wanted)) wanted = anyCombination(random);
            const std::string refusal = typist.type(wanted);
            const auto arrived = recorder.take();
            const bool isRight = refusal.empty() ? isAsAsked(arrived, wanted, legend) : arrived.empty();
            ++(isRight ? (refusal.empty() ? typed : refused) : wrong);
            if (!isRight) {
                std::printf("WRONG: key %d with state %d arrived as%s %s\n", wanted.keyCode, wanted.state,
                            described(arrived).c_str(), refusal.c_str());
            }
            if (!fiddler.pausing([&](const Keycodes& held) { return display.down() == held; })) ++stuck;
        }
        actions = fiddler.actions();
    }
    if (!display.down().empty() || (display.modifiers() & ~(XCB_MOD_MASK_LOCK | XCB_MOD_MASK_2)) != 0) ++stuck;
    std::printf(
        "%d combinations: %d arrived, %d refused, %d wrong; %d times other keys were down than the user's; "
        "the user pressed or released %ld times meanwhile\n",
        count, typed, refused, wrong, stuck, actions);
    if (typed < count / 10 || actions < count / 10) {
        std::printf("too little was tried\n");
        return 2;
    }
    return wrong + stuck > 0 ? 1 : 0;
}

/// A program that types until it is killed, or kills itself between key-down and key-up. It has begun.
pid_t startVictim(bool killsItself) {
    int ends[2];
    if (::pipe(ends) != 0) giveUp("no pipe");
    const pid_t victim = ::fork();
    if (victim == 0) {
        Typist typist;
        std::mt19937 random(static_cast<unsigned>(::getpid()));
        if (::write(ends[1], "+", 1) != 1) ::_exit(2);
        for (;;) {
            const Combination wanted = anyCombination(random);
            typist.post(wanted, true);
            if (killsItself) ::raise(SIGKILL);
            typist.post(wanted, false);
        }
    }
    ::close(ends[1]);
    char sign = 0;
    if (::read(ends[0], &sign, 1) != 1) giveUp("a program that types did not begin");
    ::close(ends[0]);
    return victim;
}

int killTypists(int count) {
    Display display;
    std::mt19937 random(3);
    int stuck = 0;
    std::chrono::duration<double, std::milli> longest{0};
    for (int number = 0; number < count; ++number) {
        const bool killsItself = number % 2 == 0;
        const pid_t victim = startVictim(killsItself);
        if (!killsItself) {
            std::this_thread::sleep_for(std::chrono::microseconds(random() % 30000));
            ::kill(victim, SIGKILL);
        }
        ::waitpid(victim, nullptr, 0);
        const auto end = std::chrono::steady_clock::now();
        while (!display.down().empty() && std::chrono::steady_clock::now() - end < stuckAfter)
            std::this_thread::sleep_for(1ms);
        longest = std::max(longest, decltype(longest)(std::chrono::steady_clock::now() - end));
        const Keycodes left = display.down();
        if (!left.empty()) ++stuck;
        for (const std::uint8_t key : left) display.release(key);
    }
    std::printf("%d kills: %d times keys stayed pressed; all were up %.1f ms after the longest\n", count, stuck,
                longest.count());
    return stuck > 0 ? 1 : 0;
}

}  // namespace

int main(int argc, char** argv) {
    const std::string mode = argc > 1 ? argv[1] : "";
    const int count = argc > 2 ? std::atoi(argv[2]) : 0;
    if (mode == "combinations" && count > 0) return typeCombinations(count);
    if (mode == "kills" && count > 0) return killTypists(count);
    giveUp("usage: orlamo_typing combinations|kills COUNT");
}
