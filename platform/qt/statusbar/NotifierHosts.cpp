#include "platform/qt/statusbar/NotifierHosts.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QPointer>

#include "platform/Log.h"
#include "platform/RunLoop.h"

namespace orlamo::qt {

namespace {

constexpr auto watcherName = "org.kde.StatusNotifierWatcher";
constexpr auto watcherPath = "/StatusNotifierWatcher";
constexpr auto busName = "org.freedesktop.DBus";
constexpr auto busPath = "/org/freedesktop/DBus";
constexpr double patienceSeconds = 1;
// A panel that is only just starting may take its time; its answer still counts.
constexpr int answerMilliseconds = 60'000;

QDBusMessage question(const char* interface, const char* method, const QVariantList& arguments) {
    auto message = QDBusMessage::createMethodCall(watcherName, watcherPath, interface, method);
    message.setAutoStartService(false);
    message.setArguments(arguments);
    return message;
}

}  // namespace

NotifierHosts::NotifierHosts(QDBusConnection bus, Changed changed)
    : bus_(std::move(bus)), changed_(std::move(changed)) {
    if (!bus_.isConnected()) {
        state_ = State::none;
        return;
    }
    bus_.connect(busName, busPath, busName, "NameOwnerChanged", {watcherName}, QString(), this,
                 SLOT(handleOwner(QString, QString, QString)));
    for (const char* const signal : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"}) {
        bus_.connect(watcherName, watcherPath, watcherName, signal, this, SLOT(handleHosts()));
    }
    bus_.connect(QString(), "/org/freedesktop/DBus/Local", "org.freedesktop.DBus.Local", "Disconnected", this,
                 SLOT(handleLostBus()));
    askForHost();
}

void NotifierHosts::handleOwner(const QString&, const QString&, const QString& after) {
    if (after.isEmpty()) {
        ++question_;
        setState(State::none);
        return;
    }
    // Its list is empty, even if the one before had a host.
    state_ = State::unknown;
    askForHost();
}

void NotifierHosts::handleHosts() {
    askForHost();
}

void NotifierHosts::handleLostBus() {
    ++question_;
    setState(State::none);
}

void NotifierHosts::askForHost() {
    const quint64 number = ++question_;
    RunLoop::shared().asyncAfter(patienceSeconds, [self = QPointer(this), number] {
        if (self && number == self->question_ && self->state_ == State::unknown) self->setState(State::none);
    });
    const auto call = bus_.asyncCall(
        question("org.freedesktop.DBus.Properties", "Get", {watcherName, "IsStatusNotifierHostRegistered"}),
        answerMilliseconds);
    auto* const watcher = new QDBusPendingCallWatcher(call, this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, number](QDBusPendingCallWatcher* finished) {
        finished->deleteLater();
        if (number != question_) return;
        const QDBusPendingReply<QDBusVariant> reply = *finished;
        const bool isThere = !reply.isError() && reply.value().variant().toBool();
        setState(isThere ? State::there : State::none);
    });
}

void NotifierHosts::setState(State state) {
    if (state == state_) return;
    state_ = state;
    changed_();
}

void NotifierHosts::registerItem(const QString& service) {
    const auto call =
        bus_.asyncCall(question(watcherName, "RegisterStatusNotifierItem", {service}), answerMilliseconds);
    auto* const watcher = new QDBusPendingCallWatcher(call, this);
    const quint64 number = question_;
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, number](QDBusPendingCallWatcher* finished) {
        finished->deleteLater();
        if (!finished->isError() || number != question_) return;
        const auto error = finished->error().type();
        if (error == QDBusError::NoReply || error == QDBusError::TimedOut) return;
        logLine("status icon: the panel does not take it: " + finished->error().message().toStdString());
        setState(State::none);
    });
}

}  // namespace orlamo::qt
