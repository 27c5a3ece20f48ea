#pragma once

#include <QDBusObjectPath>
#include <QObject>
#include <functional>

#include "platform/qt/statusbar/BusValues.h"

namespace orlamo::qt {

/// The status item on the bus (StatusNotifierItem), drawn by the panel. A press asks the panel for the menu; a panel
/// that hands the press over instead gets `popUp`.
class NotifierService : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category)
    Q_PROPERTY(QString Id READ id)
    Q_PROPERTY(QString Title READ title)
    Q_PROPERTY(QString Status READ status)
    Q_PROPERTY(int WindowId READ windowId)
    Q_PROPERTY(QString IconName READ iconName)
    Q_PROPERTY(orlamo::qt::IconPixmaps IconPixmap READ iconPixmap)
    Q_PROPERTY(QString OverlayIconName READ noName)
    Q_PROPERTY(orlamo::qt::IconPixmaps OverlayIconPixmap READ noPixmap)
    Q_PROPERTY(QString AttentionIconName READ noName)
    Q_PROPERTY(orlamo::qt::IconPixmaps AttentionIconPixmap READ noPixmap)
    Q_PROPERTY(bool ItemIsMenu READ itemIsMenu)
    Q_PROPERTY(QDBusObjectPath Menu READ menu)

public:
    static constexpr auto path = "/StatusNotifierItem";
    static constexpr auto menuPath = "/StatusNotifierItem/Menu";

    explicit NotifierService(std::function<void()> popUp) : popUp_(std::move(popUp)) {}

    /// The panel prefers the theme's icon of that name, where it is not empty.
    void setIcon(const QString& themeName, const IconPixmaps& pixmaps);

    QString category() const { return "ApplicationStatus"; }
    QString id() const { return "app.orlamo.Orlamo"; }
    QString title() const { return "Orlamo"; }
    QString status() const { return "Active"; }
    int windowId() const { return 0; }
    QString iconName() const { return iconName_; }
    IconPixmaps iconPixmap() const { return iconPixmap_; }
    QString noName() const { return {}; }
    IconPixmaps noPixmap() const { return {}; }
    bool itemIsMenu() const { return true; }
    QDBusObjectPath menu() const { return QDBusObjectPath(menuPath); }

public slots:
    void Activate(int x, int y);
    void SecondaryActivate(int x, int y);
    void ContextMenu(int x, int y);
    void Scroll(int delta, const QString& orientation);

signals:
    void NewIcon();
    void NewTitle();
    void NewStatus(const QString& status);

private:
    std::function<void()> popUp_;
    QString iconName_;
    IconPixmaps iconPixmap_;
};

}  // namespace orlamo::qt
