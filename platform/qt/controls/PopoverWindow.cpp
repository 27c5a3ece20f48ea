#include "platform/qt/controls/PopoverWindow.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

#include "platform/WindowEffects.h"

namespace orlamo::qt {

namespace {

constexpr QColor fillColor(0x2c, 0x2c, 0x30);
constexpr QColor borderColor(255, 255, 255, 46);

Qt::WindowFlags flagsFor(Popover::Behavior behavior) {
    const Qt::WindowFlags type = behavior == Popover::Behavior::transient ? Qt::Popup : Qt::Tool;
    return type | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint;
}

bool isComposited() {
    return WindowEffects::isInstalled() && WindowEffects::shared().isComposited();
}

}  // namespace

PopoverWindow::PopoverWindow(Popover::Behavior behavior) : QWidget(nullptr, flagsFor(behavior)), behavior_(behavior) {
    setAttribute(Qt::WA_QuitOnClose, false);
    setAttribute(Qt::WA_TranslucentBackground, isComposited());
}

PopoverWindow::~PopoverWindow() {
    hide();
    releaseContent();
}

void PopoverWindow::releaseContent() {
    if (content_ && content_->parentWidget() == this) content_->setParent(nullptr);
}

void PopoverWindow::showBeside(QWidget& anchor, const QRect& rect, RectEdge preferredEdge, QWidget& content,
                               QSize contentSize) {
    if (content_ != &content) releaseContent();
    content_ = &content;
    anchor_ = &anchor;
    if (content.parentWidget() != this) content.setParent(this);
    anchorRect_ = QRect(anchor.mapToGlobal(rect.topLeft()), rect.size());
    placement_ = placePopover(anchorRect_, contentSize, preferredEdge, anchor.screen()->availableGeometry());
    setAttribute(Qt::WA_NoMouseReplay, false);
    setGeometry(placement_.frame);
    content.setGeometry(body());
    if (testAttribute(Qt::WA_TranslucentBackground)) {
        clearMask();
    } else {
        setMask(outline().toFillPolygon().toPolygon());
    }
    content.show();
    show();
    raise();
    update();
    focusNextPrevChild(true);
}

// Where the content stands, in the window's coordinates.
QRect PopoverWindow::body() const {
    constexpr int arrow = PopoverPlacement::arrowLength;
    switch (placement_.edge) {
        case RectEdge::minX:
            return rect().adjusted(0, 0, -arrow, 0);
        case RectEdge::maxX:
            return rect().adjusted(arrow, 0, 0, 0);
        case RectEdge::minY:
            return rect().adjusted(0, arrow, 0, 0);
        default:
            return rect().adjusted(0, 0, 0, -arrow);
    }
}

QPainterPath PopoverWindow::outline() const {
    constexpr double arrow = PopoverPlacement::arrowLength;
    const QPointF tip = placement_.tip - placement_.frame.topLeft();
    const bool vertical = placement_.edge == RectEdge::minY || placement_.edge == RectEdge::maxY;
    const double inward = placement_.edge == RectEdge::maxY || placement_.edge == RectEdge::minX ? -1 : 1;
    // A little into the body, so that both are one.
    const double depth = inward * (arrow + 1);
    QPainterPath triangle(tip);
    triangle.lineTo(vertical ? tip + QPointF(-arrow - 1, depth) : tip + QPointF(depth, -arrow - 1));
    triangle.lineTo(vertical ? tip + QPointF(arrow + 1, depth) : tip + QPointF(depth, arrow + 1));
    triangle.closeSubpath();
    QPainterPath path;
    path.addRoundedRect(body(), PopoverPlacement::cornerRadius, PopoverPlacement::cornerRadius);
    return path.united(triangle);
}

void PopoverWindow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPainterPath path = outline();
    painter.fillPath(path, fillColor);
    painter.setClipPath(path);
    painter.strokePath(path, QPen(borderColor, 2));  // its inner half
}

void PopoverWindow::mousePressEvent(QMouseEvent* event) {
    event->accept();
    if (behavior_ != Popover::Behavior::transient || outline().contains(event->position())) return;
    // The press goes on to what it hit, but the anchor would only show the popover again.
    setAttribute(Qt::WA_NoMouseReplay, anchorRect_.contains(event->globalPosition().toPoint()));
    close();
}

void PopoverWindow::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel) && behavior_ != Popover::Behavior::applicationDefined) {
        close();
        return;
    }
    QWidget::keyPressEvent(event);
}

void PopoverWindow::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    if (anchor_ && anchor_->focusPolicy() != Qt::NoFocus) anchor_->setFocus(Qt::PopupFocusReason);
}

}  // namespace orlamo::qt
