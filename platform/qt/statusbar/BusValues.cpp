#include "platform/qt/statusbar/BusValues.h"

#include <QBuffer>
#include <QDBusMetaType>
#include <QtEndian>

namespace orlamo::qt {

namespace {

// An underscore marks the letter of a keyboard shortcut, two stand for one.
QString labelOf(const std::string& title) {
    return QString::fromStdString(title).replace('_', "__");
}

QByteArray png(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

QVariantMap propertiesOf(const MenuItem& item, const MenuPicture& picture) {
    if (item.kind == MenuItem::Kind::separator) return {{"type", "separator"}, {"visible", true}};
    QVariantMap properties{
        {"type", "standard"}, {"label", labelOf(item.title)}, {"enabled", bool(item.action)}, {"visible", true}};
    const QImage image = picture(item.image);
    if (!image.isNull()) properties["icon-data"] = png(image);
    return properties;
}

}  // namespace

QDBusArgument& operator<<(QDBusArgument& argument, const IconPixmap& pixmap) {
    argument.beginStructure();
    argument << pixmap.width << pixmap.height << pixmap.bytes;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, IconPixmap& pixmap) {
    argument.beginStructure();
    argument >> pixmap.width >> pixmap.height >> pixmap.bytes;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuLayout& layout) {
    argument.beginStructure();
    argument << layout.id << layout.properties;
    argument.beginArray(QMetaType::fromType<QDBusVariant>());
    for (const MenuLayout& child : layout.children) argument << QDBusVariant(QVariant::fromValue(child));
    argument.endArray();
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuLayout& layout) {
    argument.beginStructure();
    argument >> layout.id >> layout.properties;
    argument.beginArray();
    while (!argument.atEnd()) {
        QDBusVariant child;
        argument >> child;
        layout.children.append(qdbus_cast<MenuLayout>(child.variant()));
    }
    argument.endArray();
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuProperties& item) {
    argument.beginStructure();
    argument << item.id << item.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuProperties& item) {
    argument.beginStructure();
    argument >> item.id >> item.properties;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuEvent& event) {
    argument.beginStructure();
    argument << event.id << event.name << event.data << event.timestamp;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuEvent& event) {
    argument.beginStructure();
    argument >> event.id >> event.name >> event.data >> event.timestamp;
    argument.endStructure();
    return argument;
}

IconPixmap iconPixmap(const QImage& image) {
    const QImage plain = image.convertToFormat(QImage::Format_ARGB32);
    IconPixmap pixmap{plain.width(), plain.height(), QByteArray(qsizetype{4} * plain.width() * plain.height(), 0)};
    char* target = pixmap.bytes.data();
    for (int y = 0; y < plain.height(); ++y) {
        const auto* const row = reinterpret_cast<const quint32*>(plain.constScanLine(y));
        for (int x = 0; x < plain.width(); ++x, target += 4) qToBigEndian(row[x], target);
    }
    return pixmap;
}

MenuLayout menuLayout(const Menu& menu, const MenuPicture& picture) {
    MenuLayout layout{0, {{"children-display", "submenu"}}, {}};
    for (const MenuItem& item : menu.items) {
        layout.children.append({static_cast<int>(layout.children.size()) + 1, propertiesOf(item, picture), {}});
    }
    return layout;
}

QVariantMap namedProperties(const QVariantMap& properties, const QStringList& names) {
    if (names.isEmpty()) return properties;
    QVariantMap named;
    for (const QString& name : names) {
        if (properties.contains(name)) named[name] = properties[name];
    }
    return named;
}

const MenuLayout* findLayout(const MenuLayout& layout, int id) {
    if (layout.id == id) return &layout;
    for (const MenuLayout& child : layout.children) {
        if (const MenuLayout* const found = findLayout(child, id)) return found;
    }
    return nullptr;
}

MenuLayout reducedLayout(const MenuLayout& layout, int depth, const QStringList& names) {
    MenuLayout reduced{layout.id, namedProperties(layout.properties, names), {}};
    if (depth == 0) return reduced;
    for (const MenuLayout& child : layout.children) reduced.children.append(reducedLayout(child, depth - 1, names));
    return reduced;
}

void registerBusValues() {
    qDBusRegisterMetaType<IconPixmap>();
    qDBusRegisterMetaType<IconPixmaps>();
    qDBusRegisterMetaType<MenuLayout>();
    qDBusRegisterMetaType<MenuProperties>();
    qDBusRegisterMetaType<QList<MenuProperties>>();
    qDBusRegisterMetaType<MenuEvent>();
    qDBusRegisterMetaType<QList<MenuEvent>>();
}

}  // namespace orlamo::qt
