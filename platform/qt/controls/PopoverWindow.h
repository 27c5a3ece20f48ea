#pragma once

#include <QPainterPath>
#include <QPointer>
#include <QWidget>

#include "platform/qt/controls/PopoverPlacement.h"

namespace orlamo::qt {

/// The popover's native window: an outline with an arrow around a widget that is somebody else's.
class PopoverWindow : public QWidget {
public:
    explicit PopoverWindow(Popover::Behavior behavior);
    ~PopoverWindow() override;

    Popover::Behavior behavior() const { return behavior_; }
    /// `rect` in the anchor's coordinates, y downward. The anchor gets the keyboard back when the window goes.
    void showBeside(QWidget& anchor, const QRect& rect, RectEdge preferredEdge, QWidget& content, QSize contentSize);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void releaseContent();
    QRect body() const;
    QPainterPath outline() const;

    Popover::Behavior behavior_;
    PopoverPlacement placement_;
    QRect anchorRect_;  // on the screen
    QPointer<QWidget> anchor_;
    QPointer<QWidget> content_;
};

}  // namespace orlamo::qt
