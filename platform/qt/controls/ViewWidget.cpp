#include "platform/qt/controls/ViewWidget.h"

#include <QHoverEvent>
#include <QPainter>
#include <utility>

namespace orlamo::qt {

ViewWidget::ViewWidget(std::unique_ptr<View> view, QWidget* parent) : QWidget(parent), view_(std::move(view)) {
    setAttribute(Qt::WA_Hover);
    view_->displayIsNeeded = [this] { update(); };
    view_->setFrame({0, 0, double(width()), double(height())});
}

ViewWidget::~ViewWidget() = default;

bool ViewWidget::event(QEvent* event) {
    switch (event->type()) {
        // These arrive while the pointer is over a child, too.
        case QEvent::HoverEnter:
        case QEvent::HoverMove: {
            const QPointF position = static_cast<QHoverEvent*>(event)->position();
            const Point point = toViewPoint(position, height(), devicePixelRatioF());
            view_->trackPointer(&point);
            break;
        }
        case QEvent::HoverLeave:
            view_->trackPointer(nullptr);
            break;
        default:
            break;
    }
    return QWidget::event(event);
}

void ViewWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter_.paint(painter, *view_);
}

void ViewWidget::resizeEvent(QResizeEvent* event) {
    view_->setFrame({0, 0, double(width()), double(height())});
    QWidget::resizeEvent(event);
}

}  // namespace orlamo::qt
