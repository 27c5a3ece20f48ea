// The composition root: creates this desktop's adapters, each after those it uses, and hands control to the main loop.
#include <QApplication>
#include <QLocale>
#include <filesystem>

#include "platform/atspi/Accessibility.h"
#include "platform/desktops/DesktopPreferences.h"
#include "platform/plist/LibplistParser.h"
#include "platform/qt/JsonUserDefaults.h"
#include "platform/qt/QtApplication.h"
#include "platform/qt/QtBundle.h"
#include "platform/qt/QtRunLoop.h"
#include "platform/qt/QtTextMetrics.h"
#include "platform/qt/QtWindowSystem.h"
#include "platform/qt/StandardOutputLog.h"
#include "platform/qt/SystemClock.h"
#include "platform/qt/TextCache.h"
#include "platform/x11/EventMonitors.h"
#include "platform/x11/EventPoster.h"
#include "platform/x11/Keyboard.h"
#include "platform/x11/WindowEffects.h"
#include "platform/x11/WindowManager.h"
#include "platform/x11/Workspace.h"
#include "platform/xdg/Autostart.h"
#include "shell/AppDelegate.h"

using namespace orlamo;

namespace {

/// Keeps an adapter and makes it the shared one of its interface.
template <class Interface, class Adapter>
struct Installed {
    template <class... Arguments>
    explicit Installed(Arguments&&... arguments) : adapter(std::forward<Arguments>(arguments)...) {}

    Adapter adapter;
    typename Service<Interface>::Installation installation{adapter};
};

std::string nameForPeople(int processIdentifier) {
    const auto frontmost = Workspace::shared().frontmostApplication();
    return frontmost && frontmost->processIdentifier == processIdentifier ? frontmost->localizedName : "";
}

bool bringForward(int processIdentifier) {
    RunningApplication application;
    application.processIdentifier = processIdentifier;
    return Workspace::shared().activateWithOptions(application, Workspace::activateIgnoringOtherApps);
}

}  // namespace

int main(int argc, char** argv) {
    const Installed<Log, qt::StandardOutputLog> log;
    // The panel, its focus and its shape are those of an X session, also where another toolkit platform could start.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "xcb");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);

    const Installed<Clock, qt::SystemClock> clock;
    const Installed<RunLoop, qt::QtRunLoop> runLoop;
    const Installed<PropertyListParser, plist::LibplistParser> propertyLists;
    const auto resources = qt::resourcesFolder(QApplication::applicationFilePath().toStdString());
    const Installed<Bundle, qt::QtBundle> bundle(resources, QLocale::system());
    const Installed<UserDefaults, qt::JsonUserDefaults> defaults(qt::settingsPath());

    const Installed<LoginItems, xdg::Autostart> loginItems(
        xdg::StartedProgram{.executable = QApplication::applicationFilePath().toStdString()});

    std::string error;
    const auto connection = x11::Connection::open(error);
    if (connection == nullptr) {
        logLine("no X display: " + error);
        return 1;
    }
    x11::CoreKeyboard keys(*connection);
    x11::Windows windows(*connection);
    x11::WindowManager windowManager(*connection, windows);
    x11::FocusMemory focus;
    const Installed<SystemPreferences, desktops::DesktopPreferences> preferences([&windowManager] {
        return desktops::WindowManager{windowManager.name(), windowManager.configuration()};
    });
    const Installed<Keyboard, x11::Keyboard> keyboard(keys);
    const Installed<EventMonitors, x11::EventMonitors> monitors(*connection, keys, windows);
    const Installed<EventPoster, x11::EventPoster> poster(*connection, keys);
    const Installed<WindowEffects, x11::WindowEffects> effects(*connection, windows, focus);
    const Installed<Workspace, x11::Workspace> workspace(*connection, windows, focus, bundle.adapter.bundleIdentifier(),
                                                         [](std::string_view) { return false; });

    qt::TextCache texts;
    qt::QtApplication program;
    const Service<Application>::Installation programInstallation(program);
    const Installed<TextMetrics, qt::QtTextMetrics> metrics(texts);
    const Installed<WindowSystem, qt::QtWindowSystem> windowSystem(texts, program);

    const Installed<Accessibility, atspi::Accessibility> accessibility(
        atspi::Options{.baseKeyOfShifted = [&keys](char32_t character) { return keys.baseKeyOfShifted(character); },
                       .applicationName = nameForPeople,
                       .sessionMenu = {},
                       .bringForward = bringForward});

    AppDelegate delegate;
    delegate.applicationDidFinishLaunching();
    return QApplication::exec();
}
