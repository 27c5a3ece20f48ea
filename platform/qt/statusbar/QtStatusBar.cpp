#include "platform/qt/statusbar/QtStatusBar.h"

#include "platform/qt/statusbar/QtStatusItem.h"

namespace orlamo::qt {

std::unique_ptr<StatusItem> QtStatusBar::statusItemWithLength(double) {
    return std::make_unique<QtStatusItem>(connection_);
}

}  // namespace orlamo::qt
