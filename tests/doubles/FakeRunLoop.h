#pragma once

#include <algorithm>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "platform/RunLoop.h"

namespace orlamo {

/// Virtual time: nothing runs but in advance().
class FakeRunLoop : public RunLoop {
public:
    void asyncAfter(double seconds, Task task) override { add(seconds, 0, std::move(task)); }

    std::unique_ptr<Handle> scheduleRepeatingTimer(double seconds, Task task) override {
        return std::make_unique<Registration>(*this, add(seconds, seconds, std::move(task)));
    }

    std::unique_ptr<Handle> watchReadable(int, Task) override { return nullptr; }

    /// Runs what falls due meanwhile, in order of time, then of registration.
    void advance(double seconds) {
        const double end = now + seconds;
        for (;;) {
            const auto next =
                std::ranges::min_element(tasks_, {}, [](const auto& task) { return std::pair(task.due, task.id); });
            if (next == tasks_.end() || next->due > end + tolerance) break;
            now = std::max(now, next->due);
            const Task run = next->run;
            if (next->interval > 0) {
                next->due += next->interval;
            } else {
                tasks_.erase(next);
            }
            run();
        }
        now = end;
    }

    std::size_t pending() const { return tasks_.size(); }

    double now = 0;

private:
    static constexpr double tolerance = 1e-9;

    struct Scheduled {
        std::uint64_t id;
        double due;
        double interval;  // 0: once
        Task run;
    };

    class Registration : public Handle {
    public:
        Registration(FakeRunLoop& loop, std::uint64_t id) : loop_(loop), isAlive_(loop.isAlive_), id_(id) {}
        ~Registration() override {
            if (isAlive_.expired()) return;  // what lives for the process outlives a test's loop
            std::erase_if(loop_.tasks_, [this](const Scheduled& task) { return task.id == id_; });
        }

    private:
        FakeRunLoop& loop_;
        std::weak_ptr<bool> isAlive_;
        std::uint64_t id_;
    };

    std::uint64_t add(double seconds, double interval, Task task) {
        tasks_.push_back({++lastId_, now + seconds, interval, std::move(task)});
        return lastId_;
    }

    std::vector<Scheduled> tasks_;
    std::uint64_t lastId_ = 0;
    std::shared_ptr<bool> isAlive_ = std::make_shared<bool>(true);
    Installation installation_{*this};
};

}  // namespace orlamo
