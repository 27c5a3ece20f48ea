#include "platform/qt/controls/QtInterfaceView.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <utility>

#include "platform/qt/controls/DocumentSize.h"

namespace orlamo::qt {

QtInterfaceView::QtInterfaceView(std::unique_ptr<QWidget> root, InterfaceOwner& owner)
    : root_(root.release()), owner_(owner) {
    root_->installEventFilter(this);
}

QtInterfaceView::~QtInterfaceView() {
    // Nobody is told: the owner is about to go, too.
    if (root_) root_->removeEventFilter(this);
    controls_.clear();
    delete root_;
}

Size QtInterfaceView::size() const {
    if (!root_) return {};
    const QSize size = root_->size().expandedTo(neededSize(*root_));
    return {double(size.width()), double(size.height())};
}

bool QtInterfaceView::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
        case QEvent::Show:
            if (event->spontaneous() || std::exchange(hasAppeared_, true)) break;
            applyLayer();
            owner_.viewWillAppear();
            break;
        case QEvent::Hide:
            if (event->spontaneous() || !std::exchange(hasAppeared_, false)) break;
            owner_.viewWillDisappear();
            break;
        case QEvent::Resize:
            if (hasAppeared_) applyLayer();
            break;
        case QEvent::Paint:
            paintLayer();
            break;
        default:
            break;
    }
    return false;
}

namespace {

QPainterPath outline(const QWidget& widget, double radius) {
    QPainterPath path;
    path.addRoundedRect(QRectF(widget.rect()), radius, radius);
    return path;
}

}  // namespace

// A window's own view is cut by the window, which can do it smoothly.
void QtInterfaceView::applyLayer() {
    const bool cuts = wantsLayer && layer.masksToBounds && layer.cornerRadius > 0 && window == nullptr;
    if (cuts) {
        root_->setMask(outline(*root_, layer.cornerRadius).toFillPolygon().toPolygon());
    } else {
        root_->clearMask();
    }
}

void QtInterfaceView::paintLayer() {
    if (!wantsLayer || layer.backgroundColor.alpha <= 0) return;
    const Color& color = layer.backgroundColor;
    QPainter painter(root_);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(layer.opacity);
    painter.fillPath(outline(*root_, layer.cornerRadius),
                     QColor::fromRgbF(float(color.red), float(color.green), float(color.blue), float(color.alpha)));
}

}  // namespace orlamo::qt
