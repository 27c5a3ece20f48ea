#include "platform/qt/controls/QtCollectionView.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollArea>
#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/CollectionViewItem.h"
#include "platform/Log.h"
#include "platform/qt/controls/CollectionGrid.h"
#include "platform/qt/controls/ControlAdapter.h"
#include "platform/qt/controls/QtInterfaceView.h"

namespace orlamo::qt {

namespace {

// Of the selected item's highlight.
constexpr double inset = 2.5;  // points
constexpr double radius = 10;  // points
constexpr double opacity = 0.08;
constexpr double focusWidth = 2;  // points

class QtCollectionView final : public QObject, public ControlAdapter<CollectionView> {
public:
    explicit QtCollectionView(QWidget& widget) : ControlAdapter(widget) {
        const QVariant layout = widget.property("layout");
        hasFlowLayout_ = !layout.isValid() || layout.toString() == "flow";
        widget.installEventFilter(this);
        // Else the widget would delete the items' views before their controllers do.
        connect(&widget, &QObject::destroyed, this, [this] { items_.clear(); });
    }

    ~QtCollectionView() override {
        if (native() != nullptr) native()->removeEventFilter(this);
        items_.clear();
    }

    FlowLayout* flowLayout() override { return hasFlowLayout_ ? &layout_ : nullptr; }

    void setSelectable(bool selectable) override {
        isSelectable_ = selectable;
        if (native() != nullptr) native()->setFocusPolicy(selectable ? Qt::StrongFocus : Qt::NoFocus);
        if (!selectable) select(-1);
    }
    void setAllowsEmptySelection(bool allowed) override { allowsEmptySelection_ = allowed; }
    void setAllowsMultipleSelection(bool allowed) override {
        if (allowed) logLine("collection view: more than one selected item is not supported");
    }

    void setDataSource(CollectionViewDataSource& source) override {
        if (native() == nullptr) return;
        if (layout_.scrollDirection == FlowLayout::ScrollDirection::horizontal) {
            logLine("collection view: lines that scroll sideways are not supported");
        }
        items_.clear();
        itemsInSection_.clear();
        selected_ = -1;
        const int sections = source.numberOfSectionsInCollectionView(*this);
        for (int section = 0; section < sections; ++section) {
            const int count = source.numberOfItemsInSection(*this, section);
            itemsInSection_.push_back(std::max(count, 0));
            for (int i = 0; i < count; ++i) add(source.itemForRepresentedObjectAtIndexPath(*this, {section, i}));
        }
        arrangeItems();
        if (isSelectable_ && !allowsEmptySelection_ && !items_.empty()) select(0);
    }

private:
    void add(std::unique_ptr<CollectionViewItem> item) {
        if (item != nullptr) {
            QWidget& view = qt::native(item->view()).widget();
            view.setParent(native());
            view.show();
        }
        items_.push_back(std::move(item));
    }

    void arrangeItems() {
        grid_ = arrange(layout_, itemsInSection_, native()->width());
        for (std::size_t i = 0; i < items_.size(); ++i) {
            if (items_[i] != nullptr) qt::native(items_[i]->view()).widget().setGeometry(frame(i).toAlignedRect());
        }
        const int least = static_cast<int>(std::ceil(items_.empty() ? 0 : layout_.itemSize.width));
        native()->setMinimumSize(least, static_cast<int>(std::ceil(grid_.height)));
        native()->update();
    }

    QRectF frame(std::size_t item) const {
        const Rect& rect = grid_.frames[item];
        return {rect.x, rect.y, rect.width, rect.height};
    }

    void select(int item) {
        if (item == selected_ || (item < 0 && isSelectable_ && !allowsEmptySelection_)) return;
        selected_ = item;
        if (native() == nullptr) return;
        native()->update();
        scrollIntoSight(item);
    }

    // In whatever the view stands in.
    void scrollIntoSight(int item) {
        if (item < 0 || item >= static_cast<int>(items_.size())) return;
        const QRect rect = frame(static_cast<std::size_t>(item)).toAlignedRect();
        for (QWidget* around = native()->parentWidget(); around != nullptr; around = around->parentWidget()) {
            auto* const area = qobject_cast<QScrollArea*>(around);
            if (area == nullptr || area->widget() == nullptr) continue;
            const QRect place = rect.translated(native()->mapTo(area->widget(), QPoint()));
            // The upper end counts where not both do.
            area->ensureVisible(place.left(), place.bottom(), 0, 0);
            area->ensureVisible(place.left(), place.top(), 0, 0);
        }
    }

    void press(QPointF position) {
        const auto count = static_cast<int>(items_.size());
        int hit = 0;
        while (hit < count && !frame(static_cast<std::size_t>(hit)).contains(position)) ++hit;
        select(hit < count ? hit : -1);
    }

    // False: the key is somebody else's.
    bool pressKey(int key) {
        const auto last = static_cast<int>(items_.size()) - 1;
        if (last < 0) return false;
        const int from = selected_;
        const auto step = [&](int by) {
            const int to = from < 0 ? (by > 0 ? 0 : last) : from + by;
            if (to < 0 || to > last) return false;
            select(to);
            return true;
        };
        switch (key) {
            case Qt::Key_Down:
                return step(grid_.columns);
            case Qt::Key_Up:
                return step(-grid_.columns);
            case Qt::Key_Right:
                return step(1);
            case Qt::Key_Left:
                return step(-1);
            case Qt::Key_Home:
                select(0);
                return true;
            case Qt::Key_End:
                select(last);
                return true;
            case Qt::Key_Space:
                select(from < 0 ? 0 : -1);
                return true;
            default:
                return false;
        }
    }

    void paintHighlight() {
        const QWidget& widget = *native();
        const bool isFocused = widget.hasFocus() && widget.window()->testAttribute(Qt::WA_KeyboardFocusChange);
        if (grid_.frames.empty() || (selected_ < 0 && !isFocused)) return;
        QPainter painter(native());
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF rect =
            frame(static_cast<std::size_t>(std::max(selected_, 0))).adjusted(inset, inset, -inset, -inset);
        QColor fill = widget.palette().color(QPalette::Text);
        fill.setAlphaF(float(opacity));
        painter.setBrush(selected_ >= 0 ? QBrush(fill) : QBrush(Qt::NoBrush));
        painter.setPen(isFocused ? QPen(widget.palette().color(QPalette::Highlight), focusWidth) : QPen(Qt::NoPen));
        painter.drawRoundedRect(rect, radius, radius);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        switch (event->type()) {
            case QEvent::Resize:
                arrangeItems();
                break;
            case QEvent::Paint:
                paintHighlight();
                break;
            case QEvent::FocusIn:
                if (QApplication::mouseButtons() == Qt::NoButton) scrollIntoSight(std::max(selected_, 0));
                [[fallthrough]];
            case QEvent::FocusOut:
                native()->update();
                break;
            case QEvent::MouseButtonPress:
                if (!isSelectable_ || static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton) break;
                press(static_cast<QMouseEvent*>(event)->position());
                return true;
            case QEvent::KeyPress:
                return isSelectable_ && pressKey(static_cast<QKeyEvent*>(event)->key());
            default:
                break;
        }
        return false;
    }

    FlowLayout layout_;
    bool hasFlowLayout_ = true;
    bool isSelectable_ = false;
    bool allowsEmptySelection_ = true;
    std::vector<int> itemsInSection_;
    std::vector<std::unique_ptr<CollectionViewItem>> items_;
    CollectionGrid grid_;
    int selected_ = -1;
};

}  // namespace

std::shared_ptr<CollectionView> makeCollectionView(QWidget& widget) {
    return std::make_shared<QtCollectionView>(widget);
}

}  // namespace orlamo::qt
