#pragma once

#include <memory>
#include <string>

#include "platform/Color.h"
#include "platform/View.h"
#include "platform/WindowSystem.h"

namespace orlamo {

class ViewController;
class WindowController;

/// A window of plain C++: its properties and its view tree. Its host (from WindowSystem) shows it.
class Window {
public:
    static constexpr unsigned borderless = 0;
    static constexpr unsigned titled = 1;
    static constexpr unsigned closable = 2;
    static constexpr unsigned miniaturizable = 4;
    static constexpr unsigned resizable = 8;
    enum class Backing { retained = 0, nonretained = 1, buffered = 2 };
    enum class Defer { no, yes };

    static constexpr int normalLevel = 0;
    static constexpr int statusLevel = 25;

    /// `contentRect` in screen points.
    Window(Rect contentRect, unsigned styleMask, Backing backing, Defer defer);
    virtual ~Window();
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    unsigned styleMask() const { return styleMask_; }
    Backing backing() const { return backing_; }
    Defer defer() const { return defer_; }
    const Rect& frame() const { return frame_; }
    bool isVisible() const { return isVisible_; }

    std::string title;
    Size minSize;            // points, of the content
    std::string appearance;  // an NSAppearanceName text; empty follows the desktop
    int level = normalLevel;
    bool isOpaque = true;
    bool hasShadow = true;
    bool hidesOnDeactivate = false;
    bool isReleasedWhenClosed = true;
    Color backgroundColor = Color::white(1);
    WindowController* windowController = nullptr;

    View* contentView() const { return contentView_.get(); }
    /// Takes the view and sizes it to the content area.
    void setContentView(std::unique_ptr<View> view);

    /// Shows the controller's view instead of a content view; the controller must outlive the window.
    void setContentViewController(ViewController& controller);
    ViewController* contentViewController() const { return contentViewController_; }

    /// Keeps the upper left corner, as windows do. Sizes the content view too.
    void setContentSize(Size size);
    /// Centres the window on the main screen; without one it stays.
    void center();
    void orderFront();
    /// To the front, with the input focus.
    void makeKeyAndOrderFront();
    void close();
    /// What the user's close button does: the controller may refuse.
    void performClose();

    // For the host.
    /// The user moved or sized the window.
    void frameChangedByUser(const Rect& frame);
    /// Draws the content view; nothing while there is none.
    void display(GraphicsContext& context);
    bool needsDisplay() const;
    /// Pointer positions are in window points. The pointer left the window: leave without a position.
    void pointerMoved(Point point);
    void pointerLeft();
    void pointerPressed(Point point);

private:
    friend class View;
    void viewNeedsDisplay();
    void setFrame(const Rect& frame);

    Rect frame_;
    unsigned styleMask_;
    Backing backing_;
    Defer defer_;
    bool isVisible_ = false;
    std::unique_ptr<View> contentView_;
    ViewController* contentViewController_ = nullptr;
    std::unique_ptr<WindowHost> host_;
};

}  // namespace orlamo
