#pragma once

#include <QDBusConnection>
#include <QObject>
#include <functional>

namespace orlamo::qt {

/// Whether the desktop has a panel that draws status items from the bus: a watcher that keeps their list, and a host
/// that draws them. Hears of both, asks nobody twice.
class NotifierHosts : public QObject {
    Q_OBJECT

public:
    enum class State {
        unknown,  // the watcher has been asked; without an answer within a second it counts as none, until it comes
        none,
        there,
    };
    using Changed = std::function<void()>;

    /// `changed` runs when the state is another one, and when another watcher has taken over: its list is empty.
    NotifierHosts(QDBusConnection bus, Changed changed);

    State state() const { return state_; }
    /// Puts an item, by the name that its connection owns, on the watcher's list. A watcher that refuses counts as
    /// none.
    void registerItem(const QString& service);

private slots:
    void handleOwner(const QString& name, const QString& before, const QString& after);
    void handleHosts();
    void handleLostBus();

private:
    void askForHost();
    void setState(State state);

    QDBusConnection bus_;
    Changed changed_;
    State state_ = State::unknown;
    quint64 question_ = 0;  // the last one; an answer to an earlier one is out of date
};

}  // namespace orlamo::qt
