#pragma once

#include <algorithm>
#include <memory>
#include <optional>
#include <vector>

#include "platform/Window.h"
#include "platform/WindowSystem.h"

namespace orlamo {

/// What the hosts of one window were told; outlives them.
struct FakeWindowRecord {
    Window* window = nullptr;
    std::vector<Rect> frames;
    int orderFronts = 0;
    bool isOnScreen = false;
    bool isHosted = true;  // false once the host is gone
};

class FakeWindowHost : public WindowHost {
public:
    explicit FakeWindowHost(std::shared_ptr<FakeWindowRecord> record) : record_(std::move(record)) {}
    ~FakeWindowHost() override { record_->isHosted = record_->isOnScreen = false; }

    void frameChanged(const Rect& frame) override { record_->frames.push_back(frame); }
    /// Runs no drawing pass by itself: the test draws, with the context it looks at.
    void orderFront() override {
        ++record_->orderFronts;
        record_->isOnScreen = true;
    }
    void orderOut() override { record_->isOnScreen = false; }
    void makeKey() override {}
    void setNeedsDisplay() override {}

private:
    std::shared_ptr<FakeWindowRecord> record_;
};

class FakeWindowSystem : public WindowSystem {
public:
    std::unique_ptr<WindowHost> createHost(Window& window) override {
        auto record = std::make_shared<FakeWindowRecord>();
        record->window = &window;
        records.push_back(record);
        return std::make_unique<FakeWindowHost>(std::move(record));
    }
    std::optional<Screen> mainScreen() override { return main; }
    /// The main screen first.
    std::vector<Screen> screens() override {
        std::vector<Screen> all = others;
        if (main) all.insert(all.begin(), *main);
        return all;
    }
    Point mouseLocation() override { return mouse; }

    std::ptrdiff_t visibleWindows() const {
        return std::ranges::count_if(records, [](const auto& record) { return record->isOnScreen; });
    }

    std::optional<Screen> main = Screen{{0, 0, 1440, 900}, "Test screen"};
    std::vector<Screen> others;
    Point mouse;
    std::vector<std::shared_ptr<FakeWindowRecord>> records;  // one per host that was created

private:
    Installation installation_{*this};
};

}  // namespace orlamo
