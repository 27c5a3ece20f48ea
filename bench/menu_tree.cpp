// Prints the menus that an application shows to Orlamo: menu_tree <process id> [title of an item to press]

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "platform/Log.h"
#include "platform/atspi/Accessibility.h"

namespace {

using namespace orlamo;

class StandardError : public Log {
public:
    void write(std::string_view line) override {
        std::fprintf(stderr, "%.*s\n", static_cast<int>(line.size()), line.data());
    }
};

template <class Value>
Value attribute(Accessibility& accessibility, const AXUIElementRef& element, const char* name, Value fallback) {
    AXValue value;
    accessibility.AXUIElementCopyAttributeValue(element, name, value);
    const auto* const held = std::get_if<Value>(&value);
    return held == nullptr ? fallback : *held;
}

AXUIElementRef print(Accessibility& accessibility, const AXUIElementRef& element, int depth,
                     const std::string& wanted) {
    const std::string title = attribute<std::string>(accessibility, element, "AXTitle", "(none)");
    const auto modifiers = attribute<std::int64_t>(accessibility, element, "AXMenuItemCmdModifiers", -1);
    const auto glyph = attribute<std::int64_t>(accessibility, element, "AXMenuItemCmdGlyph", -1);
    const auto key = attribute<std::string>(accessibility, element, "AXMenuItemCmdChar", "");
    std::printf("%*s%s", depth * 2, "", title.c_str());
    if (modifiers >= 0) std::printf("  [%lld %s", static_cast<long long>(modifiers), key.c_str());
    if (glyph >= 0) std::printf("glyph %lld", static_cast<long long>(glyph));
    if (modifiers >= 0) std::printf("]%s", attribute(accessibility, element, "AXEnabled", true) ? "" : " disabled");
    std::printf("\n");

    AXUIElementRef found = title == wanted ? element : nullptr;
    std::int64_t count = 0;
    std::vector<AXUIElementRef> children;
    accessibility.AXUIElementGetAttributeValueCount(element, "AXChildren", count);
    accessibility.AXUIElementCopyAttributeValues(element, "AXChildren", 0, count, children);
    for (const auto& child : children) {
        if (const auto below = print(accessibility, child, depth + 1, wanted)) found = below;
    }
    return found;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: %s <process id> [title of an item to press]\n", argv[0]);
        return 2;
    }
    StandardError log;
    const Log::Installation installation(log);
    atspi::Accessibility accessibility;
    const auto application = accessibility.AXUIElementCreateApplication(std::atoi(argv[1]));
    AXValue menuBar;
    const AXError result = accessibility.AXUIElementCopyAttributeValue(application, "AXMenuBar", menuBar);
    if (result != AXError::success) {
        std::fprintf(stderr, "AXMenuBar: error %d after %lld us\n", static_cast<int>(result),
                     static_cast<long long>(accessibility.lastRead().time.count()));
        return 1;
    }
    const auto wanted = argc > 2 ? std::string(argv[2]) : std::string();
    const auto item = print(accessibility, std::get<AXUIElementRef>(menuBar), 0, wanted);
    const auto& read = accessibility.lastRead();
    std::fprintf(stderr, "%zu of %zu elements, %zu calls, %lld us%s\n", read.elementsRead, read.elements, read.calls,
                 static_cast<long long>(read.time.count()), read.usedCache ? ", cache" : "");
    if (wanted.empty()) return 0;
    if (!item) return 1;
    const auto start = std::chrono::steady_clock::now();
    const AXError pressed = accessibility.AXUIElementPerformAction(item, "AXPress");
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    std::fprintf(stderr, "pressed %s: %d after %.1f ms\n", wanted.c_str(), static_cast<int>(pressed), time.count());
    return pressed == AXError::success ? 0 : 1;
}
