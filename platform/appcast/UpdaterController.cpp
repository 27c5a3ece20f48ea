#include "platform/appcast/UpdaterController.h"

#include <utility>

#include "platform/Bundle.h"
#include "platform/Log.h"

namespace orlamo::appcast {

namespace {

std::string information(std::string_view key) {
    const PropertyList value = Bundle::shared().infoDictionaryValue(key);
    const auto* const text = value.get<std::string>();
    return text != nullptr ? *text : std::string();
}

std::string currentVersion() {
    return information("CFBundleShortVersionString");
}

/// A controller that was never started.
class IdleController final : public SPUStandardUpdaterController {
public:
    void checkForUpdates(Origin) override { logLine("updates: the updater was not started"); }
};

}  // namespace

UpdaterController::UpdaterController(std::unique_ptr<SPUUpdaterDelegate> delegate, const Options& options,
                                     qt::QtApplication* program)
    : delegate_(std::move(delegate)), options_(options), program_(program) {}

UpdaterController::~UpdaterController() {
    if (window_ != nullptr) window_->disconnect();
}

void UpdaterController::checkForUpdates(Origin origin) {
    if (check_ != nullptr) return origin == Origin::user ? window().bringForward() : window().appear();

    const std::string feed = information("SUFeedURL");
    if (feed.empty()) {
        if (origin == Origin::launch) return;
        showResult({.outcome = Outcome::noFeedAddress, .item = std::nullopt});
        return window().bringForward();
    }
    window().showChecking();
    origin == Origin::user ? window().bringForward() : window().appear();
    const auto channels = delegate_ != nullptr ? delegate_->allowedChannelsForUpdater() : std::set<std::string>();
    check_ = std::make_unique<UpdateCheck>(options_, currentVersion(), channels);
    check_->start(QUrl(QString::fromStdString(feed), QUrl::StrictMode), [this](const CheckResult& result) {
        const auto finished = std::move(check_);  // until this handler is over
        showResult(result);
    });
}

UpdateWindow& UpdaterController::window() {
    if (window_ == nullptr) {
        window_ = std::make_unique<UpdateWindow>(program_);
        QObject::connect(window_.get(), &QDialog::finished, [this] { windowClosed(); });
    }
    return *window_;
}

void UpdaterController::showResult(const CheckResult& result) {
    // In place: by now the user may be typing elsewhere.
    window().showResult(result, currentVersion());
}

void UpdaterController::windowClosed() {
    check_.reset();
    window_.release()->deleteLater();  // it is still sending the signal that leads here
}

std::unique_ptr<SPUStandardUpdaterController> Updater::initWithStartingUpdater(
    StartingUpdater starting, std::unique_ptr<SPUUpdaterDelegate> updaterDelegate) {
    if (starting == StartingUpdater::no) return std::make_unique<IdleController>();
    return std::make_unique<UpdaterController>(std::move(updaterDelegate), options_, program_);
}

}  // namespace orlamo::appcast
