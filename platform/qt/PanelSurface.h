#pragma once

#include <QBackingStore>
#include <QEnterEvent>
#include <QRegion>
#include <QWindow>
#include <functional>

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
        /// A screen came, went or changed, or another one is the primary one now.
        virtual void screensChanged() = 0;
        /// The turn of the event loop that callBack asked for.
        virtual void calledBack() = 0;
    };
    enum class Look { opaque, translucent };
    enum class Stacking { normal, aboveAll };

    PanelSurface(Listener& listener, Look look, Stacking stacking);

    /// Hears nothing any more; deletes itself when the event that is being handled is over.
    void retire();

    /// Paints a part of the window, in device pixels, and shows it. `paint` gets that part or somewhat more, and must
    /// colour all of it. The rest holds what was painted last, but nothing after a change of the window's size.
    void show(const QRegion& part, const std::function<void(QPainter&, const QRegion&)>& paint);
    /// Shows again what was painted last.
    void showAgain();

    void callBack();

protected:
    bool event(QEvent* event) override;
    bool nativeEvent(const QByteArray& kind, void* message, qintptr* result) override;

private:
    void watchScreens();
    void pointerEntered(const QEnterEvent& event);

    Listener* listener_;
    QBackingStore store_;
    QPoint pointerWhenShown_;
};

}  // namespace orlamo::qt
