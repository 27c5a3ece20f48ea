#include "platform/InterfaceWindowController.h"

#include <algorithm>
#include <utility>

namespace orlamo {

namespace {

// Points that title bars, borders and panels commonly take.
constexpr double sideRoom = 16;
constexpr double barRoom = 96;

// A window never wants more than the screen has beside its title bar and the desktop's panels.
Size fitted(Size wanted, const Screen& screen) {
    return {std::min(wanted.width, screen.frame.width - sideRoom),
            std::min(wanted.height, screen.frame.height - barRoom)};
}

bool isOnAScreen(Point point) {
    return std::ranges::any_of(WindowSystem::shared().screens(),
                               [point](const Screen& screen) { return screen.frame.contains(point); });
}

}  // namespace

InterfaceWindowController::InterfaceWindowController(std::string interfaceName,
                                                     std::unique_ptr<ViewController> contentViewController)
    : interfaceName_(std::move(interfaceName)), content_(std::move(contentViewController)) {}

// The window goes before the view that it shows.
InterfaceWindowController::~InterfaceWindowController() {
    setWindow(nullptr);
    ownWindow_.reset();
}

void InterfaceWindowController::showWindow() {
    ownWindow_ == nullptr ? loadWindow() : returnToAScreen();
    ownWindow_->makeKeyAndOrderFront();
}

// The screen that the window was on may be gone since.
void InterfaceWindowController::returnToAScreen() {
    const Rect& frame = ownWindow_->frame();
    if (isOnAScreen({frame.x + frame.width / 2, frame.y + frame.height / 2})) return;
    const auto screen = WindowSystem::shared().mainScreen();
    if (!screen) return;
    ownWindow_->minSize = fitted(ownWindow_->minSize, *screen);
    ownWindow_->setContentSize(fitted(frame.size(), *screen));
    ownWindow_->center();
}

// A file that does not describe a window still leaves the user one to close. A window shows all of its view, also where
// the user's language or type needs more room than the file has.
WindowDescription InterfaceWindowController::describe() {
    WindowDescription description = InterfaceFiles::shared().window(interfaceName_);
    const Size view = content_->view().size();
    if (description.contentSize.width <= 0 || description.contentSize.height <= 0) {
        description.styleMask = Window::titled | Window::closable;
    }
    description.contentSize.width = std::max(description.contentSize.width, view.width);
    description.contentSize.height = std::max(description.contentSize.height, view.height);
    const auto screen = WindowSystem::shared().mainScreen();
    if (!screen) return description;
    description.contentSize = fitted(description.contentSize, *screen);
    description.minSize = fitted(description.minSize, *screen);
    return description;
}

void InterfaceWindowController::loadWindow() {
    const WindowDescription description = describe();
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
