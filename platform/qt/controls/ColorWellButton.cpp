#include "platform/qt/controls/ColorWellButton.h"

#include <QColorDialog>
#include <QPainter>

namespace orlamo::qt {

namespace {

constexpr int swatchMargin = 5;
constexpr double swatchRadius = 3;
constexpr double disabledOpacity = 0.4;

}  // namespace

ColorWellButton::ColorWellButton(QWidget* parent) : QPushButton(parent) {
    connect(this, &QPushButton::clicked, this, &ColorWellButton::choose);
}

void ColorWellButton::setColor(const QColor& color) {
    color_ = color;
    update();
}

void ColorWellButton::paintEvent(QPaintEvent* event) {
    QPushButton::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled()) painter.setOpacity(disabledOpacity);
    painter.setPen(QColor(255, 255, 255, 64));
    painter.setBrush(color_);
    const QRectF swatch = QRectF(rect()).adjusted(swatchMargin, swatchMargin, -swatchMargin, -swatchMargin);
    painter.drawRoundedRect(swatch.adjusted(0.5, 0.5, -0.5, -0.5), swatchRadius, swatchRadius);
}

void ColorWellButton::choose() {
    if (dialog_ != nullptr) {
        dialog_->raise();
        dialog_->activateWindow();
        return;
    }
    dialog_ = new QColorDialog(color_, this);
    dialog_->setOption(QColorDialog::DontUseNativeDialog);
    dialog_->setAttribute(Qt::WA_DeleteOnClose);
    if (!accessibleName().isEmpty()) dialog_->setWindowTitle(accessibleName());
    connect(dialog_, &QColorDialog::colorSelected, this, [this](const QColor& color) {
        setColor(color);
        if (chosen) chosen();
    });
    // Some window managers give the focus back to no window that their taskbar leaves out. A window that goes itself
    // takes its dialog along, and gets none.
    connect(dialog_, &QColorDialog::finished, this, [this] {
        if (window()->isVisible()) window()->activateWindow();
    });
    dialog_->open();
}

}  // namespace orlamo::qt
