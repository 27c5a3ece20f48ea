#include "platform/qt/QtRunLoop.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTimer>
#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace orlamo::qt {

namespace {

int toMilliseconds(double seconds) {
    return static_cast<int>(std::clamp(std::ceil(seconds * 1000), 0.0, double{std::numeric_limits<int>::max()}));
}

// The source outlives the handle until the event that it is delivering is over.
template <class Source>
class SourceHandle : public RunLoop::Handle {
public:
    explicit SourceHandle(Source* source) : source_(source) {}
    ~SourceHandle() override {
        source_->disconnect();
        quiet(*source_);
        source_->deleteLater();
    }

private:
    static void quiet(QTimer& timer) { timer.stop(); }
    static void quiet(QSocketNotifier& notifier) { notifier.setEnabled(false); }

    Source* source_;
};

// The task may destroy the handle, and with it the connection that holds the task: it runs on a copy's life.
auto keptAlive(RunLoop::Task task) {
    return [kept = std::make_shared<RunLoop::Task>(std::move(task))] {
        const auto alive = kept;
        (*alive)();
    };
}

}  // namespace

QtRunLoop::~QtRunLoop() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void QtRunLoop::asyncAfter(double seconds, Task task) {
    QTimer::singleShot(toMilliseconds(seconds), Qt::PreciseTimer, QCoreApplication::instance(),
                       keptAlive(std::move(task)));
}

std::unique_ptr<RunLoop::Handle> QtRunLoop::scheduleRepeatingTimer(double seconds, Task task) {
    auto* const timer = new QTimer;
    timer->setInterval(std::max(1, toMilliseconds(seconds)));
    QObject::connect(timer, &QTimer::timeout, timer, keptAlive(std::move(task)));
    timer->start();
    return std::make_unique<SourceHandle<QTimer>>(timer);
}

std::unique_ptr<RunLoop::Handle> QtRunLoop::watchReadable(int descriptor, Task task) {
    auto* const notifier = new QSocketNotifier(descriptor, QSocketNotifier::Read);
    QObject::connect(notifier, &QSocketNotifier::activated, notifier, keptAlive(std::move(task)));
    return std::make_unique<SourceHandle<QSocketNotifier>>(notifier);
}

}  // namespace orlamo::qt
