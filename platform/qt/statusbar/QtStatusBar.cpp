#include "platform/qt/statusbar/QtStatusBar.h"

#include "platform/qt/statusbar/QtStatusItem.h"

namespace orlamo::qt {

std::unique_ptr<StatusItem> QtStatusBar::statusItemWithLength(double) {
    return std::make_unique<QtStatusItem>(connection_, items_);
}

void QtStatusBar::sessionBusReturned() {
    for (QtStatusItem* const item : *items_) item->connectToBus();
}

}  // namespace orlamo::qt
