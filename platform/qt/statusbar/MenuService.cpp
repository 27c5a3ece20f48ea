#include "platform/qt/statusbar/MenuService.h"

#include <QDBusError>
#include <QGuiApplication>

#include "platform/RunLoop.h"

namespace orlamo::qt {

void MenuService::setMenu(const Menu& menu) {
    menu_ = menu;
    layout_ = menuLayout(menu_, picture_);
    ++revision_;
    emit LayoutUpdated(revision_, 0);
}

QString MenuService::textDirection() const {
    return QGuiApplication::isRightToLeft() ? "rtl" : "ltr";
}

const MenuLayout* MenuService::entry(int id) {
    const MenuLayout* const found = findLayout(layout_, id);
    if (found == nullptr && calledFromDBus()) {
        sendErrorReply(QDBusError::InvalidArgs, QString("there is no entry %1").arg(id));
    }
    return found;
}

uint MenuService::GetLayout(int parentId, int recursionDepth, const QStringList& propertyNames, MenuLayout& layout) {
    if (const MenuLayout* const found = entry(parentId)) layout = reducedLayout(*found, recursionDepth, propertyNames);
    return revision_;
}

QList<MenuProperties> MenuService::GetGroupProperties(const QList<int>& ids, const QStringList& propertyNames) {
    QList<MenuProperties> all;
    const auto add = [&](const MenuLayout& layout) {
        all.append({layout.id, namedProperties(layout.properties, propertyNames)});
    };
    if (ids.isEmpty()) {
        add(layout_);
        for (const MenuLayout& child : layout_.children) add(child);
    }
    for (const int id : ids) {
        if (const MenuLayout* const found = findLayout(layout_, id)) add(*found);
    }
    return all;
}

QDBusVariant MenuService::GetProperty(int id, const QString& name) {
    const MenuLayout* const found = entry(id);
    if (found == nullptr) return QDBusVariant(QString());
    if (!found->properties.contains(name)) {
        if (calledFromDBus()) sendErrorReply(QDBusError::InvalidArgs, "there is no property " + name);
        return QDBusVariant(QString());
    }
    return QDBusVariant(found->properties[name]);
}

/// False: there is no such entry.
bool MenuService::perform(int id, const QString& eventId) {
    if (findLayout(layout_, id) == nullptr) return false;
    if (id == 0 || eventId != "clicked") return true;
    const auto& action = menu_.items[static_cast<std::size_t>(id - 1)].action;
    if (action) RunLoop::shared().asyncAfter(0, action);
    return true;
}

void MenuService::Event(int id, const QString& eventId, const QDBusVariant&, uint) {
    if (!perform(id, eventId)) entry(id);
}

QList<int> MenuService::EventGroup(const QList<MenuEvent>& events) {
    QList<int> unknown;
    for (const MenuEvent& event : events) {
        if (!perform(event.id, event.name)) unknown.append(event.id);
    }
    return unknown;
}

bool MenuService::AboutToShow(int id) {
    entry(id);
    return false;
}

QList<int> MenuService::AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors) {
    for (const int id : ids) {
        if (findLayout(layout_, id) == nullptr) idErrors.append(id);
    }
    return {};
}

}  // namespace orlamo::qt
