#pragma once

#include <memory>
#include <string>

#include "platform/Updater.h"
#include "platform/appcast/UpdateCheck.h"
#include "platform/appcast/UpdateWindow.h"

namespace orlamo::appcast {

/// Runs one check at a time and shows it in one window. Asks the bundle for SUFeedURL and CFBundleShortVersionString.
class UpdaterController final : public SPUStandardUpdaterController {
public:
    UpdaterController(std::unique_ptr<SPUUpdaterDelegate> delegate, const Options& options);
    ~UpdaterController() override;

    /// While a check runs this only brings its window forward; closing the window cancels the check.
    void checkForUpdates(Origin origin) override;

private:
    UpdateWindow& window();
    void showResult(const CheckResult& result);
    void windowClosed();

    const std::unique_ptr<SPUUpdaterDelegate> delegate_;
    const Options options_;
    std::unique_ptr<UpdateWindow> window_;  // while it is open
    std::unique_ptr<UpdateCheck> check_;    // while it runs
};

/// Makes controllers of this kind. One that is not started checks nothing.
class Updater final : public Updates {
public:
    explicit Updater(const Options& options = {}) : options_(options) {}
    std::unique_ptr<SPUStandardUpdaterController> initWithStartingUpdater(
        StartingUpdater starting, std::unique_ptr<SPUUpdaterDelegate> updaterDelegate) override;

private:
    const Options options_;
};

}  // namespace orlamo::appcast
