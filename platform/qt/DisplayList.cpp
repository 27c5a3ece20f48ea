#include "platform/qt/DisplayList.h"

#include "platform/View.h"

namespace orlamo::qt {

void DisplayList::fill(const Path& path, const Color& color) {
    if (path.elements.empty()) return;
    Item& item = items_.emplace_back();
    item.space = current_;
    item.color = color;
    item.path = path;
}

void DisplayList::drawText(std::string_view text, int pointSize, const Color& color, Point origin) {
    if (text.empty()) return;
    Item& item = items_.emplace_back();
    item.space = current_;
    item.color = color;
    item.pointSize = pointSize;
    item.textBegin = texts_.size();
    item.textLength = text.size();
    item.origin = origin;
    texts_ += text;
}

void DisplayList::push(const View* view, Point origin) {
    spaces_.push_back({current_, view, origin});
    current_ = spaces_.size() - 1;
}

void DisplayList::pushOrigin(Point origin) {
    push(nullptr, origin);
}

void DisplayList::pushView(const View& view) {
    push(&view, {});
}

void DisplayList::popOrigin() {
    current_ = spaces_[current_].parent;
}

void DisplayList::clear() {
    items_.clear();
    texts_.clear();
    spaces_.assign(1, Space{});
    current_ = 0;
}

void DisplayList::finish() {
    // A parent always stands before its children.
    for (std::size_t i = 1; i < spaces_.size(); ++i) {
        Space& space = spaces_[i];
        if (space.view != nullptr) space.origin = {space.view->frame().x, space.view->frame().y};
        space.view = nullptr;
        const Point parent = spaces_[space.parent].origin;
        space.origin = {parent.x + space.origin.x, parent.y + space.origin.y};
    }
    current_ = 0;
}

std::string_view DisplayList::text(const Item& item) const {
    return std::string_view(texts_).substr(item.textBegin, item.textLength);
}

}  // namespace orlamo::qt
