#pragma once

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Application.h"
#include "platform/EventMonitors.h"
#include "platform/EventPoster.h"
#include "platform/LoginItems.h"
#include "platform/TextMetrics.h"
#include "tests/doubles/FakeAccessibility.h"
#include "tests/doubles/FakeBundle.h"
#include "tests/doubles/FakeClock.h"
#include "tests/doubles/FakeKeyboard.h"
#include "tests/doubles/FakeLog.h"
#include "tests/doubles/FakePropertyListParser.h"
#include "tests/doubles/FakeRunLoop.h"
#include "tests/doubles/FakeSystemPreferences.h"
#include "tests/doubles/FakeUserDefaults.h"
#include "tests/doubles/FakeWindowSystem.h"
#include "tests/doubles/FakeWorkspace.h"

namespace orlamo {

class FakeApplication : public Application {
public:
    FakeApplication() {
        static ApplicationDelegate anybody;  // Utility::shared() keeps it
        delegate = &anybody;
    }
    void activate(IgnoringOtherApps ignoring) override {
        activations.push_back(ignoring);
        whenActivated();
    }
    void setActivationPolicy(ActivationPolicy policy) override { policies.push_back(policy); }
    void terminate() override { ++terminations; }

    std::vector<IgnoringOtherApps> activations;
    std::vector<ActivationPolicy> policies;
    int terminations = 0;
    std::function<void()> whenActivated = [] {};

private:
    Installation installation_{*this};
};

/// Delivers the events that a test makes up.
class FakeEventMonitors : public EventMonitors {
public:
    std::optional<MonitorToken> addLocalMonitor(EventMask mask, LocalHandler handler) override {
        local_.push_back({mask, std::move(handler)});
        return ++lastToken_;
    }
    std::optional<MonitorToken> addGlobalMonitor(EventMask mask, GlobalHandler handler) override {
        global_.push_back({mask, std::move(handler)});
        return ++lastToken_;
    }

    /// The event as it went on to the window.
    Event deliverLocal(Event event) {
        for (std::size_t i = 0; i < local_.size(); ++i) {
            const auto [mask, handler] = local_[i];
            if ((mask & bit(event)) != 0) event = handler(event);
        }
        return event;
    }
    void deliverGlobal(const Event& event) {
        for (std::size_t i = 0; i < global_.size(); ++i) {
            const auto [mask, handler] = global_[i];
            if ((mask & bit(event)) != 0) handler(event);
        }
    }

    std::vector<EventMask> localMasks() const { return masks(local_); }
    std::vector<EventMask> globalMasks() const { return masks(global_); }

private:
    static EventMask bit(const Event& event) { return EventMask{1} << static_cast<unsigned>(event.type); }

    template <class Monitors>
    static std::vector<EventMask> masks(const Monitors& monitors) {
        std::vector<EventMask> masks;
        for (const auto& monitor : monitors) masks.push_back(monitor.first);
        return masks;
    }

    std::vector<std::pair<EventMask, LocalHandler>> local_;
    std::vector<std::pair<EventMask, GlobalHandler>> global_;
    MonitorToken lastToken_ = 0;
    Installation installation_{*this};
};

class FakeEventPoster : public EventPoster {
public:
    struct Posted {
        EventTapLocation tap;
        KeyboardEvent event;
    };

    void CGEventPost(EventTapLocation tap, const KeyboardEvent& event) override { posted.push_back({tap, event}); }
    void CGEventPost(EventTapLocation tap, const PointerEvent& event) override { pointer.push_back({tap, event}); }

    std::vector<Posted> posted;
    std::vector<std::pair<EventTapLocation, PointerEvent>> pointer;

private:
    Installation installation_{*this};
};

class FakeLoginItems : public LoginItems {
public:
    bool SMLoginItemSetEnabled(std::string_view identifier, bool enabled) override {
        requests.emplace_back(identifier, enabled);
        return succeeds;
    }

    std::vector<std::pair<std::string, bool>> requests;
    bool succeeds = true;

private:
    Installation installation_{*this};
};

/// Every code point is one character, `width` times the point size wide; the joined one makes a text narrower by two.
class FakeTextMetrics : public TextMetrics {
public:
    Size measure(std::string_view text, int pointSize) override {
        const auto joinedOnes = std::ranges::count(text, joined);
        const auto characters = static_cast<double>(std::ssize(characterEnds(text)) - 3 * joinedOnes);
        return {characters * width * pointSize, 1.2 * pointSize};
    }
    std::vector<std::size_t> characterEnds(std::string_view text) override {
        std::vector<std::size_t> ends;
        for (std::size_t i = 1; i <= text.size(); ++i) {
            const bool continues = i < text.size() && (static_cast<unsigned char>(text[i]) & 0xC0U) == 0x80;
            if (!continues) ends.push_back(i);
        }
        return ends;
    }
    double width = 0.6;
    char joined = '\0';

private:
    Installation installation_{*this};
};

/// Every fake at once, for tests of what uses most of them.
struct FakeDesktop {
    FakeLog log;
    FakeClock clock;
    FakeRunLoop runLoop;
    FakeAccessibility accessibility;
    FakeApplication application;
    FakeBundle bundle;
    FakeEventMonitors monitors;
    FakeEventPoster poster;
    FakeKeyboard keyboard;
    FakeLoginItems loginItems;
    FakePropertyListParser parser;
    FakeSystemPreferences preferences;
    FakeTextMetrics metrics;
    FakeUserDefaults defaults;
    FakeWindowSystem windows;
    FakeWorkspace workspace;

    static constexpr int editorProcess = 42;

    /// An editor in front with one menu of these items; the program's own shortcuts are shown untrimmed.
    void openEditor(std::vector<FakeElementPtr> items) {
        const RunningApplication editor{editorProcess, "org.example.editor", "Editor"};
        workspace.frontmost = editor;
        workspace.running = {editor};
        accessibility.setMenuBar(editorProcess, {FakeAccessibility::element(), FakeAccessibility::titled("Editor"),
                                                 FakeAccessibility::menu("File", std::move(items))});
        defaults.values["isContainsAppleMenu"] = true;
    }
};

}  // namespace orlamo
