#include "platform/qt/controls/QtScrollView.h"

#include <QApplication>
#include <QEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/qt/controls/ControlAdapter.h"
#include "platform/qt/controls/DocumentSize.h"
#include "platform/qt/controls/QtInterfaceView.h"

namespace orlamo::qt {

namespace {

constexpr double pointsPerWheelLine = 16;
constexpr double wheelUnitsPerStep = 120;
constexpr int focusMargin = 16;  // points around a control that is scrolled in

// Points that a turn of the wheel scrolls, y downward.
Point scrolledBy(const QWheelEvent& wheel) {
    if (!wheel.pixelDelta().isNull()) return {double(-wheel.pixelDelta().x()), double(-wheel.pixelDelta().y())};
    const double points = QApplication::wheelScrollLines() * pointsPerWheelLine / wheelUnitsPerStep;
    return {-wheel.angleDelta().x() * points, -wheel.angleDelta().y() * points};
}

class QtScrollView final : public QObject, public ControlAdapter<ScrollView, QScrollArea> {
public:
    QtScrollView(QScrollArea& area, std::unique_ptr<ScrollViewBehavior> behavior)
        : ControlAdapter(area), behavior_(std::move(behavior)) {
        area.setWidgetResizable(false);
        area.setFocusPolicy(Qt::NoFocus);
        area.viewport()->installEventFilter(this);
        // The area takes what it still holds with it.
        connect(&area, &QObject::destroyed, this, [this] {
            if (document_ && !isFromFile_) document_->setParent(nullptr);
        });
        connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { showFocus(now); });
        isFromFile_ = area.widget() != nullptr;
        if (isFromFile_) hold(*area.widget());
    }

    ~QtScrollView() override {
        if (native() != nullptr) native()->viewport()->removeEventFilter(this);
        if (!isFromFile_) release();
    }

    void setVerticalScrollElasticity(Elasticity) override {}

    void setDocumentView(InterfaceView& view) override {
        QScrollArea* const area = native();
        QWidget& document = qt::native(view).widget();
        if (area == nullptr || area->widget() == &document) return;
        release();
        area->setWidget(&document);
        hold(document);
        document.show();
    }

    Rect documentViewBounds() const override {
        return document_ ? Rect{0, 0, double(document_->width()), double(document_->height())} : Rect{};
    }

    void scrollDocumentTo(Point point) override {
        if (native() == nullptr) return;
        scrollTo(point.x, documentViewBounds().height - point.y);
    }

    void scrollBy(Point delta) override {
        if (native() == nullptr) return;
        scrollTo(native()->horizontalScrollBar()->value() + delta.x, native()->verticalScrollBar()->value() + delta.y);
    }

private:
    void scrollTo(double x, double y) {
        native()->horizontalScrollBar()->setValue(static_cast<int>(std::lround(x)));
        native()->verticalScrollBar()->setValue(static_cast<int>(std::lround(y)));
    }

    void hold(QWidget& document) {
        document_ = &document;
        document.installEventFilter(this);
        document.setAutoFillBackground(false);  // the area sets it
        fit();
    }

    // Lets the document go, alive, to its owner; the file's own content stays alive here.
    void release() {
        if (!document_) return;
        document_->removeEventFilter(this);
        document_ = nullptr;
        QWidget* const taken = native() != nullptr ? native()->takeWidget() : nullptr;
        if (std::exchange(isFromFile_, false)) fileContent_.reset(taken);
    }

    void fit() {
        if (!document_ || native() == nullptr) return;
        const int width = std::max(native()->viewport()->width(), neededWidth(*document_));
        document_->resize(width, neededHeight(*document_, width));
    }

    void showFocus(QWidget* now) {
        // What is pressed is in sight.
        if (!document_ || now == nullptr || QApplication::mouseButtons() != Qt::NoButton) return;
        // What is larger sees to its parts itself.
        if (now->height() > native()->viewport()->height()) return;
        if (document_->isAncestorOf(now)) native()->ensureWidgetVisible(now, focusMargin, focusMargin);
    }

    bool eventFilter(QObject* object, QEvent* event) override {
        if (object == document_) {
            if (event->type() == QEvent::LayoutRequest) fit();
            return false;
        }
        if (event->type() == QEvent::Resize) {
            fit();
            return false;
        }
        if (event->type() != QEvent::Wheel || behavior_ == nullptr) return false;
        return turnWheel(*static_cast<QWheelEvent*>(event));
    }

    bool turnWheel(QWheelEvent& wheel) {
        const auto place = [this] {
            return QPoint(native()->horizontalScrollBar()->value(), native()->verticalScrollBar()->value());
        };
        const QPoint before = place();
        behavior_->scrollWheel(*this, scrolledBy(wheel));
        wheel.setAccepted(place() != before);
        return true;
    }

    std::unique_ptr<ScrollViewBehavior> behavior_;
    QPointer<QWidget> document_;
    bool isFromFile_ = false;  // what the interface file put into the area
    std::unique_ptr<QWidget> fileContent_;
};

}  // namespace

std::shared_ptr<ScrollView> makeScrollView(QScrollArea& area, std::unique_ptr<ScrollViewBehavior> behavior) {
    return std::make_shared<QtScrollView>(area, std::move(behavior));
}

}  // namespace orlamo::qt
