#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/Geometry.h"
#include "platform/GraphicsContext.h"
#include "platform/Layer.h"

namespace orlamo {

class Window;

struct MouseEvent {
    Point locationInWindow;  // points, origin at the content area's lower left corner
};

/// Asks for pointer events over a rectangle of its view. Option bits are those of the platform this toolkit follows.
struct TrackingArea {
    static constexpr unsigned mouseEnteredAndExited = 0x01;
    static constexpr unsigned mouseMoved = 0x02;
    static constexpr unsigned activeAlways = 0x80;

    Rect rect;  // in the view's own coordinates
    unsigned options = 0;
    bool pointerInside = false;  // kept by the window
};

/// A rectangle of a window that draws itself and hears the pointer. Plain C++: a window's host gives it a context to
/// draw on and feeds it events. A view owns its subviews and does not clip to its bounds.
class View {
public:
    explicit View(Rect frame);
    virtual ~View();
    View(const View&) = delete;
    View& operator=(const View&) = delete;

    /// In the superview's coordinates.
    const Rect& frame() const { return frame_; }
    Rect bounds() const { return {0, 0, frame_.width, frame_.height}; }
    /// A change of size runs resizeSubviewsWithOldSize.
    void setFrame(const Rect& frame);

    View* superview() const { return superview_; }
    Window* window() const;
    const std::vector<std::unique_ptr<View>>& subviews() const { return subviews_; }
    View& addSubview(std::unique_ptr<View> view);

    /// Marks the view for the window's next display; the window tells its host.
    void setNeedsDisplay(bool needed);
    bool needsDisplay() const { return needsDisplay_; }
    /// Draws this view and its subviews and clears their marks.
    void display(GraphicsContext& context);

    /// From `from`'s coordinates, or the window's when it is null.
    Point convertPointFromView(Point point, const View* from) const;
    /// The deepest view under a point given in the superview's coordinates, or null.
    View* hitTest(Point point);

    bool wantsLayer = false;
    std::shared_ptr<Layer> layer;  // painted behind what the view draws; shared so that a view can keep its kind

    /// Whether y grows downward in what the view holds.
    virtual bool isFlipped() const { return false; }
    /// A property that an interface file sets; a key that the view does not know is false.
    using Attribute = std::variant<bool, double, std::string, Color>;
    virtual bool setValueForKey(const Attribute&, std::string_view /*key*/) { return false; }
    /// The file has set all of them.
    virtual void awakeFromNib() {}

    void addTrackingArea(const TrackingArea& area) { trackingAreas_.push_back(area); }
    std::vector<TrackingArea>& trackingAreas() { return trackingAreas_; }

    // For what hosts the view tree: a Window, or something whose coordinates then stand for a window's.
    /// Tells the tree where the pointer is, in the window's coordinates; null means outside.
    void trackPointer(const Point* pointInWindow);
    /// Asked of the tree's root whenever a view in it is marked.
    std::function<void()> displayIsNeeded;

    virtual void drawRect(GraphicsContext& context, const Rect& dirty);
    virtual void resizeSubviewsWithOldSize(Size oldSize);
    virtual void viewDidMoveToSuperview() {}
    virtual void mouseEntered(const MouseEvent&) {}
    virtual void mouseExited(const MouseEvent&) {}
    virtual void mouseMoved(const MouseEvent&) {}
    virtual void mouseDown(const MouseEvent&) {}

protected:
    /// Whether the view hears a press at a point of its own coordinates; its bounds unless it draws beyond them.
    virtual bool hearsPressAt(Point point) const { return bounds().contains(point); }

private:
    friend class Window;

    Rect frame_;
    View* superview_ = nullptr;
    Window* window_ = nullptr;  // set on the content view only
    std::vector<std::unique_ptr<View>> subviews_;
    std::vector<TrackingArea> trackingAreas_;
    bool needsDisplay_ = true;
};

}  // namespace orlamo
