#pragma once

#include <QBackingStore>
#include <QEnterEvent>
#include <QWindow>
#include <functional>
#include <vector>

class QPainter;

namespace orlamo::qt {

/// A borderless native window that shows frames as they are painted and says what happens to it. Positions are in its
/// own points, origin at the upper left corner.
class PanelSurface : public QWindow {
public:
    class Listener {
    public:
        virtual ~Listener() = default;
        /// The window system lost the content, or shows the window at another scale.
        virtual void exposed() = 0;
        virtual void pointerMoved(QPointF position) = 0;
        virtual void pointerLeft() = 0;
        virtual void pointerPressed(QPointF position) = 0;
        /// The turn of the event loop that callBack asked for.
        virtual void calledBack() = 0;
    };
    enum class Look { opaque, translucent };
    enum class Stacking { normal, aboveAll };

    PanelSurface(Listener& listener, Look look, Stacking stacking);

    /// Hears nothing any more; deletes itself when the event that is being handled is over.
    void retire();

    /// Paints some parts of the window and shows them. `paint` is called for each, or for somewhat more than it, and
    /// must colour all of that: a painter and a rectangle in device pixels. The rest holds what was painted last, but
    /// nothing after a change of the window's size.
    void show(const std::vector<QRect>& parts, const std::function<void(QPainter&, const QRect&)>& paint);
    /// Shows again what was painted last.
    void showAgain();

    void callBack();

    /// Waits until the window system has done what it was asked.
    static void synchronize();

protected:
    bool event(QEvent* event) override;

private:
    void pointerEntered(const QEnterEvent& event);

    Listener* listener_;
    QBackingStore store_;
    QPoint pointerWhenShown_;
};

}  // namespace orlamo::qt
