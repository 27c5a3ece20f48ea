#include "platform/qt/controls/SimpleControls.h"

#include <QCheckBox>
#include <QEvent>
#include <QSignalBlocker>
#include <utility>

namespace orlamo::qt {

namespace {

QString toQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// In a button's text "&" marks the next letter, and "&&" is the letter itself.
QString withoutMnemonic(const QString& text) {
    QString plain;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == '&' && i + 1 < text.size()) ++i;
        plain.append(text[i]);
    }
    return plain;
}

ControlState stateOf(const QAbstractButton& button) {
    const auto* const box = qobject_cast<const QCheckBox*>(&button);
    if (box != nullptr && box->checkState() == Qt::PartiallyChecked) return ControlState::mixed;
    return button.isChecked() ? ControlState::on : ControlState::off;
}

class WheelFilter : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::Wheel) return false;
        event->ignore();  // so the toolkit offers it to the parent
        return true;
    }
};

// A page that scrolls moves controls under the pointer: their values must not follow the wheel.
void leaveWheelToParent(QWidget& widget) {
    widget.installEventFilter(new WheelFilter(&widget));
}

}  // namespace

template <class Interface>
ControlState QtButton<Interface>::state() const {
    const QAbstractButton* const button = this->native();
    return button != nullptr && button->isCheckable() ? stateOf(*button) : pushState_;
}

template <class Interface>
void QtButton<Interface>::setState(ControlState state) {
    pushState_ = state;
    QAbstractButton* const button = this->native();
    if (button == nullptr || !button->isCheckable()) return;
    const QSignalBlocker silently(button);
    auto* const box = qobject_cast<QCheckBox*>(button);
    if (box != nullptr && state == ControlState::mixed) {
        box->setCheckState(Qt::PartiallyChecked);
    } else {
        button->setChecked(state == ControlState::on);
    }
}

template <class Interface>
std::string QtButton<Interface>::title() const {
    return this->native() != nullptr ? withoutMnemonic(this->native()->text()).toStdString() : std::string();
}

template <class Interface>
void QtButton<Interface>::setTitle(std::string_view title) {
    if (this->native() != nullptr) this->native()->setText(toQString(title).replace("&", "&&"));
}

// Assistive programs toggle a box without pressing it.
template <class Interface>
bool QtButton<Interface>::setAction(std::function<void()> perform) {
    QAbstractButton* const button = this->native();
    if (button == nullptr) return false;
    const auto performIt = [perform = std::move(perform)] { perform(); };
    if (auto* const box = qobject_cast<QCheckBox*>(button)) {
        QObject::connect(box, &QCheckBox::stateChanged, button, performIt);
    } else if (button->isCheckable()) {
        QObject::connect(button, &QAbstractButton::toggled, button, performIt);
    } else {
        QObject::connect(button, &QAbstractButton::clicked, button, performIt);
    }
    return true;
}

template class QtButton<Button>;
template class QtButton<CheckBox>;

QtPopUpButton::QtPopUpButton(QComboBox& box) : ControlAdapter(box) {
    leaveWheelToParent(box);
}

std::optional<std::string> QtPopUpButton::titleOfSelectedItem() const {
    if (native() == nullptr || native()->currentIndex() < 0) return std::nullopt;
    return native()->currentText().toStdString();
}

void QtPopUpButton::selectItemWithTitle(std::string_view title) {
    if (native() == nullptr) return;
    const int index = native()->findText(toQString(title), Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index >= 0) native()->setCurrentIndex(index);
}

bool QtPopUpButton::setAction(std::function<void()> perform) {
    if (native() == nullptr) return false;
    QObject::connect(native(), &QComboBox::activated, native(), [perform = std::move(perform)] { perform(); });
    return true;
}

QtSlider::QtSlider(QSlider& slider) : ControlAdapter(slider) {
    leaveWheelToParent(slider);
}

bool QtSlider::setAction(std::function<void()> perform) {
    if (native() == nullptr) return false;
    QObject::connect(native(), &QSlider::valueChanged, native(), [perform = std::move(perform)] { perform(); });
    return true;
}

QtColorWell::QtColorWell(ColorWellButton& button) : ControlAdapter(button) {
    const QColor first(button.property("color").toString());
    if (first.isValid()) button.setColor(first);
}

Color QtColorWell::color() const {
    const QColor color = native() != nullptr ? native()->color() : QColor(Qt::black);
    return {color.redF(), color.greenF(), color.blueF(), color.alphaF()};
}

bool QtColorWell::setAction(std::function<void()> perform) {
    if (native() == nullptr) return false;
    native()->chosen = std::move(perform);
    return true;
}

std::string QtTextField::stringValue() const {
    return native() != nullptr ? native()->text().toStdString() : std::string();
}

void QtTextField::setStringValue(std::string_view text) {
    if (native() == nullptr) return;
    native()->setTextFormat(Qt::PlainText);
    native()->setText(toQString(text));
}

QtImageView::QtImageView(QLabel& label) : ControlAdapter(label) {
    label.installEventFilter(this);
}

void QtImageView::setImage(std::string_view name) {
    image_.emplace(name);
    if (native() == nullptr) return;
    const QLabel& label = *native();
    if (label.isVisible()) return show(label.contentsRect().size());
    const bool isFixed = label.minimumSize() == label.maximumSize();
    show(isFixed ? QSizeF(label.minimumSize()) : image_->size());
}

bool QtImageView::eventFilter(QObject*, QEvent* event) {
    const bool mayDiffer = event->type() == QEvent::Resize || event->type() == QEvent::ScreenChangeInternal;
    if (mayDiffer && image_ && native() != nullptr) show(native()->contentsRect().size());
    return false;
}

// The pixmap also tells assistive programs that the label is an image.
void QtImageView::show(QSizeF size) {
    if (image_->isNull() || size.isEmpty()) return native()->setPixmap({});
    const double scale = native()->devicePixelRatioF();
    QPixmap pixmap = QPixmap::fromImage(image_->picture((size * scale).toSize()));
    pixmap.setDevicePixelRatio(scale);
    native()->setPixmap(pixmap);
}

}  // namespace orlamo::qt
