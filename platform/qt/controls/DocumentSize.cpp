#include "platform/qt/controls/DocumentSize.h"

#include <QLayout>
#include <QWidget>
#include <algorithm>

namespace orlamo::qt {

int neededHeight(const QWidget& view, int width) {
    QLayout* const layout = view.layout();
    if (layout == nullptr) return std::max(view.height(), view.minimumHeight());
    layout->activate();
    const int height =
        layout->hasHeightForWidth() ? layout->totalHeightForWidth(width) : layout->totalSizeHint().height();
    return std::clamp(height, view.minimumHeight(), view.maximumHeight());
}

int neededWidth(const QWidget& view) {
    const int content = view.layout() != nullptr ? view.layout()->totalMinimumSize().width() : 0;
    return std::max(view.minimumWidth(), content);
}

QSize neededSize(QWidget& view) {
    // The theme decides how large texts are.
    view.ensurePolished();
    for (QWidget* const part : view.findChildren<QWidget*>()) part->ensurePolished();
    const int width = std::max(view.width(), neededWidth(view));
    return {width, neededHeight(view, width)};
}

}  // namespace orlamo::qt
