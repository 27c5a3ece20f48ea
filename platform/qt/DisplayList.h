#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/GraphicsContext.h"

namespace orlamo::qt {

/// Keeps what one drawing pass draws, to be painted as often as the window system asks.
class DisplayList : public GraphicsContext {
public:
    struct Item {
        std::size_t space = 0;  // index of the coordinate system it was drawn in
        Color color;
        Path path;  // a fill; empty for a text
        int pointSize = 0;
        std::size_t textBegin = 0;
        std::size_t textLength = 0;
        Point origin;  // of the text
    };

    void fill(const Path& path, const Color& color) override;
    void drawText(std::string_view text, int pointSize, const Color& color, Point origin) override;
    void pushOrigin(Point origin) override;
    void popOrigin() override;
    void pushView(const View& view) override;

    /// Forgets everything, for the next pass.
    void clear();
    /// The pass is over: views stand where they will be painted. Uses the views for the last time.
    void finish();

    const std::vector<Item>& items() const { return items_; }
    std::string_view text(const Item& item) const;
    /// Where the item's coordinates start, in window points. After finish.
    Point origin(const Item& item) const { return spaces_[item.space].origin; }

private:
    struct Space {
        std::size_t parent = 0;
        const View* view = nullptr;  // whose frame's origin it is, else `origin`
        Point origin;
    };

    void push(const View* view, Point origin);

    std::vector<Item> items_;
    std::string texts_;
    std::vector<Space> spaces_{Space{}};
    std::size_t current_ = 0;
};

}  // namespace orlamo::qt
