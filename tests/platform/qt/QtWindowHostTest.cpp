#include <QExposeEvent>
#include <QMouseEvent>
#include <QWindow>

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
    void mouseDown(const MouseEvent& event) override { pressed = event.locationInWindow; }

    int passes = 0;
    bool shownAtPass = false;
    bool centres = false;
    bool marksItself = false;
    std::optional<Size> fitted;
    std::optional<Point> pressed;
};

class Host : public QtFixture {
protected:
    Host() {
        auto content = std::make_unique<PanelView>(Rect{});
        view = content.get();
        window.isReleasedWhenClosed = true;
        window.level = Window::statusLevel;
        window.setContentView(std::move(content));
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
