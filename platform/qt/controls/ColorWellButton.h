#pragma once

#include <QColor>
#include <QPointer>
#include <QPushButton>
#include <functional>

class QColorDialog;

namespace orlamo::qt {

/// Shows a colour; a press lets the user choose another one in a dialog beside the running program.
class ColorWellButton : public QPushButton {
public:
    explicit ColorWellButton(QWidget* parent = nullptr);

    QColor color() const { return color_; }
    void setColor(const QColor& color);

    /// After the user chose a colour.
    std::function<void()> chosen;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void choose();

    QColor color_ = Qt::black;
    QPointer<QColorDialog> dialog_;
};

}  // namespace orlamo::qt
