#pragma once

#include <memory>
#include <set>

#include "platform/StatusBar.h"

namespace orlamo::x11 {
class Connection;
}

namespace orlamo::qt {

class QtStatusItem;

/// The desktop's status area: the panel's list of status items on the session bus where there is such a panel, else the
/// X server's notification area. Follows panels that come, go and start again, without looking for them.
class QtStatusBar final : public StatusBar {
public:
    /// The connection outlives the bar and its items. After the QApplication, with a RunLoop installed.
    explicit QtStatusBar(x11::Connection& connection) : connection_(connection) {}

    std::unique_ptr<StatusItem> statusItemWithLength(double length) override;
    /// The session bus was lost and answers again: the items go back to it.
    void sessionBusReturned();

private:
    std::shared_ptr<std::set<QtStatusItem*>> items_ = std::make_shared<std::set<QtStatusItem*>>();  // those that live
    x11::Connection& connection_;
};

}  // namespace orlamo::qt
