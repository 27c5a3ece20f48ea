#include <QCloseEvent>

#include "platform/ViewController.h"
#include "platform/Window.h"
#include "platform/WindowController.h"
#include "platform/qt/QtApplication.h"
#include "platform/qt/QtWindowSystem.h"
#include "platform/qt/TextCache.h"
#include "platform/qt/controls/QtControlsWindowHost.h"
#include "tests/doubles/FakeBundle.h"
#include "tests/doubles/FakeWindowEffects.h"
#include "tests/platform/qt/controls/WidgetFixture.h"

namespace orlamo {
namespace {

class ControlsWindows : public WidgetFixture {
protected:
    ~ControlsWindows() override {
        window.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    Window& open(unsigned styleMask = Window::titled | Window::closable | Window::resizable) {
        window = std::make_unique<Window>(Rect{100, 100, 300, 200}, styleMask, Window::Backing::buffered,
                                          Window::Defer::yes);
        window->isReleasedWhenClosed = false;
        window->setContentViewController(page);
        window->makeKeyAndOrderFront();
        turnEventLoop();
        return *window;
    }
    QWidget& native() { return *page.widget().window(); }
    double screenHeight() { return system.mainScreen()->frame.height; }

    FakeBundle bundle;
    FakeWindowEffects effects;
    PlainInterfaceFiles files;
    Page page;
    qt::TextCache texts;
    qt::QtApplication program;
    qt::QtWindowSystem system{texts, program, [](Window& shown, qt::QtApplication& owner) {
                                  return std::make_unique<qt::QtControlsWindowHost>(shown, owner);
                              }};
    Service<WindowSystem>::Installation installation{system};
    std::unique_ptr<Window> window;
};

TEST_F(ControlsWindows, TheContentFillsAWindowOfTheFrameThatTheProgramOrTheUserGivesIt) {
    open();
    EXPECT_EQ(native().geometry(), QRect(100, static_cast<int>(screenHeight()) - 300, 300, 200));
    EXPECT_EQ(page.widget().size(), QSize(300, 200));
    EXPECT_EQ(page.appearances, 1);
    window->setContentSize({320, 150});
    EXPECT_EQ(page.widget().size(), QSize(320, 150));
    native().setGeometry(10, 20, 400, 250);
    turnEventLoop();
    EXPECT_EQ(window->frame(), (Rect{10, screenHeight() - 270, 400, 250}));
}

TEST_F(ControlsWindows, TheUsersCloseIsTheControllersToRefuse) {
    struct Refusing : WindowController {
        bool windowShouldClose() override { return closes; }
        bool closes = false;
    } controller;
    open();
    controller.setWindow(window.get());
    EXPECT_FALSE(native().close());
    EXPECT_TRUE(window->isVisible());
    controller.closes = true;
    QWidget& content = page.widget();
    EXPECT_TRUE(native().close());
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(page.disappearances, 1);
    EXPECT_EQ(content.parentWidget(), nullptr);
    window->makeKeyAndOrderFront();
    EXPECT_EQ(page.appearances, 2);
}

TEST_F(ControlsWindows, ActivationWaitsForTheNextWindowOfTheTurnAndElseTakesTheFrontmost) {
    open();
    const NativeWindow own = native().winId();
    effects.focused.clear();
    program.activate(Application::IgnoringOtherApps::yes);
    EXPECT_TRUE(effects.focused.empty());
    turnEventLoop();
    EXPECT_EQ(effects.focused, std::vector<NativeWindow>{own});

    program.activate(Application::IgnoringOtherApps::yes);
    program.windowCameToFront(77);  // the panel
    turnEventLoop();
    EXPECT_EQ(effects.focused, (std::vector<NativeWindow>{own, 77}));
    program.windowWentAway(77);
    window->close();
    program.activate(Application::IgnoringOtherApps::yes);
    turnEventLoop();
    EXPECT_EQ(effects.focused.size(), 2U) << "nothing is there to activate";
}

}  // namespace
}  // namespace orlamo
