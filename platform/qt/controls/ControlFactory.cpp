#include "platform/qt/controls/ControlFactory.h"

#include <QCheckBox>
#include <QListView>
#include <QScrollArea>
#include <array>

#include "platform/qt/controls/QtCollectionView.h"
#include "platform/qt/controls/QtScrollView.h"
#include "platform/qt/controls/QtTableView.h"
#include "platform/qt/controls/SimpleControls.h"

namespace orlamo::qt {

namespace {

using Made = std::shared_ptr<Control>;

template <class Widget, class Adapter>
Made over(QWidget& widget) {
    auto* const own = qobject_cast<Widget*>(&widget);
    return own != nullptr ? std::make_shared<Adapter>(*own) : nullptr;
}

Made overColorWell(QWidget& widget) {
    auto* const well = dynamic_cast<ColorWellButton*>(&widget);
    return well != nullptr ? std::make_shared<QtColorWell>(*well) : nullptr;
}

Made overImage(QWidget& widget) {
    auto* const label = qobject_cast<QLabel*>(&widget);
    const QVariant image = widget.property("image");
    if (label == nullptr || !image.isValid()) return nullptr;
    auto view = std::make_shared<QtImageView>(*label);
    if (!image.toString().isEmpty()) view->setImage(image.toString().toStdString());
    return view;
}

Made overTable(QWidget& widget) {
    auto* const list = qobject_cast<QListView*>(&widget);
    return list != nullptr ? makeTableView(*list) : nullptr;
}

Made overCollection(QWidget& widget) {
    return widget.property(collectionViewProperty).toBool() ? makeCollectionView(widget) : nullptr;
}

// The first that takes a widget makes its control: special kinds before general ones.
constexpr std::array<Made (*)(QWidget&), 9> factories{
    overColorWell,
    over<QCheckBox, QtButton<CheckBox>>,
    over<QAbstractButton, QtButton<Button>>,
    over<QComboBox, QtPopUpButton>,
    over<QSlider, QtSlider>,
    overImage,
    over<QLabel, QtTextField>,
    overTable,
    overCollection,
};

}  // namespace

std::shared_ptr<Control> makeControl(QWidget& widget, std::unique_ptr<ScrollViewBehavior> behavior) {
    if (auto* const area = qobject_cast<QScrollArea*>(&widget)) return makeScrollView(*area, std::move(behavior));
    for (const auto make : factories) {
        if (Made control = make(widget)) return control;
    }
    return std::make_shared<ControlAdapter<Control>>(widget);
}

}  // namespace orlamo::qt
