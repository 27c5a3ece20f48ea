#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <fstream>
#include <map>
#include <sstream>

#include "Peer.h"
#include "platform/Log.h"
#include "platform/atspi/Accessibility.h"

namespace orlamo::hostile {
namespace {

#if defined(__has_feature)
constexpr bool isSanitized = __has_feature(address_sanitizer);
#elif defined(__SANITIZE_ADDRESS__)
constexpr bool isSanitized = true;
#else
constexpr bool isSanitized = false;
#endif

// A sanitizer copies a message with each part of it that comes in, and keeps memory that was given back.
constexpr double longestAnswer = isSanitized ? 4000 : 1000;  // milliseconds
constexpr long mostGrowth = 64 << 10;                        // KiB
constexpr std::size_t sideBySide = 6;
constexpr int wholeItems = 12;

/// What came out of one behaviour, in memory that all its processes share.
struct Outcome {
    Presses presses;
    double trust = 0, read = 0, press = 0;  // milliseconds, the longest
    long growth = 0;                        // KiB
    AXError readError = AXError::failure, pressError = AXError::failure;
    int items = 0;
    bool wasThere = false;  // the item to press
    bool isDone = false;
    int pressed = 0, refused = 0, wrong = 0;  // of many presses
};

class Silence : public Log {
public:
    void write(std::string_view) override {}
};

/// How long this process could have gone on but the processor had others to serve, in milliseconds.
double waitedForProcessor() {
    std::ifstream file("/proc/self/schedstat");
    double ran = 0, waited = 0;
    file >> ran >> waited;
    return waited / 1e6;
}

/// As on a machine that has nothing else to do.
template <class Work>
double milliseconds(Work work) {
    const double waitedBefore = waitedForProcessor();
    const auto start = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    return time.count() - (waitedForProcessor() - waitedBefore);
}

/// A line of /proc/self/status, in KiB.
long memory(const std::string& name) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(name)) return std::stol(line.substr(name.size() + 1));
    }
    return 0;
}

pid_t start(const std::function<void()>& work) {
    const pid_t process = fork();
    if (process != 0) return process;
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    work();
    _exit(0);
}

/// A private bus; its address is in the environment from then on.
pid_t startBus() {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) return -1;
    const pid_t bus = start([&] {
        dup2(open("/dev/null", O_WRONLY | O_CLOEXEC), STDERR_FILENO);
        const std::string print = "--print-address=" + std::to_string(ends[1]);
        execlp("dbus-daemon", "dbus-daemon", "--session", "--nofork", print.c_str(), nullptr);
    });
    close(ends[1]);
    std::array<char, 300> text{};
    const ssize_t size = read(ends[0], text.data(), text.size() - 1);
    if (size <= 1) return -1;
    setenv("DBUS_SESSION_BUS_ADDRESS", std::string(text.data(), static_cast<std::size_t>(size - 1)).c_str(), 1);
    unsetenv("AT_SPI_BUS_ADDRESS");
    return bus;
}

/// The program's view of the peer: its items with a shortcut, by title.
class Reader {
public:
    Reader(int process, Outcome& outcome) : process_(process), outcome_(outcome) {}

    void read() {
        items_.clear();
        AXValue bar;
        const double time = milliseconds([&] {
            const auto application = accessibility_.AXUIElementCreateApplication(process_);
            outcome_.readError = accessibility_.AXUIElementCopyAttributeValue(application, "AXMenuBar", bar);
        });
        outcome_.read = std::max(outcome_.read, time);
        if (const auto* const element = std::get_if<AXUIElementRef>(&bar)) collect(*element);
    }
    void trust() {
        const double time = milliseconds([&] { accessibility_.AXIsProcessTrusted(); });
        outcome_.trust = std::max(outcome_.trust, time);
    }
    bool has(const std::string& title) const { return items_.contains(title); }
    AXError press(const std::string& title) {
        AXError error = AXError::noValue;
        const double time = milliseconds(
            [&] { error = accessibility_.AXUIElementPerformAction(items_.find(title)->second, "AXPress"); });
        outcome_.press = std::max(outcome_.press, time);
        return error;
    }
    int count() const { return static_cast<int>(items_.size()); }
    std::string anyTitle(std::size_t number) const {
        return items_.empty() ? "" : std::next(items_.begin(), static_cast<long>(number % items_.size()))->first;
    }

private:
    void collect(const AXUIElementRef& element) {
        std::vector<AXUIElementRef> children;
        accessibility_.AXUIElementCopyAttributeValues(element, "AXChildren", 0, 100'000, children);
        for (const AXUIElementRef& child : children) {
            AXValue title, modifiers;
            const bool hasTitle =
                accessibility_.AXUIElementCopyAttributeValue(child, "AXTitle", title) == AXError::success;
            const bool hasShortcut = accessibility_.AXUIElementCopyAttributeValue(child, "AXMenuItemCmdModifiers",
                                                                                  modifiers) == AXError::success;
            if (hasTitle && hasShortcut) items_.emplace(std::get<std::string>(title), child);
            collect(child);
        }
    }

    int process_;
    Outcome& outcome_;
    atspi::Accessibility accessibility_;
    std::multimap<std::string, AXUIElementRef> items_;
};

void readAndPress(Reader& reader, int commands, Outcome& outcome) {
    const long before = memory("VmRSS");
    for (int i = 0; i < 2; ++i) {
        reader.trust();
        reader.read();
    }
    outcome.items = reader.count();
    outcome.wasThere = reader.has("Copy");
    char byte = 'c';
    if (write(commands, &byte, 1) == 1 && poll(std::array<pollfd, 1>{{{commands, POLLIN, 0}}}.data(), 1, 2000) == 1) {
        (void)!read(commands, &byte, 1);
    }
    if (outcome.wasThere) outcome.pressError = reader.press("Copy");
    usleep(20'000);  // a press on its way still counts
    outcome.growth = memory("VmHWM") - before;
}

/// Presses over and over, reading anew after each 15, and holds each against what the peer saw.
void pressManyTimes(Reader& reader, int times, Outcome& outcome) {
    for (int i = 0; outcome.pressed < times && i < 10 * times; ++i) {
        if (i % 15 == 0 || reader.count() == 0) reader.read();
        const std::string title = reader.anyTitle(static_cast<std::size_t>(i) * 7);
        if (title.empty()) continue;
        const int before = outcome.presses.count;
        const bool isDone = reader.press(title) == AXError::success;
        const int seen = outcome.presses.count - before;
        isDone ? ++outcome.pressed : ++outcome.refused;
        if (seen != (isDone ? 1 : 0) || (seen == 1 && outcome.presses.last != title)) ++outcome.wrong;
    }
}

/// A process with a bus, the peer and the reader as processes below it.
pid_t play(const Behaviour& behaviour, Outcome& outcome, const std::function<void(Reader&, int)>& work) {
    return start([&] {
        const pid_t bus = startBus();
        std::array<int, 2> ends{};
        if (bus < 0 || socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) _exit(1);
        const pid_t peer = start([&] {
            close(ends[0]);
            Peer(behaviour, outcome.presses, Peer::Services::played).serve(ends[1]);
        });
        close(ends[1]);
        char byte = 0;
        if (read(ends[0], &byte, 1) != 1) _exit(2);
        const pid_t reader = start([&] {
            signal(SIGPIPE, SIG_IGN);  // the peer may be gone
            Silence silence;
            const Log::Installation installation(silence);
            Reader one(peer, outcome);
            work(one, ends[0]);
            outcome.isDone = true;
        });
        int status = 0;
        waitpid(reader, &status, 0);
        for (const pid_t process : {peer, bus}) {
            kill(process, SIGTERM);
            waitpid(process, nullptr, 0);
        }
        _exit(status == 0 ? 0 : 4);
    });
}

Outcome& newOutcome() {
    void* const place = mmap(nullptr, sizeof(Outcome), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    return *new (place) Outcome;
}

/// What is not as it should be; empty when all is.
std::string faults(const Behaviour& behaviour, const Outcome& outcome, int status) {
    std::ostringstream text;
    if (status != 0 || !outcome.isDone) text << " the reader ended (" << status << ");";
    for (const auto& [what, time] :
         {std::pair("trust", outcome.trust), {"reading", outcome.read}, {"press", outcome.press}}) {
        if (time > longestAnswer) text << " the " << what << " took " << static_cast<int>(time) << " ms;";
    }
    if (!isSanitized && outcome.growth > mostGrowth) text << " it grew by " << outcome.growth / 1024 << " MiB;";
    const bool isRead = outcome.readError == AXError::success;
    const Read read = !isRead || outcome.items == 0 ? Read::none
                      : outcome.items == wholeItems ? Read::whole
                                                    : Read::part;
    if (behaviour.read != Read::any && read != behaviour.read)
        text << " " << outcome.items << " items were read, error " << static_cast<int>(outcome.readError) << ";";
    const bool isDone = outcome.wasThere && outcome.pressError == AXError::success;
    if (behaviour.press != Press::any && isDone != (behaviour.press == Press::done)) {
        text << " the press was " << (isDone ? "done" : "refused") << ", error " << static_cast<int>(outcome.pressError)
             << ";";
    }
    const int presses = outcome.presses.count;
    if (presses > 1 || (presses == 1 && std::strcmp(outcome.presses.last, "Copy") != 0)) {
        text << " " << presses << " presses, the last on \"" << outcome.presses.last << "\";";
    }
    return text.str();
}

struct Case {
    const Behaviour* behaviour;
    Outcome* outcome;
    int repetitions = 0;
};

pid_t startCase(const Case& one) {
    return play(*one.behaviour, *one.outcome,
                [&](Reader& reader, int commands) { readAndPress(reader, commands, *one.outcome); });
}

TEST(HostileApplication, IsAnsweredWithinASecondAndNeverMakesAWrongPress) {
    std::deque<Case> waiting;
    std::map<pid_t, Case> running;
    const char* const only = std::getenv("BEHAVIOUR");
    for (const Behaviour& behaviour : behaviours()) {
        if (only == nullptr || std::string(behaviour.name).find(only) != std::string::npos)
            waiting.push_back({&behaviour, &newOutcome()});
    }
    while (!waiting.empty() || !running.empty()) {
        // A repetition runs alone: a machine busy with the others is not the program's fault.
        while (!waiting.empty() && running.size() < (waiting.front().repetitions > 0 ? 1 : sideBySide)) {
            running.emplace(startCase(waiting.front()), waiting.front());
            waiting.pop_front();
        }
        int status = 0;
        auto ended = running.extract(waitpid(-1, &status, 0));
        if (ended.empty()) continue;
        const Case& one = ended.mapped();
        const Outcome& outcome = *one.outcome;
        const std::string found = faults(*one.behaviour, outcome, status);
        if (!found.empty() && one.repetitions < 2) {
            std::printf("again, alone: %s:%s\n", one.behaviour->name, found.c_str());
            waiting.push_back({one.behaviour, &newOutcome(), one.repetitions + 1});
            continue;
        }
        EXPECT_EQ(found, "") << "an application that " << one.behaviour->name;
        std::printf("| %s | %d | %.0f | %.0f | %.1f |\n", one.behaviour->name, outcome.items, outcome.read,
                    outcome.press, static_cast<double>(outcome.growth) / 1024);
    }
}

Outcome& pressMany(const Behaviour& behaviour, int times) {
    Outcome& outcome = newOutcome();
    int status = 0;
    waitpid(play(behaviour, outcome, [&](Reader& reader, int) { pressManyTimes(reader, times, outcome); }), &status, 0);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(outcome.pressed, times);
    std::printf("%s: %d pressed, %d refused, %d wrong; the longest press %.1f ms\n", behaviour.name, outcome.pressed,
                outcome.refused, outcome.wrong, outcome.press);
    return outcome;
}

TEST(HostileApplication, WhosePlacesSwapTheirItemsNeverHasAWrongOnePressedIn5000) {
    EXPECT_EQ(pressMany(places(), 5000).wrong, 0);
}

TEST(HostileApplication, WhoseItemsMoveByTheClockNeverHasAWrongOnePressedIn5000) {
    EXPECT_EQ(pressMany(restless(), 5000).wrong, 0);
}

/// What the protocol leaves open: between the last answer and the press, a place may be given to another item.
TEST(HostileApplication, ThatSwapsAPlaceUnderThePressIsMeasured) {
    const char* const times = std::getenv("PRESSES");
    if (times == nullptr) GTEST_SKIP() << "a measurement, not a test: PRESSES=5000";
    pressMany(restlessPlaces(), std::stoi(times));
}

}  // namespace
}  // namespace orlamo::hostile
