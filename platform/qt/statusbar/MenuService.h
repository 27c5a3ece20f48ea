#pragma once

#include <QDBusContext>
#include <QObject>
#include <QStringList>

#include "platform/qt/statusbar/BusValues.h"

namespace orlamo::qt {

/// The status item's menu on the bus, drawn by the panel. What an entry does begins after the panel has its answer.
class MenuService : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version)
    Q_PROPERTY(QString TextDirection READ textDirection)
    Q_PROPERTY(QString Status READ status)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath)

public:
    explicit MenuService(MenuPicture picture) : picture_(std::move(picture)) {}

    void setMenu(const Menu& menu);

    uint version() const { return 3; }
    QString textDirection() const;
    QString status() const { return "normal"; }
    QStringList iconThemePath() const { return {}; }

public slots:
    uint GetLayout(int parentId, int recursionDepth, const QStringList& propertyNames, orlamo::qt::MenuLayout& layout);
    QList<orlamo::qt::MenuProperties> GetGroupProperties(const QList<int>& ids, const QStringList& propertyNames);
    QDBusVariant GetProperty(int id, const QString& name);
    void Event(int id, const QString& eventId, const QDBusVariant& data, uint timestamp);
    QList<int> EventGroup(const QList<orlamo::qt::MenuEvent>& events);
    bool AboutToShow(int id);
    QList<int> AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors);

signals:
    void LayoutUpdated(uint revision, int parent);

private:
    bool perform(int id, const QString& eventId);
    const MenuLayout* entry(int id);

    MenuPicture picture_;
    Menu menu_;
    MenuLayout layout_;
    uint revision_ = 1;
};

}  // namespace orlamo::qt
