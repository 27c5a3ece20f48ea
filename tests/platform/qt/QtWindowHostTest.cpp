#include <QExposeEvent>
#include <QMouseEvent>
#include <QWindow>
#include <cmath>
#include <tuple>

#include "platform/VisualEffectView.h"
#include "platform/Window.h"
#include "platform/qt/QtApplication.h"
#include "platform/qt/QtWindowSystem.h"
#include "platform/qt/TextCache.h"
#include "tests/doubles/FakeWindowEffects.h"
#include "tests/platform/qt/QtFixture.h"

namespace orlamo {
namespace {

struct PanelView : View {
    using View::View;
    void drawRect(GraphicsContext& context, const Rect&) override {
        ++passes;
        shownAtPass = !QGuiApplication::topLevelWindows().isEmpty();
        context.fill(Path::roundedRect({0, 0, 10, 10}, 0), Color::white(1));
        if (fitted) window()->setContentSize(*fitted);
        if (centres) window()->center();
        if (marksItself) setNeedsDisplay(true);
    }
    void mouseMoved(const MouseEvent& event) override { moved = event.locationInWindow; }
    void mouseExited(const MouseEvent&) override { ++exits; }
    void mouseDown(const MouseEvent& event) override { pressed = event.locationInWindow; }

    int passes = 0;
    bool shownAtPass = false;
    bool centres = false;
    bool marksItself = false;
    std::optional<Size> fitted;
    std::optional<Point> moved, pressed;
    int exits = 0;
};

class Host : public QtFixture {
protected:
    Host() {
        auto content = std::make_unique<PanelView>(Rect{});
        view = content.get();
        window.isReleasedWhenClosed = true;
        window.level = Window::statusLevel;
        window.setContentView(std::move(content));
        view->addTrackingArea({{0, 0, 1000, 1000}, TrackingArea::mouseEnteredAndExited | TrackingArea::mouseMoved});
    }
    ~Host() override {
        window.close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    /// Gives the window the panel's material, rounded, as its content.
    View& makePanel() {
        auto material = std::make_unique<VisualEffectView>(Rect{});
        material->material = VisualEffectView::Material::fullScreenUI;
        material->maskImage = VisualEffectView::MaskImage{{300, 200}, 30, Color::black(), false};
        window.setContentView(std::move(material));
        return *window.contentView();
    }
    void show() {
        window.orderFront();
        turnEventLoop();
    }
    static QWindow& native() { return *QGuiApplication::topLevelWindows().front(); }
    static void send(QEvent::Type type, QPointF at) {
        const Qt::MouseButton button = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
        QMouseEvent event(type, at, native().mapToGlobal(at), button, button, Qt::NoModifier);
        QCoreApplication::sendEvent(&native(), &event);
    }

    qt::TextCache texts;
    qt::QtApplication program;
    qt::QtWindowSystem system{texts, program};
    Service<WindowSystem>::Installation installation{system};
    FakeWindowEffects effects;
    Window window{{100, 100, 300, 200}, Window::borderless, Window::Backing::buffered, Window::Defer::no};
    PanelView* view = nullptr;
};

TEST_F(Host, DrawsBeforeTheWindowIsThereAndShowsItWhereThePassLeftIt) {
    view->fitted = Size{400, 120};
    view->centres = true;
    const Rect screen = system.mainScreen()->frame;
    window.orderFront();
    EXPECT_FALSE(view->shownAtPass);
    EXPECT_TRUE(native().isVisible());
    EXPECT_EQ(native().size(), QSize(400, 120));
    EXPECT_NEAR(native().x(), (screen.width - 400) / 2, 1);
    EXPECT_NEAR(native().y(), (screen.height - 120) / 2, 1);
    turnEventLoop();
    EXPECT_EQ(view->passes, 1);
}

TEST_F(Host, DrawsOnceForManyRequestsAndNotAtAllWithoutOne) {
    show();
    for (int i = 0; i < 50; ++i) view->setNeedsDisplay(true);
    EXPECT_EQ(view->passes, 1);
    turnEventLoop();
    EXPECT_EQ(view->passes, 2);
    QExposeEvent exposure(QRect(0, 0, 50, 50));
    QCoreApplication::sendEvent(&native(), &exposure);
    turnEventLoop();
    EXPECT_EQ(view->passes, 2) << "an exposure is answered without a pass";

    window.close();
    view->marksItself = true;
    window.orderFront();
    EXPECT_EQ(view->passes, 3) << "marked while it is drawn, it is drawn again later, not within";
    view->marksItself = false;
    turnEventLoop();
    EXPECT_EQ(view->passes, 4);
}

TEST_F(Host, AResizeOutsideOfAPassMovesTheWindowKeepingItsTop) {
    show();
    const int top = native().y();
    window.setContentSize({320, 150});
    turnEventLoop();
    EXPECT_EQ(native().geometry(), QRect(100, top, 320, 150));
    EXPECT_EQ(view->passes, 1);
}

TEST_F(Host, TheMainScreenIsTheOneOfTheWindowWithTheKeyboard) {
    const struct {
        std::optional<PixelRect> focused;
        const char* screen;
    } cases[] = {
        {std::nullopt, "main"},
        {PixelRect{100, 100, 300, 200}, "main"},
        {PixelRect{1900, 700, 50, 40}, "side"},
        {PixelRect{700, 100, 300, 200}, "side"},   // its middle is there
        {PixelRect{1990, 100, 300, 200}, "side"},  // its middle is nowhere
        {PixelRect{-1, -1, 1, 1}, "main"},
    };
    for (const auto& [focused, screen] : cases) {
        effects.focusedWindow = focused;
        EXPECT_EQ(system.mainScreen()->localizedName, screen);
    }
}

TEST_F(Host, APanelStandsInTheMiddleOfTheMainScreenInThatScreensPixels) {
    effects.screen = [](int, int) { return 0xffffffffU; };
    effects.focusedWindow = PixelRect{1000, 100, 300, 200};
    View& panel = makePanel();
    window.center();
    show();
    const auto expectCopied = [this](const PixelRect& area) {
        const PixelRect& copied = effects.copies.back();
        EXPECT_EQ(std::tie(copied.x, copied.y, copied.width, copied.height),
                  std::tie(area.x, area.y, area.width, area.height));
    };
    expectCopied({800 + 375, 225, 450, 300});
    EXPECT_EQ(effects.shapes.back(), 45);

    // The screen is gone, and with it the window that had the keyboard.
    effects.focusedWindow.reset();
    emit qGuiApp->primaryScreenChanged(QGuiApplication::primaryScreen());
    EXPECT_TRUE(panel.needsDisplay()) << "a pass will say where the panel belongs now";
    window.center();
    turnEventLoop();
    expectCopied({250, 300, 300, 200});
    EXPECT_EQ(effects.shapes.back(), 30);
}

TEST_F(Host, AtAFractionalScaleAPressBelongsToWhatIsPaintedThere) {
    effects.focusedWindow = PixelRect{1000, 100, 300, 200};
    window.center();
    show();
    const double scale = native().devicePixelRatio();
    ASSERT_EQ(scale, 1.5);
    for (int edge = 1; edge < 40; ++edge) {
        const double painted = std::round(edge * scale);
        send(QEvent::MouseButtonPress, {painted / scale, painted / scale});
        EXPECT_GE(view->pressed->x, edge);
        EXPECT_LT(view->pressed->y, 200 - edge);
        send(QEvent::MouseButtonPress, {(painted - 1) / scale, (painted - 1) / scale});
        EXPECT_LT(view->pressed->x, edge);
        EXPECT_GE(view->pressed->y, 200 - edge);
    }
}

TEST_F(Host, ThePointersHeightIsCountedFromTheBottom) {
    show();
    send(QEvent::MouseMove, {10, 20});
    EXPECT_EQ(view->moved, (Point{10, 179}));
    send(QEvent::MouseButtonPress, {0, 199});
    EXPECT_EQ(view->pressed, (Point{0, 0}));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&native(), &leave);
    EXPECT_EQ(view->exits, 1);
}

TEST_F(Host, AWindowBeyondWhatCanBeShownIsCutToTheScreenAndItsCoordinatesStay) {
    view->fitted = Size{300, 50'000};
    view->centres = true;
    show();
    const Rect screen = system.mainScreen()->frame;
    EXPECT_EQ(native().height(), screen.height);
    EXPECT_EQ(window.frame().height, 50'000);
    EXPECT_EQ(log.lines.size(), 1U);
    send(QEvent::MouseButtonPress, {5, screen.height - 1});
    ASSERT_TRUE(view->pressed);
    EXPECT_EQ(view->pressed->y, -window.frame().y);
}

TEST_F(Host, TheFocusGoesToTheNextWindowShownAfterAnActivation) {
    program.activate(Application::IgnoringOtherApps::yes);
    EXPECT_TRUE(effects.focused.empty());
    show();
    ASSERT_EQ(effects.focused.size(), 1U);
    EXPECT_EQ(effects.focused[0], native().winId());
    window.close();
    window.orderFront();
    EXPECT_EQ(effects.focused.size(), 1U) << "nobody asked again";
}

TEST_F(Host, ClosingInTheMiddleOfAPressIsSafe) {
    struct Closing : View {
        using View::View;
        void mouseDown(const MouseEvent&) override { window()->close(); }
    };
    window.setContentView(std::make_unique<Closing>(Rect{}));
    show();
    send(QEvent::MouseButtonPress, {5, 5});
    EXPECT_FALSE(window.isVisible());
}

TEST_F(Host, APanelIsBlurredByTheCompositorOrElseShapedOverACopyOfTheScreenTakenOnce) {
    effects.screen = [](int, int) { return 0xffffffffU; };
    View& panel = makePanel();
    show();
    panel.setNeedsDisplay(true);
    turnEventLoop();
    EXPECT_EQ(effects.shapes, std::vector<int>{30});
    EXPECT_EQ(effects.copies.size(), 1U);
    EXPECT_EQ(effects.blurRequests, 0);
    window.close();
    effects.composited = effects.blurs = true;
    show();
    EXPECT_EQ(effects.blurRequests, 1);
    EXPECT_EQ(effects.copies.size(), 1U);
    EXPECT_EQ(effects.shapes.size(), 1U);
}

}  // namespace
}  // namespace orlamo
