#pragma once

#include <QImage>
#include <QPointF>
#include <QRegion>
#include <memory>

#include "platform/Window.h"
#include "platform/WindowSystem.h"
#include "platform/qt/DisplayList.h"
#include "platform/qt/PanelSurface.h"
#include "platform/qt/ScreenCapture.h"

namespace orlamo::qt {

class QtApplication;
class TextCache;

/// Shows one borderless window. A drawing pass records what the views draw; the record is painted, flipped, as often
/// as the window system asks. Native resources exist from orderFront to orderOut.
class QtWindowHost final : public WindowHost, private PanelSurface::Listener {
public:
    QtWindowHost(Window& window, TextCache& texts, QtApplication& application);
    ~QtWindowHost() override;

    void frameChanged(const Rect& frame) override;
    void orderFront() override;
    void orderOut() override;
    void setNeedsDisplay() override;

private:
    struct Retire {
        void operator()(PanelSurface* surface) const { surface->retire(); }
    };

    void exposed() override;
    void pointerMoved(QPointF position) override;
    void pointerLeft() override;
    void pointerPressed(QPointF position) override;
    void calledBack() override;
    void screensChanged() override;

    void runPass();
    void scheduleUpdate();
    bool place();
    void makeBackdrop();
    void paintAll();
    void paintChanges();
    void paint(const QRegion& part);
    QPoint cutPixels() const;
    PixelRect nativePixels() const;
    Point toWindow(QPointF position) const;

    Window& window_;
    TextCache& texts_;
    QtApplication& application_;
    DisplayList list_;   // of the last pass
    DisplayList shown_;  // of the pass before, until its picture is brought up to date
    std::unique_ptr<PanelSurface, Retire> surface_;
    ScreenCapture capture_;
    QImage backdrop_;
    QRect whole_;       // the window's frame in Qt's coordinates
    QRect native_;      // the native window's, as it was placed last
    QPoint cut_;        // from its upper left corner to the native window's, when that shows only a part
    double scale_ = 1;  // of what was painted last
    bool isComposited_ = false;
    bool inPass_ = false;
    bool updateIsDue_ = false;
};

}  // namespace orlamo::qt
