#include "platform/ViewController.h"

namespace orlamo {

InterfaceView& ViewController::view() {
    if (view_ == nullptr) {
        view_ = InterfaceFiles::shared().load(interfaceName_, *this);
        viewDidLoad();
    }
    return *view_;
}

}  // namespace orlamo
