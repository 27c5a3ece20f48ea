#pragma once

#include <string_view>
#include <vector>

#include "platform/Color.h"
#include "platform/Geometry.h"

namespace orlamo {

/// An outline in the coordinates of the view being drawn, y upward. Angles are degrees, counterclockwise from the
/// positive x axis. Filled with the non-zero rule; an open outline is closed by filling.
struct Path {
    enum class Verb { move, line, arc, roundedRect, close };
    struct Element {
        Verb verb;
        Point point;             // move, line: the point; arc: the centre
        double radius = 0;       // arc, roundedRect
        double startAngle = 0;   // arc
        double endAngle = 0;     // arc
        bool clockwise = false;  // arc
        Rect rect;               // roundedRect
        bool operator==(const Element&) const = default;
    };
    std::vector<Element> elements;
    bool operator==(const Path&) const = default;

    Path& moveTo(Point p);
    Path& lineTo(Point p);
    /// Joins the current point to the arc's start with a line, as outlines do.
    Path& arc(Point centre, double radius, double startAngle, double endAngle, bool clockwise);
    Path& close();
    static Path roundedRect(Rect rect, double radius);
};

class View;

/// What a view draws on. Coordinates are those of the view whose drawRect runs.
class GraphicsContext {
public:
    virtual ~GraphicsContext() = default;

    virtual void fill(const Path& path, const Color& color) = 0;

    /// One line of text in the system font at `pointSize` points; `origin` is the lower left corner of its line box.
    virtual void drawText(std::string_view text, int pointSize, const Color& color, Point origin) = 0;

    /// Moves the origin for what is drawn until the matching popOrigin: how a superview places a subview.
    virtual void pushOrigin(Point origin) = 0;
    virtual void popOrigin() = 0;

    /// As pushOrigin with the origin of the subview's frame. A context that keeps what is drawn can ask the view for
    /// that origin once the pass is over: a view may move itself while it draws.
    virtual void pushView(const View& view);
};

}  // namespace orlamo
