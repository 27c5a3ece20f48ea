#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "platform/Updater.h"

namespace orlamo {

/// Keeps the checks that were asked for.
class FakeUpdates : public Updates {
public:
    std::unique_ptr<SPUStandardUpdaterController> initWithStartingUpdater(
        StartingUpdater starting, std::unique_ptr<SPUUpdaterDelegate> updaterDelegate) override {
        startedWith = starting;
        delegate = std::move(updaterDelegate);
        return std::make_unique<Controller>(*this);
    }

    StartingUpdater startedWith = StartingUpdater::no;
    std::unique_ptr<SPUUpdaterDelegate> delegate;
    std::vector<SPUStandardUpdaterController::Origin> checks;
    std::function<void()> onCheck;

private:
    class Controller : public SPUStandardUpdaterController {
    public:
        explicit Controller(FakeUpdates& updates) : updates_(updates) {}
        void checkForUpdates(Origin origin) override {
            updates_.checks.push_back(origin);
            if (updates_.onCheck) updates_.onCheck();
        }

    private:
        FakeUpdates& updates_;
    };

    Installation installation_{*this};
};

}  // namespace orlamo
