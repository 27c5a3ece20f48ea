#include "platform/InterfaceWindowController.h"

#include <utility>

namespace orlamo {

InterfaceWindowController::InterfaceWindowController(std::string interfaceName,
                                                     std::unique_ptr<ViewController> contentViewController)
    : interfaceName_(std::move(interfaceName)), content_(std::move(contentViewController)) {}

// The window goes before the view that it shows.
InterfaceWindowController::~InterfaceWindowController() {
    setWindow(nullptr);
    ownWindow_.reset();
}

void InterfaceWindowController::showWindow() {
    if (ownWindow_ == nullptr) loadWindow();
    ownWindow_->makeKeyAndOrderFront();
}

void InterfaceWindowController::loadWindow() {
    const WindowDescription description = InterfaceFiles::shared().window(interfaceName_);
    const Rect content{0, 0, description.contentSize.width, description.contentSize.height};
    ownWindow_ =
        std::make_unique<Window>(content, description.styleMask, Window::Backing::buffered, Window::Defer::yes);
    ownWindow_->title = description.title;
    ownWindow_->minSize = description.minSize;
    ownWindow_->isReleasedWhenClosed = false;
    setWindow(ownWindow_.get());
    ownWindow_->setContentViewController(*content_);
    windowDidLoad();
}

}  // namespace orlamo
