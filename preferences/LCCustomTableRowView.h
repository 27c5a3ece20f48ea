#pragma once

#include "platform/TableRowView.h"

namespace orlamo {

/// A row of the tab list: dark while selected, light while the pointer is over it.
class LCCustomTableRowView : public TableRowView {
public:
    bool mouseInside = false;

    void updateTrackingAreas() override;
    void mouseEntered(const MouseEvent& event) override;
    void mouseExited(const MouseEvent& event) override;
    void drawSelectionInRect(GraphicsContext& context, const Rect& dirty) override;
    void drawBackgroundInRect(GraphicsContext& context, const Rect& dirty) override;

private:
    void fillRow(GraphicsContext& context, const Color& color) const;
};

}  // namespace orlamo
