// Reads the menus of one application again and again, with Orlamo's adapter and with libatspi's blocking calls, and
// prints the median times: harvest_compare <name to print> <process id> [runs].
// bench/harvest_compare.sh brings up a desktop of its own and the applications.

#include <atspi/atspi.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "platform/Log.h"
#include "platform/atspi/Accessibility.h"

namespace {

using namespace orlamo;
using Milliseconds = std::chrono::duration<double, std::milli>;

class StandardError : public Log {
public:
    void write(std::string_view line) override {
        std::fprintf(stderr, "%.*s\n", static_cast<int>(line.size()), line.data());
    }
};

struct Reading {
    std::size_t calls = 0;
    std::size_t elements = 0;
    std::size_t shortcuts = 0;
};

double median(std::vector<double> times) {
    std::ranges::sort(times);
    return times.empty() ? 0 : times[times.size() / 2];
}

double timeOf(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return Milliseconds(std::chrono::steady_clock::now() - start).count();
}

/// Everything that harvesting asks of an element and of those below it.
void walk(Accessibility& accessibility, const AXUIElementRef& element, Reading& reading) {
    AXValue value;
    for (const char* const attribute :
         {"AXEnabled", "AXTitle", "AXMenuItemCmdModifiers", "AXMenuItemCmdChar", "AXMenuItemCmdGlyph"}) {
        accessibility.AXUIElementCopyAttributeValue(element, attribute, value);
    }
    if (accessibility.AXUIElementCopyAttributeValue(element, "AXMenuItemCmdModifiers", value) == AXError::success) {
        ++reading.shortcuts;
    }
    std::int64_t count = 0;
    std::vector<AXUIElementRef> children;
    accessibility.AXUIElementGetAttributeValueCount(element, "AXChildren", count);
    accessibility.AXUIElementCopyAttributeValues(element, "AXChildren", 0, count, children);
    for (const AXUIElementRef& child : children) walk(accessibility, child, reading);
}

Reading readWithAdapter(atspi::Accessibility& accessibility, int processIdentifier) {
    Reading reading;
    AXValue menuBar;
    const auto application = accessibility.AXUIElementCreateApplication(processIdentifier);
    const AXError result = accessibility.AXUIElementCopyAttributeValue(application, "AXMenuBar", menuBar);
    if (result != AXError::success) {
        std::fprintf(stderr, "the adapter could not read the menus: %d\n", static_cast<int>(result));
        return reading;
    }
    walk(accessibility, std::get<AXUIElementRef>(menuBar), reading);
    reading.calls = accessibility.lastRead().calls;
    reading.elements = accessibility.lastRead().elements;
    const bool isComplete = accessibility.lastRead().elementsRead == reading.elements;
    if (!isComplete) std::printf("a reading was not finished in time\n");
    return reading;
}

/// libatspi's objects, whose calls are counted here. Its cache is off or on as its mask says.
class Libatspi {
public:
    Libatspi(int processIdentifier, AtspiCache mask) : processIdentifier_(processIdentifier), mask_(mask) {}

    Reading read() {
        reading_ = {};
        AtspiAccessible* const application = findApplication();
        if (application == nullptr) return reading_;
        atspi_accessible_set_cache_mask(application, mask_);
        atspi_accessible_clear_cache(application);
        if (AtspiAccessible* const menuBar = findMenuBar(application, 0)) {
            readBelow(menuBar);
            g_object_unref(menuBar);
        }
        g_object_unref(application);
        return reading_;
    }

private:
    AtspiAccessible* findApplication() {
        AtspiAccessible* const desktop = atspi_get_desktop(0);
        for (int i = 0; i < childCount(desktop); ++i) {
            AtspiAccessible* const application = child(desktop, i);
            ++reading_.calls;
            if (application != nullptr &&
                atspi_accessible_get_process_id(application, nullptr) == static_cast<unsigned>(processIdentifier_)) {
                return application;
            }
            if (application != nullptr) g_object_unref(application);
        }
        return nullptr;
    }

    AtspiAccessible* findMenuBar(AtspiAccessible* element, int depth) {
        ++reading_.calls;
        const AtspiRole role = atspi_accessible_get_role(element, nullptr);
        if (role == ATSPI_ROLE_MENU_BAR) return ATSPI_ACCESSIBLE(g_object_ref(element));
        const bool isHolder = role == ATSPI_ROLE_APPLICATION || role == ATSPI_ROLE_FRAME || role == ATSPI_ROLE_FILLER ||
                              role == ATSPI_ROLE_PANEL;
        if (!isHolder || depth > 5) return nullptr;
        AtspiAccessible* found = nullptr;
        const int count = childCount(element);
        for (int i = 0; i < count && found == nullptr; ++i) {
            AtspiAccessible* const below = child(element, i);
            if (below == nullptr) continue;
            found = findMenuBar(below, depth + 1);
            g_object_unref(below);
        }
        return found;
    }

    void readBelow(AtspiAccessible* element) {
        ++reading_.elements;
        reading_.calls += 2;
        g_free(atspi_accessible_get_name(element, nullptr));
        if (AtspiStateSet* const states = atspi_accessible_get_state_set(element)) {
            atspi_state_set_contains(states, ATSPI_STATE_ENABLED);
            g_object_unref(states);
        }
        if (AtspiAction* const action = atspi_accessible_get_action_iface(element)) {
            ++reading_.calls;
            char* const binding = atspi_action_get_key_binding(action, 0, nullptr);
            if (binding != nullptr && binding[0] != '\0') ++reading_.shortcuts;
            g_free(binding);
            g_object_unref(action);
        }
        const int count = childCount(element);
        for (int i = 0; i < count; ++i) {
            AtspiAccessible* const below = child(element, i);
            if (below == nullptr) continue;
            readBelow(below);
            g_object_unref(below);
        }
    }

    int childCount(AtspiAccessible* element) {
        ++reading_.calls;
        return atspi_accessible_get_child_count(element, nullptr);
    }
    AtspiAccessible* child(AtspiAccessible* element, int index) {
        ++reading_.calls;
        return atspi_accessible_get_child_at_index(element, index, nullptr);
    }

    int processIdentifier_;
    AtspiCache mask_;
    Reading reading_;
};

void print(const char* way, const std::vector<double>& times, const Reading& reading, double adapter) {
    std::printf("| %-34s | %9.1f | %8zu | %6zu | %7.1f |\n", way, median(times), reading.elements, reading.calls,
                median(times) / adapter);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: %s <name to print> <process id> [runs]\n", argv[0]);
        return 2;
    }
    const int processIdentifier = std::atoi(argv[2]);
    const int runs = argc > 3 ? std::atoi(argv[3]) : 20;
    StandardError log;
    const Log::Installation installation(log);
    atspi::Accessibility accessibility;

    // An application that has just opened its window may still be busy.
    Reading ours;
    double first = 0;
    for (int attempt = 0; attempt < 20 && ours.elements == 0; ++attempt) {
        first = timeOf([&] { ours = readWithAdapter(accessibility, processIdentifier); });
        if (ours.elements == 0) std::this_thread::sleep_for(std::chrono::milliseconds(250));
    }
    if (ours.elements == 0) return 1;

    atspi_init();
    // Each state is read once only, so that caching states saves nothing; without it libatspi waits for itself forever
    // when a state changes in the middle of a call.
    Libatspi uncached(processIdentifier, ATSPI_CACHE_STATES);
    Libatspi cached(processIdentifier, ATSPI_CACHE_DEFAULT);
    Reading withoutCache, withCache;
    std::vector<double> ourTimes, uncachedTimes, cachedTimes;
    for (int run = 0; run < runs; ++run) {
        ourTimes.push_back(timeOf([&] { ours = readWithAdapter(accessibility, processIdentifier); }));
        uncachedTimes.push_back(timeOf([&] { withoutCache = uncached.read(); }));
        cachedTimes.push_back(timeOf([&] { withCache = cached.read(); }));
    }
    const double adapter = median(ourTimes);
    std::printf("%s: %zu menu elements, %zu shortcuts; median of %d runs; first reading after its start %.1f ms\n",
                argv[1], ours.elements, ours.shortcuts, runs, first);
    std::printf("| %-34s | %9s | %8s | %6s | %7s |\n", "way", "time, ms", "elements", "calls", "times");
    std::printf("|%s|%s|%s|%s|%s|\n", std::string(36, '-').c_str(), std::string(11, '-').c_str(),
                std::string(10, '-').c_str(), std::string(8, '-').c_str(), std::string(9, '-').c_str());
    print("libatspi, blocking calls", uncachedTimes, withoutCache, adapter);
    print("libatspi, its cache on and empty", cachedTimes, withCache, adapter);
    print("Orlamo's adapter", ourTimes, ours, adapter);
    return 0;
}
