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
    UpdaterController(std::unique_ptr<SPUUpdaterDelegate> delegate, const Options& options, qt::QtApplication* program);
    ~UpdaterController() override;

    /// While a check runs this only brings its window forward; closing the window cancels the check.
    void checkForUpdates(Origin origin) override;

private:
    UpdateWindow& window();
    void showResult(const CheckResult& result);
    void windowClosed();

    const std::unique_ptr<SPUUpdaterDelegate> delegate_;
    const Options options_;
    qt::QtApplication* const program_;
    std::unique_ptr<UpdateWindow> window_;  // while it is open
    std::unique_ptr<UpdateCheck> check_;    // while it runs
};

/// Makes controllers of this kind. One that is not started checks nothing.
class Updater final : public Updates {
public:
    /// `program` hears of the windows, so that the desktop lists them as the program's others; may be null.
    explicit Updater(qt::QtApplication* program = nullptr, const Options& options = {})
        : program_(program), options_(options) {}
    std::unique_ptr<SPUStandardUpdaterController> initWithStartingUpdater(
        StartingUpdater starting, std::unique_ptr<SPUUpdaterDelegate> updaterDelegate) override;

private:
    qt::QtApplication* const program_;
    const Options options_;
};

}  // namespace orlamo::appcast
