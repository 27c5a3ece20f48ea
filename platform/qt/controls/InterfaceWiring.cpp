#include "platform/qt/controls/InterfaceWiring.h"

#include <QAbstractButton>
#include <QColor>
#include <algorithm>
#include <array>
#include <set>
#include <string>

#include "platform/qt/QtImages.h"
#include "platform/qt/controls/ControlAdapter.h"
#include "platform/qt/controls/ControlFactory.h"
#include "platform/qt/controls/ViewWidget.h"

namespace orlamo::qt {

namespace {

// Dynamic properties that are not a view's own.
constexpr std::array<std::string_view, 3> general{"action", "image", "tag"};

std::string nameOf(const QWidget& widget) {
    return widget.objectName().toStdString();
}

std::string actionOf(const QWidget& widget) {
    return widget.property("action").toString().toStdString();
}

std::optional<View::Attribute> attribute(const QVariant& value) {
    switch (value.typeId()) {
        case QMetaType::Bool:
            return value.toBool();
        case QMetaType::Int:
        case QMetaType::Double:
            return value.toDouble();
        case QMetaType::QString: {
            const QString text = value.toString();
            const QColor color = text.startsWith('#') ? QColor(text) : QColor();
            if (!color.isValid()) return text.toStdString();
            return Color{color.redF(), color.greenF(), color.blueF(), color.alphaF()};
        }
        default:
            return std::nullopt;
    }
}

}  // namespace

InterfaceWiring::InterfaceWiring(InterfaceLoader& loader, QtInterfaceView& view, InterfaceOwner& owner)
    : loader_(loader), view_(view), owner_(owner) {}

void InterfaceWiring::wire() {
    makeControls();
    setAttributes();
    setOutlets();
    connectActions();
}

void InterfaceWiring::makeControls() {
    for (QWidget* const widget : loader_.widgets()) {
        auto control = makeControl(*widget, loader_.takeBehavior(*widget));
        controls_[widget] = control;
        view_.adopt(std::move(control));
        const QString image = widget->property("image").toString();
        auto* const button = qobject_cast<QAbstractButton*>(widget);
        if (button != nullptr && !image.isEmpty()) button->setIcon(SvgImage(image.toStdString()).icon());
    }
}

void InterfaceWiring::setOutlets() {
    for (const OutletBinding& outlet : owner_.outlets()) {
        const auto found = std::ranges::find_if(
            loader_.widgets(), [&outlet](const QWidget* widget) { return nameOf(*widget) == outlet.name; });
        if (found == loader_.widgets().end()) {
            loader_.complain("no control named " + std::string(outlet.name));
            continue;
        }
        const bool fits = std::visit(
            [&control = controls_[*found]]<class C>(Outlet<C>* target) {
                const auto own = std::dynamic_pointer_cast<C>(control);
                *target = own;
                return own != nullptr;
            },
            outlet.target);
        if (!fits) {
            loader_.complain(std::string(outlet.name) + " is a " + (*found)->metaObject()->className() +
                             ", which is not what the outlet takes");
        }
    }
}

void InterfaceWiring::connectActions() {
    const std::vector<ActionBinding> actions = owner_.actions();
    std::set<std::string_view> used;
    for (QWidget* const widget : loader_.widgets()) {
        const std::string wanted = actionOf(*widget);
        if (wanted.empty()) continue;
        const auto found = std::ranges::find(actions, wanted, &ActionBinding::name);
        if (found == actions.end()) {
            loader_.complain(nameOf(*widget) + " names the action " + wanted + ", which nobody performs");
            continue;
        }
        used.insert(found->name);
        connectAction(*widget, *found);
    }
    for (const ActionBinding& action : actions) {
        if (!used.contains(action.name)) loader_.complain("no control names the action " + std::string(action.name));
    }
}

void InterfaceWiring::connectAction(QWidget& widget, const ActionBinding& action) {
    const std::shared_ptr<Control>& control = controls_[&widget];
    if (!action.accepts(*control)) {
        loader_.complain(nameOf(widget) + " is a " + widget.metaObject()->className() + ", which the action " +
                         std::string(action.name) + " does not take");
        return;
    }
    const bool performs = dynamic_cast<WidgetControl&>(*control).setAction(
        [perform = action.perform, sender = std::weak_ptr<Control>(control)] {
            if (const auto alive = sender.lock()) perform(*alive);
        });
    if (!performs) {
        loader_.complain(nameOf(widget) + " is a " + widget.metaObject()->className() +
                         ", which performs no action such as " + std::string(action.name));
    }
}

void InterfaceWiring::setAttributes() {
    for (QWidget* const widget : loader_.widgets()) {
        auto* const own = dynamic_cast<ViewWidget*>(widget);
        if (own == nullptr) continue;
        for (const QByteArray& key : widget->dynamicPropertyNames()) {
            if (key.startsWith("_q_") || std::ranges::count(general, key.toStdString())) continue;
            const auto value = attribute(widget->property(key));
            if (!value || !own->view().setValueForKey(*value, key.toStdString())) {
                loader_.complain(nameOf(*widget) + " cannot take a value for " + key.toStdString());
            }
        }
        own->view().awakeFromNib();
    }
}

}  // namespace orlamo::qt
