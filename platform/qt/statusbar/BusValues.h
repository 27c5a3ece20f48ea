#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QDBusVariant>
#include <QImage>
#include <QList>
#include <QVariantMap>
#include <functional>

#include "platform/StatusBar.h"

namespace orlamo::qt {

/// A picture as panels read it: rows of 32 bits a pixel, alpha first, red, green, blue, whatever this machine's order.
struct IconPixmap {
    int width = 0;
    int height = 0;
    QByteArray bytes;
};
using IconPixmaps = QList<IconPixmap>;

/// A menu entry as panels read it, with the entries below it.
struct MenuLayout {
    int id = 0;  // 0 for the menu itself, then its entries' places from 1 on
    QVariantMap properties;
    QList<MenuLayout> children;
};

struct MenuProperties {
    int id = 0;
    QVariantMap properties;
};

struct MenuEvent {
    int id = 0;
    QString name;  // "clicked", "hovered", "opened", "closed"
    QDBusVariant data;
    uint timestamp = 0;
};

IconPixmap iconPixmap(const QImage& image);

/// Gives an entry's picture; a null one for an entry without.
using MenuPicture = std::function<QImage(const NamedImage&)>;

/// The whole menu with all properties.
MenuLayout menuLayout(const Menu& menu, const MenuPicture& picture);
/// Those of `properties` that are named; all of them when `names` is empty.
QVariantMap namedProperties(const QVariantMap& properties, const QStringList& names);
/// The entry of that number, or null.
const MenuLayout* findLayout(const MenuLayout& layout, int id);
/// A copy with `depth` levels below it, all for a negative one, and only the named properties.
MenuLayout reducedLayout(const MenuLayout& layout, int depth, const QStringList& names);

/// Tells the bus's library about these values. Once is enough, more does no harm.
void registerBusValues();

}  // namespace orlamo::qt
