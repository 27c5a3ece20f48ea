#include "platform/View.h"

#include <utility>

#include "platform/Window.h"

namespace orlamo {

View::View(Rect frame) : frame_(frame) {}

View::~View() = default;

void View::setFrame(const Rect& frame) {
    const Size oldSize = frame_.size();
    frame_ = frame;
    if (frame_.size() != oldSize) resizeSubviewsWithOldSize(oldSize);
}

Window* View::window() const {
    const View* view = this;
    while (view->superview_ != nullptr) view = view->superview_;
    return view->window_;
}

View& View::addSubview(std::unique_ptr<View> view) {
    View& added = *view;
    added.superview_ = this;
    subviews_.push_back(std::move(view));
    added.viewDidMoveToSuperview();
    added.setNeedsDisplay(true);
    return added;
}

void View::setNeedsDisplay(bool needed) {
    needsDisplay_ = needed;
    if (!needed) return;
    const View* root = this;
    while (root->superview_ != nullptr) root = root->superview_;
    if (root->window_ != nullptr) root->window_->viewNeedsDisplay();
    if (root->displayIsNeeded) root->displayIsNeeded();
}

void View::display(GraphicsContext& context) {
    needsDisplay_ = false;
    drawRect(context, bounds());
    for (const auto& view : subviews_) {
        context.pushView(*view);
        view->display(context);
        context.popOrigin();
    }
}

Point View::convertPointFromView(Point point, const View* from) const {
    for (const View* view = from; view != nullptr; view = view->superview_) {
        point.x += view->frame_.x;
        point.y += view->frame_.y;
    }
    for (const View* view = this; view != nullptr; view = view->superview_) {
        point.x -= view->frame_.x;
        point.y -= view->frame_.y;
    }
    return point;
}

View* View::hitTest(Point point) {
    const Point own{point.x - frame_.x, point.y - frame_.y};
    for (std::size_t i = subviews_.size(); i-- > 0;) {
        if (View* const hit = subviews_[i]->hitTest(own)) return hit;
    }
    return hearsPressAt(own) ? this : nullptr;
}

void View::trackPointer(const Point* pointInWindow) {
    for (std::size_t i = 0; i < trackingAreas_.size(); ++i) {
        TrackingArea& area = trackingAreas_[i];
        const MouseEvent event{pointInWindow != nullptr ? *pointInWindow : Point{}};
        const bool inside =
            pointInWindow != nullptr && area.rect.contains(convertPointFromView(*pointInWindow, nullptr));
        const unsigned options = area.options;
        const bool wasInside = std::exchange(area.pointerInside, inside);
        if ((options & TrackingArea::mouseEnteredAndExited) != 0 && inside != wasInside) {
            inside ? mouseEntered(event) : mouseExited(event);
        }
        if ((options & TrackingArea::mouseMoved) != 0 && inside) mouseMoved(event);
    }
    for (const auto& subview : subviews_) subview->trackPointer(pointInWindow);
}

void GraphicsContext::pushView(const View& view) {
    pushOrigin({view.frame().x, view.frame().y});
}

void View::drawRect(GraphicsContext&, const Rect&) {}

void View::resizeSubviewsWithOldSize(Size) {}

}  // namespace orlamo
