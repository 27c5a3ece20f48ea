#include "platform/qt/controls/PopoverPlacement.h"

#include <algorithm>
#include <utility>

namespace orlamo::qt {

namespace {

constexpr int gap = 2;  // points between the anchor and the arrow's tip

RectEdge opposite(RectEdge edge) {
    switch (edge) {
        case RectEdge::minX:
            return RectEdge::maxX;
        case RectEdge::maxX:
            return RectEdge::minX;
        case RectEdge::minY:
            return RectEdge::maxY;
        default:
            return RectEdge::minY;
    }
}

bool isVertical(RectEdge edge) {
    return edge == RectEdge::minY || edge == RectEdge::maxY;
}

// Between the anchor's edge and the screen's.
int room(const QRect& anchor, RectEdge edge, const QRect& screen) {
    switch (edge) {
        case RectEdge::minX:
            return anchor.left() - screen.left();
        case RectEdge::maxX:
            return screen.right() - anchor.right();
        case RectEdge::maxY:
            return anchor.top() - screen.top();
        default:
            return screen.bottom() - anchor.bottom();
    }
}

// As near to `wanted` as keeps `length` within the range from `low`; at `low` when it does not fit.
int within(int wanted, int length, int low, int range) {
    return std::max(low, std::min(wanted, low + range - length));
}

}  // namespace

PopoverPlacement placePopover(const QRect& anchor, QSize content, RectEdge preferredEdge, const QRect& screen) {
    const bool vertical = isVertical(preferredEdge);
    const QSize size =
        content + (vertical ? QSize(0, PopoverPlacement::arrowLength) : QSize(PopoverPlacement::arrowLength, 0));
    const int needed = (vertical ? size.height() : size.width()) + gap;
    RectEdge edge = preferredEdge;
    if (room(anchor, edge, screen) < needed && room(anchor, opposite(edge), screen) >= needed) edge = opposite(edge);

    const QPoint middle = anchor.center();
    QPoint corner(middle.x() - size.width() / 2, middle.y() - size.height() / 2);
    if (edge == RectEdge::maxY) corner.setY(anchor.top() - gap - size.height());
    if (edge == RectEdge::minY) corner.setY(anchor.bottom() + 1 + gap);
    if (edge == RectEdge::minX) corner.setX(anchor.left() - gap - size.width());
    if (edge == RectEdge::maxX) corner.setX(anchor.right() + 1 + gap);
    const QRect frame(within(corner.x(), size.width(), screen.left(), screen.width()),
                      within(corner.y(), size.height(), screen.top(), screen.height()), size.width(), size.height());

    // The arrow keeps clear of the rounded corners.
    const int clear = PopoverPlacement::cornerRadius + PopoverPlacement::arrowLength;
    const auto along = [clear](int wanted, int start, int length) {
        return std::max(start + std::min(clear, length / 2), std::min(wanted, start + length - clear));
    };
    QPoint tip(along(middle.x(), frame.left(), frame.width()), along(middle.y(), frame.top(), frame.height()));
    if (edge == RectEdge::maxY) tip.setY(frame.bottom() + 1);
    if (edge == RectEdge::minY) tip.setY(frame.top());
    if (edge == RectEdge::minX) tip.setX(frame.right() + 1);
    if (edge == RectEdge::maxX) tip.setX(frame.left());
    return {frame, edge, tip};
}

}  // namespace orlamo::qt
