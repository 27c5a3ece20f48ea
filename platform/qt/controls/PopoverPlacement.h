#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include "platform/Controls.h"

namespace orlamo::qt {

/// Where a popover stands: screen coordinates of the toolkit, y downward.
struct PopoverPlacement {
    static constexpr int arrowLength = 9;
    static constexpr int cornerRadius = 10;

    QRect frame;    // with the arrow
    RectEdge edge;  // of the anchor, beside which the popover stands
    QPoint tip;     // of the arrow, on the frame's border
};

/// Beside the preferred edge of the anchor, else beside the opposite one where only that has the room; always within
/// `screen` where it fits there at all. maxY is the upper edge.
PopoverPlacement placePopover(const QRect& anchor, QSize content, RectEdge preferredEdge, const QRect& screen);

}  // namespace orlamo::qt
