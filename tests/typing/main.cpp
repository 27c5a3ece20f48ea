// Types combinations of keys on the display of the environment and looks at what arrives there.
//
//   orlamo_typing combinations COUNT   while a second keyboard presses and releases modifiers: each one arrives as it
//                                      was asked for, or not at all with a line in the log; nothing stays pressed
//   orlamo_typing kills COUNT          programs that type are killed: nothing stays pressed
//   orlamo_typing forever | half       what is killed: at any moment; by itself between key-down and key-up
//
// The layout is whatever the display has. The exit status is 1 when something was wrong, 2 when nothing could be tried.
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xkbcommon/xkbcommon-x11.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <map>
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

class Combinations {
public:
    explicit Combinations(unsigned seed) : random_(seed) {
        for (std::uint16_t code = 0; code < 128; ++code) {
            if (x11::keyRow(code) != nullptr) codes_.push_back(code);
        }
    }
    Combination next() {
        constexpr struct {
            std::uint64_t flag;
            std::uint16_t state;
        } roles[] = {{EventFlags::shift, XCB_MOD_MASK_SHIFT},
                     {EventFlags::command, XCB_MOD_MASK_CONTROL},
                     {EventFlags::option, XCB_MOD_MASK_1},
                     {EventFlags::control, XCB_MOD_MASK_4}};
        Combination made{.keyCode = codes_[random_() % codes_.size()]};
        const auto chosen = random_() % 16;
        for (unsigned role = 0; role < 4; ++role) {
            if ((chosen >> role & 1) == 0) continue;
            made.flags |= roles[role].flag;
            made.state |= roles[role].state;
        }
        return made;
    }

private:
    std::mt19937 random_;
    std::vector<std::uint16_t> codes_;
};

/// What app/main.cpp puts together for typing.
class Typist {
public:
    Typist() : connection_(x11::Connection::open(error_)) {
        if (!connection_) giveUp(error_);
        keyboard_.emplace(*connection_);
        windows_.emplace(*connection_);
        manager_.emplace(*connection_, *windows_);
        poster_.emplace(*connection_, *keyboard_, *manager_);
    }
    void keyDown(const Combination& wanted) { post(wanted, true); }
    void keyUp(const Combination& wanted) { post(wanted, false); }
    /// The line that says why it is not typed; empty when there is none.
    std::string type(const Combination& wanted) {
        log_.lines.clear();
        keyDown(wanted);
        keyUp(wanted);
        connection_->serverTime();
        for (const std::string& line : log_.lines) {
            if (line.find(" is not posted: ") != std::string::npos) return line;
        }
        return {};
    }

private:
    void post(const Combination& wanted, bool down) {
        KeyboardEvent event = CGEventCreateKeyboardEvent(wanted.keyCode, down);
        CGEventSetFlags(event, wanted.flags);
        poster_->CGEventPost(EventTapLocation::session, event);
    }

    FakeLog log_;
    FakeRunLoop runLoop_;
    std::string error_;
    std::unique_ptr<x11::Connection> connection_;
    std::optional<x11::CoreKeyboard> keyboard_;
    std::optional<x11::Windows> windows_;
    std::optional<x11::WindowManager> manager_;
    std::optional<x11::EventPoster> poster_;
};

/// What keys type with nothing held, asked of the server without a line of the program's own reading of layouts.
class Legend {
public:
    Legend() {
        xkb_context* const context = xkb_context_new(XKB_CONTEXT_NO_FLAGS);
        const auto device = xkb_x11_get_core_keyboard_device_id(display_.xcb());
        keymap_ = xkb_x11_keymap_new_from_device(context, display_.xcb(), device, XKB_KEYMAP_COMPILE_NO_FLAGS);
        xkb_context_unref(context);
        if (keymap_ == nullptr) giveUp("the X server does not tell its layout");
    }
    ~Legend() { xkb_keymap_unref(keymap_); }
    Legend(const Legend&) = delete;
    Legend& operator=(const Legend&) = delete;

    bool types(std::uint8_t key, const x11::KeyRow& row) const {
        constexpr std::uint8_t besideOne = 49;
        if (row.virtualKeyCode == x11::graveKeyCode && key == besideOne) return true;
        for (xkb_layout_index_t group = 0; group < xkb_keymap_num_layouts_for_key(keymap_, key); ++group) {
            const xkb_keysym_t* symbols = nullptr;
            const int count = xkb_keymap_key_get_syms_by_level(keymap_, key, group, 0, &symbols);
            if (count == 1 && (symbols[0] == row.keysym || (row.other != 0 && symbols[0] == row.other))) return true;
        }
        return false;
    }

    /// Whether the server keeps it to itself, as Ctrl+Alt+F1, which switches the console: no program hears of it.
    bool isForServer(const Combination& wanted) const {
        constexpr xkb_keysym_t first = 0x1008fe00;  // XF86Switch_VT_1 and what follows it
        constexpr xkb_keysym_t last = 0x1008feff;
        const auto* const row = x11::keyRow(wanted.keyCode);
        xkb_state* const state = xkb_state_new(keymap_);
        bool found = false;
        for (unsigned key = xkb_keymap_min_keycode(keymap_); key <= xkb_keymap_max_keycode(keymap_); ++key) {
            if (!types(static_cast<std::uint8_t>(key), *row)) continue;
            xkb_state_update_mask(state, wanted.state, 0, 0, 0, 0, 0);
            const xkb_keysym_t symbol = xkb_state_key_get_one_sym(state, key);
            found = found || (first <= symbol && symbol <= last);
        }
        xkb_state_unref(state);
        return found;
    }

private:
    Display display_;
    xkb_keymap* keymap_ = nullptr;
};

/// A user who fiddles with the modifiers all the time. Between two actions the lock is free.
class Fiddler {
public:
    Fiddler() : thread_([this] { run(); }) {}
    ~Fiddler() {
        ends_ = true;
        thread_.join();
    }
    Fiddler(const Fiddler&) = delete;
    Fiddler& operator=(const Fiddler&) = delete;

    /// Looks at the keyboard while the user does nothing.
    template <class Look>
    auto pausing(Look look) {
        const std::lock_guard lock(mutex_);
        return look(keyboard_.held());
    }
    long actions() const { return actions_; }

private:
    void run() {
        std::mt19937 random(2);
        while (!ends_) {
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
    std::atomic<bool> ends_ = false;
    std::atomic<long> actions_ = 0;
    std::thread thread_;
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
    Combinations combinations(1);
    int typed = 0;
    int refused = 0;
    int wrong = 0;
    int stuck = 0;
    long actions = 0;
    {
        Fiddler fiddler;
        for (int number = 0; number < count; ++number) {
            Combination wanted = combinations.next();
            while (legend.isForServer(wanted)) wanted = combinations.next();
            const std::string refusal = typist.type(wanted);
            const auto arrived = recorder.take();
            const bool isRight = refusal.empty() ? isAsAsked(arrived, wanted, legend) : arrived.empty();
            ++(isRight ? (refusal.empty() ? typed : refused) : wrong);
            if (!isRight) {
                std::printf("WRONG: key %d with state %d arrived as%s %s\n", wanted.keyCode, wanted.state,
                            described(arrived).c_str(), refusal.c_str());
            }
            const bool isClean = fiddler.pausing([&](const Keycodes& held) { return display.down() == held; });
            if (!isClean) ++stuck;
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

/// Says that it has begun, and types until it is killed.
int typeUntilKilled(bool kills) {
    Typist typist;
    Combinations combinations(static_cast<unsigned>(::getpid()));
    if (::write(STDOUT_FILENO, "+", 1) != 1) return 2;
    for (;;) {
        const Combination wanted = combinations.next();
        typist.keyDown(wanted);
        if (kills) ::raise(SIGKILL);
        typist.keyUp(wanted);
    }
}

pid_t startVictim(const char* how) {
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0) giveUp("no pipe");
    const pid_t victim = ::fork();
    if (victim == 0) {
        ::dup2(ends[1], STDOUT_FILENO);
        ::execl("/proc/self/exe", "orlamo_typing", how, nullptr);
        ::_exit(2);
    }
    ::close(ends[1]);
    char sign = 0;
    const bool begun = ::read(ends[0], &sign, 1) == 1;
    ::close(ends[0]);
    if (!begun) giveUp("a program that types did not begin");
    return victim;
}

int kill(int count) {
    Display display;
    std::mt19937 random(3);
    int stuck = 0;
    std::chrono::microseconds longest{0};
    for (int number = 0; number < count; ++number) {
        const bool between = number % 2 == 0;
        const pid_t victim = startVictim(between ? "half" : "forever");
        if (!between) {
            std::this_thread::sleep_for(std::chrono::microseconds(random() % 30000));
            ::kill(victim, SIGKILL);
        }
        ::waitpid(victim, nullptr, 0);
        const auto end = std::chrono::steady_clock::now();
        while (!display.down().empty() && std::chrono::steady_clock::now() - end < stuckAfter)
            std::this_thread::sleep_for(1ms);
        longest = std::max(
            longest, std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - end));
        const Keycodes left = display.down();
        if (!left.empty()) ++stuck;
        for (const std::uint8_t key : left) display.fake(key, false);
    }
    std::printf("%d kills: %d times keys stayed pressed; all were up %.1f ms after the longest\n", count, stuck,
                static_cast<double>(longest.count()) / 1000.0);
    return stuck > 0 ? 1 : 0;
}

}  // namespace

int main(int argc, char** argv) {
    const std::string mode = argc > 1 ? argv[1] : "";
    const int count = argc > 2 ? std::atoi(argv[2]) : 0;
    if (mode == "forever" || mode == "half") return typeUntilKilled(mode == "half");
    if (mode == "combinations" && count > 0) return typeCombinations(count);
    if (mode == "kills" && count > 0) return kill(count);
    giveUp("usage: orlamo_typing combinations|kills COUNT");
}
