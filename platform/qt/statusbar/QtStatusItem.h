#pragma once

#include <QColor>
#include <QMenu>
#include <memory>
#include <optional>
#include <set>

#include "platform/StatusBar.h"
#include "platform/qt/statusbar/ColorScheme.h"
#include "platform/qt/statusbar/MenuService.h"
#include "platform/qt/statusbar/NotifierHosts.h"
#include "platform/qt/statusbar/NotifierService.h"
#include "platform/x11/PanelColor.h"
#include "platform/x11/TrayIcon.h"

namespace orlamo::qt {

/// One icon in one place at a time: on the bus while a panel there draws it, else in the notification area.
class QtStatusItem final : public StatusItem {
public:
    /// Is in `living` for as long as it lives.
    QtStatusItem(x11::Connection& connection, std::shared_ptr<std::set<QtStatusItem*>> living);
    ~QtStatusItem() override;

    /// Also after the session bus was lost.
    void connectToBus();

    void setImage(const NamedImage& image) override;
    void setMenu(const Menu& menu) override;
    bool isVisible() const override { return isVisible_; }
    void setVisible(bool visible) override;

private:
    /// The item's objects on a bus connection of their own, which takes them off the panel when it closes.
    class BusItem;
    /// What the session bus tells; one for each connection to it.
    struct Desktop {
        explicit Desktop(QtStatusItem& item);
        ~Desktop();
        QDBusConnection bus;
        NotifierHosts hosts;
        ColorScheme scheme;
    };

    void place();
    QColor busInk() const;
    void updateBusIcon();
    void popUpMenu();
    PixelImage picture(int size, std::uint32_t ink) const;

    x11::Connection& connection_;
    NamedImage image_;
    Menu menu_;
    bool isVisible_ = false;
    QMenu popUp_;
    std::unique_ptr<BusItem> busItem_;
    std::optional<x11::TrayIcon> trayIcon_;
    // These call back, the last one at once.
    std::unique_ptr<Desktop> desktop_;
    x11::PanelColor panelColor_;
    std::shared_ptr<std::set<QtStatusItem*>> living_;
};

}  // namespace orlamo::qt
