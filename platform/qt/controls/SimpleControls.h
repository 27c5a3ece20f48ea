#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QSlider>
#include <optional>

#include "platform/qt/QtImages.h"
#include "platform/qt/controls/ColorWellButton.h"
#include "platform/qt/controls/ControlAdapter.h"

namespace orlamo::qt {

/// A push button keeps a state that only the program sees. `Interface` is Button or CheckBox.
template <class Interface>
class QtButton final : public ControlAdapter<Interface, QAbstractButton> {
public:
    explicit QtButton(QAbstractButton& button) : ControlAdapter<Interface, QAbstractButton>(button) {}

    double doubleValue() const override { return static_cast<double>(state()); }
    ControlState state() const override;
    void setState(ControlState state) override;
    /// Without the mark of a keyboard mnemonic.
    std::string title() const override;
    void setTitle(std::string_view title) override;
    bool setAction(std::function<void()> perform) override;

private:
    ControlState pushState_ = ControlState::off;
};

/// The wheel over it scrolls the page around it and does not change it.
class QtPopUpButton final : public ControlAdapter<PopUpButton, QComboBox> {
public:
    explicit QtPopUpButton(QComboBox& box);

    std::optional<std::string> titleOfSelectedItem() const override;
    void selectItemWithTitle(std::string_view title) override;
    bool setAction(std::function<void()> perform) override;
};

/// The wheel over it scrolls the page around it and does not change it.
class QtSlider final : public ControlAdapter<Slider, QSlider> {
public:
    explicit QtSlider(QSlider& slider);

    double doubleValue() const override { return static_cast<double>(integerValue()); }
    std::int64_t integerValue() const override { return native() != nullptr ? native()->value() : 0; }
    bool setAction(std::function<void()> perform) override;
};

/// Its first colour is the dynamic property "color", as "#rrggbb".
class QtColorWell final : public ControlAdapter<ColorWell, ColorWellButton> {
public:
    explicit QtColorWell(ColorWellButton& button);

    Color color() const override;
    bool setAction(std::function<void()> perform) override;
};

class QtTextField final : public ControlAdapter<TextField, QLabel> {
public:
    using ControlAdapter::ControlAdapter;

    std::string stringValue() const override;
    /// Shown letter for letter.
    void setStringValue(std::string_view text) override;
};

/// As large as the label allows; the label asks for the image's own size unless the file fixes one.
class QtImageView final : public ControlAdapter<ImageView, QLabel>, private QObject {
public:
    explicit QtImageView(QLabel& label);

    void setImage(std::string_view name) override;

private:
    bool eventFilter(QObject* object, QEvent* event) override;
    void show(QSizeF size);

    std::optional<SvgImage> image_;
};

}  // namespace orlamo::qt
