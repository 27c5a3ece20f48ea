#include "platform/qt/statusbar/QtStatusItem.h"

#include <unistd.h>

#include <QApplication>
#include <QCursor>
#include <QFileInfo>
#include <QIcon>
#include <QPalette>
#include <string>

#include "platform/Log.h"
#include "platform/RunLoop.h"
#include "platform/qt/QtImages.h"

namespace orlamo::qt {

namespace {

constexpr int iconSizes[] = {16, 22, 24, 32, 48, 64};  // pixels
constexpr int menuIconSize = 32;                       // pixels; panels make it smaller
constexpr QRgb inkOnDark = 0xffdedede;
constexpr QRgb inkOnLight = 0xff3b3b3b;
constexpr QRgb inkOnAny = 0xff808080;  // a panel's menus need not be like the panel
// Panels that know the symbolic kind of a theme's icons colour it themselves.
constexpr auto symbolicIcon = "app.orlamo.Orlamo-symbolic";
constexpr auto connectionName = "orlamo-status-item";
constexpr auto desktopConnectionName = "orlamo-status-area";

QImage drawn(const NamedImage& image, int size, QColor ink) {
    if (image.name.empty()) return {};
    return SvgImage(image.name, image.isTemplate ? ink : QColor()).picture(QSize(size, size));
}

// Without this look the bus's library might start a bus of its own, on which nobody is.
bool isThereABus() {
    if (qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS")) return true;
    const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !folder.isEmpty() && QFileInfo::exists(folder + "/bus");
}

QDBusConnection sessionBus() {
    // The library's own shared connection stays lost once it is lost.
    QDBusConnection bus = isThereABus()
                              ? QDBusConnection::connectToBus(QDBusConnection::SessionBus, desktopConnectionName)
                              : QDBusConnection(QString());
    if (!bus.isConnected()) logLine("status icon: no session bus, so only the X server's notification area");
    return bus;
}

}  // namespace

class QtStatusItem::BusItem {
public:
    BusItem(std::function<void()> popUp, MenuPicture picture)
        : connection_(QDBusConnection::connectToBus(QDBusConnection::SessionBus, connectionName)),
          item(std::move(popUp)),
          menu(std::move(picture)) {
        constexpr auto contents = QDBusConnection::ExportAllContents;
        connection_.registerObject(NotifierService::path, &item, contents);
        connection_.registerObject(NotifierService::menuPath, &menu, contents);
        connection_.registerService(service);
    }
    ~BusItem() {
        connection_.unregisterService(service);
        QDBusConnection::disconnectFromBus(connectionName);
    }

    const QString service = QString("org.kde.StatusNotifierItem-%1-1").arg(::getpid());

private:
    QDBusConnection connection_;

public:
    NotifierService item;
    MenuService menu;
};

QtStatusItem::Desktop::Desktop(QtStatusItem& item)
    : bus(sessionBus()), hosts(bus, [&item] { item.place(); }), scheme(bus, [&item] { item.updateBusIcon(); }) {}

QtStatusItem::Desktop::~Desktop() {
    QDBusConnection::disconnectFromBus(desktopConnectionName);
}

QtStatusItem::QtStatusItem(x11::Connection& connection, std::shared_ptr<std::set<QtStatusItem*>> living)
    : connection_(connection),
      desktop_(std::make_unique<Desktop>(*this)),
      panelColor_(connection, [this] { updateBusIcon(); }),
      living_(std::move(living)) {
    registerBusValues();
    living_->insert(this);
}

QtStatusItem::~QtStatusItem() {
    living_->erase(this);
}

// The icon stays where it is until a panel on the bus has answered.
void QtStatusItem::connectToBus() {
    busItem_.reset();
    desktop_.reset();  // first: the new connection has the same name
    desktop_ = std::make_unique<Desktop>(*this);
}

void QtStatusItem::setImage(const NamedImage& image) {
    image_ = image;
    updateBusIcon();
    if (trayIcon_) trayIcon_->repaint();
}

void QtStatusItem::setMenu(const Menu& menu) {
    menu_ = menu;
    if (busItem_) busItem_->menu.setMenu(menu_);
    popUp_.clear();
    for (const MenuItem& item : menu_.items) {
        if (item.kind == MenuItem::Kind::separator) {
            popUp_.addSeparator();
            continue;
        }
        QAction* const action = popUp_.addAction(QString::fromStdString(item.title).replace('&', "&&"));
        const QImage image = drawn(item.image, menuIconSize, popUp_.palette().color(QPalette::WindowText));
        if (!image.isNull()) action->setIcon(QIcon(QPixmap::fromImage(image)));
        action->setEnabled(bool(item.action));
        QObject::connect(action, &QAction::triggered, [run = item.action] { RunLoop::shared().asyncAfter(0, run); });
    }
}

void QtStatusItem::setVisible(bool visible) {
    if (visible == isVisible_) return;
    isVisible_ = visible;
    place();
}

void QtStatusItem::place() {
    const auto state = desktop_->hosts.state();
    const bool isOnBus = isVisible_ && state == NotifierHosts::State::there;
    if (!isOnBus) busItem_.reset();
    const bool isInTray = isVisible_ && state == NotifierHosts::State::none;
    if (!isInTray) trayIcon_.reset();
    if (isInTray && !trayIcon_) {
        trayIcon_.emplace(
            connection_, [this](int size, std::uint32_t ink) { return picture(size, ink); }, [this] { popUpMenu(); });
    }
    if (!isOnBus) return;
    if (!busItem_) {
        const auto menuPicture = [](const NamedImage& image) { return drawn(image, menuIconSize, QColor(inkOnAny)); };
        busItem_ = std::make_unique<BusItem>([this] { popUpMenu(); }, menuPicture);
        busItem_->menu.setMenu(menu_);
        updateBusIcon();
    }
    desktop_->hosts.registerItem(busItem_->service);
}

/// Items on the bus are not told what the panel looks like. Most panels have both kinds of icons, and tell it to the
/// other kind.
QColor QtStatusItem::busInk() const {
    if (const auto foreground = panelColor_.foreground()) return QColor(QRgb(*foreground));
    return QColor(desktop_->scheme.isLight() ? inkOnLight : inkOnDark);
}

void QtStatusItem::updateBusIcon() {
    if (!busItem_) return;
    const QColor ink = busInk();
    IconPixmaps pixmaps;
    for (const int size : iconSizes) {
        if (const QImage image = drawn(image_, size, ink); !image.isNull()) pixmaps.append(iconPixmap(image));
    }
    const bool isInTheme = image_.isTemplate && QIcon::hasThemeIcon(symbolicIcon);
    busItem_->item.setIcon(isInTheme ? symbolicIcon : QString(), pixmaps);
}

PixelImage QtStatusItem::picture(int size, std::uint32_t ink) const {
    const QImage image = drawn(image_, size, QColor(QRgb(ink)));
    const QImage plain = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    PixelImage pixels{plain.width(), plain.height(), {}};
    for (int y = 0; y < plain.height(); ++y) {
        const auto* const row = reinterpret_cast<const std::uint32_t*>(plain.constScanLine(y));
        pixels.pixels.insert(pixels.pixels.end(), row, row + plain.width());
    }
    return pixels;
}

void QtStatusItem::popUpMenu() {
    if (!popUp_.isEmpty()) popUp_.popup(QCursor::pos());
}

}  // namespace orlamo::qt
