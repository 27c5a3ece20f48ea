#include "platform/qt/statusbar/NotifierService.h"

#include "platform/RunLoop.h"

namespace orlamo::qt {

void NotifierService::setIcon(const QString& themeName, const IconPixmaps& pixmaps) {
    iconName_ = themeName;
    iconPixmap_ = pixmaps;
    emit NewIcon();
}

void NotifierService::Activate(int, int) {
    RunLoop::shared().asyncAfter(0, popUp_);
}

void NotifierService::SecondaryActivate(int x, int y) {
    Activate(x, y);
}

void NotifierService::ContextMenu(int x, int y) {
    Activate(x, y);
}

void NotifierService::Scroll(int, const QString&) {}

}  // namespace orlamo::qt
