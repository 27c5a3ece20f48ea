#include "platform/Window.h"

#include <utility>

#include "platform/ViewController.h"
#include "platform/WindowController.h"

namespace orlamo {

namespace {

bool anyNeedsDisplay(const View& view) {
    if (view.needsDisplay()) return true;
    for (const auto& subview : view.subviews()) {
        if (anyNeedsDisplay(*subview)) return true;
    }
    return false;
}

}  // namespace

Window::Window(Rect contentRect, unsigned styleMask, Backing backing, Defer defer)
    : frame_(contentRect), styleMask_(styleMask), backing_(backing), defer_(defer) {}

Window::~Window() {
    if (windowController != nullptr) windowController->setWindow(nullptr);
    host_.reset();
    if (contentViewController_ != nullptr) contentViewController_->view().window = nullptr;
}

void Window::setContentViewController(ViewController& controller) {
    contentViewController_ = &controller;
    controller.view().window = this;
}

void Window::setContentView(std::unique_ptr<View> view) {
    contentView_ = std::move(view);
    if (contentView_ == nullptr) return;
    contentView_->window_ = this;
    contentView_->setFrame({0, 0, frame_.width, frame_.height});
    viewNeedsDisplay();
}

void Window::setContentSize(Size size) {
    setFrame({frame_.x, frame_.maxY() - size.height, size.width, size.height});
}

void Window::center() {
    const auto screen = WindowSystem::shared().mainScreen();
    if (!screen) return;
    setFrame({screen->frame.x + (screen->frame.width - frame_.width) / 2,
              screen->frame.y + (screen->frame.height - frame_.height) / 2, frame_.width, frame_.height});
}

void Window::orderFront() {
    if (host_ == nullptr) host_ = WindowSystem::shared().createHost(*this);
    isVisible_ = true;
    host_->orderFront();
}

void Window::makeKeyAndOrderFront() {
    orderFront();
    host_->makeKey();
}

void Window::performClose() {
    if (windowController == nullptr || windowController->windowShouldClose()) close();
}

void Window::close() {
    if (!isVisible_) return;
    isVisible_ = false;
    host_->orderOut();
    if (isReleasedWhenClosed) host_.reset();
}

void Window::display(GraphicsContext& context) {
    if (contentView_ != nullptr) contentView_->display(context);
}

bool Window::needsDisplay() const {
    return contentView_ != nullptr && anyNeedsDisplay(*contentView_);
}

void Window::pointerMoved(Point point) {
    if (contentView_ != nullptr) contentView_->trackPointer(&point);
}

void Window::pointerLeft() {
    if (contentView_ != nullptr) contentView_->trackPointer(nullptr);
}

void Window::pointerPressed(Point point) {
    if (contentView_ == nullptr) return;
    if (View* const view = contentView_->hitTest(point)) view->mouseDown({point});
}

void Window::viewNeedsDisplay() {
    if (isVisible_ && host_ != nullptr) host_->setNeedsDisplay();
}

void Window::setFrame(const Rect& frame) {
    if (frame == frame_) return;
    frameChangedByUser(frame);
    if (host_ != nullptr) host_->frameChanged(frame);
}

void Window::frameChangedByUser(const Rect& frame) {
    frame_ = frame;
    if (contentView_ != nullptr) contentView_->setFrame({0, 0, frame.width, frame.height});
}

}  // namespace orlamo
