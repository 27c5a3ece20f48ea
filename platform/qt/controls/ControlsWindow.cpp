#include "platform/qt/controls/ControlsWindow.h"

#include <QCloseEvent>
#include <QDialog>
#include <QGraphicsEffect>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QWindow>

namespace orlamo::qt {

namespace {

// Cuts smoothly, which a mask of whole pixels cannot.
class RoundedCorners : public QGraphicsEffect {
public:
    explicit RoundedCorners(double radius) : radius_(radius) {}

protected:
    void draw(QPainter* painter) override {
        QPoint offset;
        QPixmap picture = sourcePixmap(Qt::LogicalCoordinates, &offset);
        if (picture.isNull()) return;
        QPixmap cut(picture.size());
        cut.setDevicePixelRatio(picture.devicePixelRatio());
        cut.fill(Qt::transparent);
        QPainterPath outline;
        outline.addRoundedRect(QRectF({}, picture.deviceIndependentSize()), radius_, radius_);
        QPainter cutter(&cut);
        cutter.setRenderHint(QPainter::Antialiasing);
        cutter.fillPath(outline, Qt::black);
        cutter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        cutter.drawPixmap(0, 0, picture);
        cutter.end();
        painter->drawPixmap(offset, cut);
    }

private:
    double radius_;
};

}  // namespace

ControlsWindow::ControlsWindow(Listener& listener, QWidget& content, Qt::WindowFlags flags, Backdrop backdrop)
    : QWidget(nullptr, flags), listener_(&listener), content_(&content) {
    setAttribute(Qt::WA_TranslucentBackground, backdrop == Backdrop::clear);
    content.setParent(this);
    content.show();
}

ControlsWindow::~ControlsWindow() {
    if (content_ != nullptr) content_->setParent(nullptr);
}

void ControlsWindow::roundCorners(double radius) {
    if (content_ != nullptr) content_->setGraphicsEffect(new RoundedCorners(radius));
}

void ControlsWindow::retire() {
    listener_ = nullptr;
    hide();  // first: a dialog that ends gives the focus back to a window that is to be seen
    for (QDialog* const dialog : findChildren<QDialog*>()) dialog->reject();
    if (content_ != nullptr) {
        content_->setGraphicsEffect(nullptr);
        content_->setParent(nullptr);
        content_ = nullptr;
    }
    deleteLater();
}

bool ControlsWindow::event(QEvent* event) {
    if (listener_ == nullptr) return QWidget::event(event);  // which may be the end of this object
    const bool answer = QWidget::event(event);
    if (event->type() == QEvent::Resize && content_ != nullptr) content_->setGeometry(rect());
    if (listener_ == nullptr) return answer;
    switch (event->type()) {
        case QEvent::Move:
        case QEvent::Resize:
            listener_->geometryChanged();
            break;
        case QEvent::WindowActivate:
            listener_->becameActive();
            break;
        default:
            break;
    }
    return answer;
}

void ControlsWindow::closeEvent(QCloseEvent* event) {
    if (listener_ != nullptr) listener_->userCloses();
    event->setAccepted(listener_ == nullptr);
}

// Without a title bar the window itself is what the user moves it by.
void ControlsWindow::mousePressEvent(QMouseEvent* event) {
    const bool moves = event->button() == Qt::LeftButton && windowFlags().testFlag(Qt::FramelessWindowHint);
    if (moves && windowHandle() != nullptr) windowHandle()->startSystemMove();
}

}  // namespace orlamo::qt
