#include "platform/qt/QtWindowHost.h"

#include <QPainter>
#include <QRegion>
#include <QScreen>
#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/Log.h"
#include "platform/VisualEffectView.h"
#include "platform/qt/Backdrop.h"
#include "platform/qt/Damage.h"
#include "platform/qt/QtApplication.h"
#include "platform/qt/Replay.h"
#include "platform/qt/ScreenSpace.h"
#include "platform/qt/Synchronization.h"
#include "platform/qt/TextCache.h"

namespace orlamo::qt {

namespace {

// The window system ends at 32767 pixels, and a picture of that size costs more memory than the panel is worth.
constexpr double largestNativePixels = 8192;

const VisualEffectView* effectView(const Window& window) {
    return dynamic_cast<const VisualEffectView*>(window.contentView());
}

}  // namespace

QtWindowHost::QtWindowHost(Window& window, TextCache& texts, QtApplication& application)
    : window_(window), texts_(texts), application_(application) {}

QtWindowHost::~QtWindowHost() {
    orderOut();
}

void QtWindowHost::frameChanged(const Rect&) {
    if (!inPass_) scheduleUpdate();
}

void QtWindowHost::setNeedsDisplay() {
    scheduleUpdate();
}

void QtWindowHost::scheduleUpdate() {
    if (surface_ == nullptr || updateIsDue_) return;
    updateIsDue_ = true;
    surface_->callBack();
}

void QtWindowHost::runPass() {
    inPass_ = true;
    std::swap(list_, shown_);
    list_.clear();
    window_.display(list_);
    list_.finish();
    inPass_ = false;
}

void QtWindowHost::orderFront() {
    if (surface_ != nullptr) {
        surface_->raise();
        application_.windowCameToFront(surface_->winId());
        return;
    }
    runPass();
    isComposited_ = WindowEffects::isInstalled() && WindowEffects::shared().isComposited();
    capture_.clear();
    surface_.reset(new PanelSurface(
        *this, isComposited_ ? PanelSurface::Look::translucent : PanelSurface::Look::opaque,
        window_.level > Window::normalLevel ? PanelSurface::Stacking::aboveAll : PanelSurface::Stacking::normal));
    updateIsDue_ = false;
    native_ = {};
    place();
    surface_->create();
    makeBackdrop();
    // The picture follows the map in the same stream of requests: the window is never seen without it.
    surface_->setVisible(true);
    paintAll();
    synchronize();
    application_.windowCameToFront(surface_->winId());
    if (window_.needsDisplay()) scheduleUpdate();
}

void QtWindowHost::orderOut() {
    if (surface_ == nullptr) return;
    application_.windowWentAway(surface_->winId());
    surface_.reset();
    backdrop_ = {};
    capture_.clear();
}

void QtWindowHost::calledBack() {
    updateIsDue_ = false;
    const bool drawn = window_.needsDisplay();
    if (drawn) runPass();
    if (place()) {
        makeBackdrop();
        paintAll();
    } else if (drawn) {
        paintChanges();
    }
    if (window_.needsDisplay()) scheduleUpdate();
}

// Moves and sizes the native window as the frame says. True when that changed anything.
bool QtWindowHost::place() {
    whole_ = toQt(window_.frame(), primaryScreenRect());
    // The screen decides about the scale, and what the window's geometry means.
    if (QScreen* const screen = screenWithMiddleOf(whole_)) surface_->setScreen(screen);
    const double scale = surface_->devicePixelRatio();
    QRect native = whole_;
    if (std::max(whole_.width(), whole_.height()) * scale > largestNativePixels) {
        native = whole_.intersected(fromDevicePixels(desktopPixels(), *surface_->screen()));
        if (native.isEmpty()) native = QRect(whole_.topLeft(), QSize(1, 1));
    }
    const QPoint cut = native.topLeft() - whole_.topLeft();
    if (native == native_ && cut == cut_ && scale == scale_) return false;
    if (native != whole_) {
        logLine("window: " + std::to_string(whole_.width()) + " by " + std::to_string(whole_.height()) +
                " points are more than can be shown; only what lies on the screen is");
    }
    native_ = native;
    cut_ = cut;
    scale_ = scale;
    surface_->setGeometry(native);
    return true;
}

PixelRect QtWindowHost::nativePixels() const {
    return toDevicePixels(native_, *surface_->screen());
}

void QtWindowHost::makeBackdrop() {
    const VisualEffectView* const view = effectView(window_);
    const PixelRect native = nativePixels();
    if (view == nullptr) {
        backdrop_ = {};
        return;
    }
    BackdropStyle style;
    style.material = view->material;
    style.size = QSize(native.width, native.height);
    style.scale = scale_;
    style.panel = QRectF(-QPointF(cutPixels()), (QSizeF(whole_.size()) * scale_).toSize());
    if (view->maskImage) style.cornerRadius = view->maskImage->cornerRadius * scale_;

    const bool isCut = !cut_.isNull() || whole_.size() != native_.size();
    const int radius = isCut ? 0 : static_cast<int>(std::lround(style.cornerRadius));
    const bool blurs = view->material == VisualEffectView::Material::fullScreenUI;
    if (isComposited_) {
        const bool compositorBlurs = blurs && WindowEffects::shared().canBlurBehind();
        style.behind = compositorBlurs ? BackdropStyle::Behind::blurred : BackdropStyle::Behind::blended;
        if (compositorBlurs) {
            WindowEffects::shared().blurBehind(surface_->winId(), native.width, native.height, radius);
        }
    } else if (WindowEffects::isInstalled() && radius > 0) {
        WindowEffects::shared().shapeRounded(surface_->winId(), native.width, native.height, radius);
    }

    const bool needsScreen = !isComposited_ || (blurs && style.behind != BackdropStyle::Behind::blurred);
    const QRect visible = toQRect(native).intersected(toQRect(desktopPixels()));
    QImage screen;
    if (needsScreen && !visible.isEmpty()) {
        screen = capture_.behind({visible.x(), visible.y(), visible.width(), visible.height()});
    }
    backdrop_ = orlamo::qt::makeBackdrop(style, screen, visible.topLeft() - QPoint(native.x, native.y));
}

// Where the native window's corner lies in the picture of the whole window.
QPoint QtWindowHost::cutPixels() const {
    return (QPointF(cut_) * scale_).toPoint();
}

void QtWindowHost::paintAll() {
    const PixelRect native = nativePixels();
    paint(QRect(0, 0, native.width, native.height));
}

void QtWindowHost::paintChanges() {
    const auto part = damage(shown_, list_, window_.frame().height, scale_, texts_);
    if (!part) {
        paintAll();
    } else if (!part->isEmpty()) {
        paint(part->translated(-cutPixels()));
    }
}

// The part is of the native window's pixels; the list's are the whole window's.
void QtWindowHost::paint(const QRegion& wanted) {
    const QPoint cut = cutPixels();
    surface_->show(wanted, [&](QPainter& painter, const QRegion& part) {
        painter.setClipRegion(part);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        if (!backdrop_.isNull()) {
            painter.drawImage(0, 0, backdrop_);
        } else {
            const Color& color = window_.backgroundColor;
            painter.fillRect(part.boundingRect(), QColor::fromRgbF(color.red, color.green, color.blue, color.alpha));
        }
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
        painter.translate(-cut);
        painter.scale(scale_, scale_);
        replay(list_, painter, window_.frame().height, scale_, part.translated(cut), texts_);
    });
}

void QtWindowHost::exposed() {
    if (surface_->devicePixelRatio() == scale_) {
        surface_->showAgain();
        return;
    }
    if (!place()) return;
    makeBackdrop();
    paintAll();
}

// Where the window belongs now is said by the next pass.
void QtWindowHost::screensChanged() {
    if (View* const content = window_.contentView()) content->setNeedsDisplay(true);
}

// Qt names a pixel by its upper left corner, the window's coordinates by the lower left one. At scales such as 1.25
// edges are painted at the nearest pixel: there a pixel is whose its middle is, and a middle right on an edge counts as
// left of it or above, since painting rounds up.
Point QtWindowHost::toWindow(QPointF position) const {
    constexpr double nearlyHalf = 0.5 - 1.0 / 1024;
    const bool isWhole = scale_ == std::floor(scale_);
    const double right = isWhole ? 0 : nearlyHalf / scale_;
    const double down = isWhole ? 1 / scale_ : nearlyHalf / scale_;
    return {position.x() + cut_.x() + right, window_.frame().height - (position.y() + cut_.y()) - down};
}

void QtWindowHost::pointerMoved(QPointF position) {
    window_.pointerMoved(toWindow(position));
}

void QtWindowHost::pointerLeft() {
    window_.pointerLeft();
}

void QtWindowHost::pointerPressed(QPointF position) {
    window_.pointerPressed(toWindow(position));
}

}  // namespace orlamo::qt
