// The composition root: creates this desktop's adapters, each after those it uses, and hands control to the main loop.
#include <QApplication>
#include <QLocale>
#include <QMessageBox>
#include <QSessionManager>
#include <filesystem>
#include <span>

#include "app/CommandLine.h"
#include "app/EndSignal.h"
#include "app/ProcessPrivacy.h"
#include "app/SessionMenus.h"
#include "platform/appcast/UpdaterController.h"
#include "platform/atspi/Accessibility.h"
#include "platform/atspi/AccessibilitySwitch.h"
#include "platform/desktops/DesktopPreferences.h"
#include "platform/desktops/GioSettingsSource.h"
#include "platform/desktops/SharedSettings.h"
#include "platform/desktops/ToolkitAccessibility.h"
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
#include "platform/qt/Theme.h"
#include "platform/qt/controls/QtControlsWindowHost.h"
#include "platform/qt/controls/QtInterfaceFiles.h"
#include "platform/qt/statusbar/QtStatusBar.h"
#include "platform/x11/EventMonitors.h"
#include "platform/x11/EventPoster.h"
#include "platform/x11/Keyboard.h"
#include "platform/x11/StartupNotification.h"
#include "platform/x11/WindowEffects.h"
#include "platform/x11/WindowManager.h"
#include "platform/x11/Workspace.h"
#include "platform/xdg/ActivationService.h"
#include "platform/xdg/AddressOpener.h"
#include "platform/xdg/Autostart.h"
#include "shell/AppDelegate.h"

using namespace orlamo;

namespace {

constexpr auto preferencesAction = "preferences";  // as the desktop entry names it
constexpr auto platformVariable = "QT_QPA_PLATFORM";

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

/// Web pages go to the user's browser. The settings of this desktop that such an address can name is one switch.
class Addresses {
public:
    bool open(std::string_view address) {
        constexpr std::string_view accessibility =
            "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility";
        if (address != accessibility) return opener_.open(address);
        desktops::switchOnToolkitAccessibility();  // where the desktop has it, for the sessions to come
        return accessibilitySwitch_.switchOn();
    }

private:
    xdg::AddressOpener opener_;
    atspi::AccessibilitySwitch accessibilitySwitch_;
};

/// Some launchers on X11 know their startup ids by the newer name only.
const std::string& startupId(const xdg::ActivationTicket& ticket) {
    return ticket.startupId.empty() ? ticket.activationToken : ticket.startupId;
}

/// Whether this launch is to go on as the program. A launch while one runs in this session is that one's business.
bool goesOn(xdg::LaunchOutcome outcome) {
    if (outcome == xdg::LaunchOutcome::handedOver) return false;
    if (outcome != xdg::LaunchOutcome::noAnswer) return true;
    logLine("launch: the running program does not answer");
    QMessageBox box;
    const PropertyList name = Bundle::shared().infoDictionaryValue("CFBundleName");
    if (const auto* const text = name.get<std::string>()) box.setWindowTitle(QString::fromStdString(*text));
    box.setIconPixmap(QApplication::windowIcon().pixmap(64));
    box.setText(QString::fromStdString(NSLocalizedString("instance.noAnswer.title")));
    box.setInformativeText(QString::fromStdString(NSLocalizedString("instance.noAnswer.message")));
    box.setTextFormat(Qt::PlainText);
    box.exec();
    return false;
}

}  // namespace

int main(int argc, char** argv) {
    const bool isPrivate = keepProcessPrivate();
    if (const auto status = answerCommandLine(std::span(argv, argc).subspan(argc > 0 ? 1 : 0))) return *status;
    const Installed<Log, qt::StandardOutputLog> log;
    if (!isPrivate) logLine("privacy: a debugger, and any program of this user, can read this one's memory");
    std::string error;
    // The toolkit would not say it and go, but crash.
    if (!x11::Connection::isPossible(error)) {
        logLine("no X display: " + error);
        return 1;
    }
    const auto ticket = xdg::ActivationTicket::ofThisLaunch();
    // The panel, its focus and its shape are those of an X session, also where another toolkit platform could start.
    const bool choosesPlatform = !qEnvironmentVariableIsSet(platformVariable);
    if (choosesPlatform) qputenv(platformVariable, "xcb");
    QApplication application(argc, argv);
    // The programs that it starts choose for themselves.
    if (choosesPlatform) qunsetenv(platformVariable);
    QApplication::setQuitOnLastWindowClosed(false);
    // Whether it starts with the session is for the user's setting to say, not for what ran at the last log-out.
    QObject::connect(&application, &QGuiApplication::saveStateRequest,
                     [](QSessionManager& session) { session.setRestartHint(QSessionManager::RestartNever); });

    const Installed<Clock, qt::SystemClock> clock;
    const Installed<RunLoop, qt::QtRunLoop> runLoop;
    const Installed<PropertyListParser, plist::LibplistParser> propertyLists;
    const auto resources = qt::resourcesFolder(QApplication::applicationFilePath().toStdString());
    const Installed<Bundle, qt::QtBundle> bundle(resources, QLocale::system().uiLanguages());
    qt::applyTheme(application, bundle.adapter.language());
    xdg::ActivationService activation(bundle.adapter.bundleIdentifier(), {preferencesAction});
    const xdg::LaunchOutcome outcome = activation.launch(ticket);
    if (!goesOn(outcome)) return outcome == xdg::LaunchOutcome::handedOver ? 0 : 1;
    const Installed<UserDefaults, qt::JsonUserDefaults> defaults(qt::settingsPath());

    const Installed<LoginItems, xdg::Autostart> loginItems(
        xdg::StartedProgram{.executable = QApplication::applicationFilePath().toStdString()});

    const auto connection = x11::Connection::open(error);
    if (connection == nullptr) {
        logLine("no X display: " + error);
        return 1;
    }
    x11::CoreKeyboard keys(*connection);
    x11::Windows windows(*connection);
    x11::WindowManager windowManager(*connection, windows);
    x11::FocusMemory focus;
    // Each showing reads the session menu first, then the desktop's column.
    desktops::SharedSettings settings(std::make_unique<desktops::GioSettingsSource>());
    const Installed<SystemPreferences, desktops::DesktopPreferences> preferences(
        settings.follower(), desktops::desktopNamesOfEnvironment, [&windowManager] {
            return desktops::WindowManager{windowManager.name(), windowManager.configuration()};
        });
    const Installed<Keyboard, x11::Keyboard> keyboard(keys, NSLocalizedString("keyboard.ctrl"));
    const Installed<EventMonitors, x11::EventMonitors> monitors(*connection, keys, windows);
    const Installed<EventPoster, x11::EventPoster> poster(*connection, keys, windowManager);
    const Installed<WindowEffects, x11::WindowEffects> effects(*connection, windows, focus);
    Addresses addresses;
    const Installed<Workspace, x11::Workspace> workspace(
        *connection, windows, focus, bundle.adapter.bundleIdentifier(),
        [&addresses](std::string_view address) { return addresses.open(address); });

    qt::TextCache texts;
    qt::QtApplication program;
    const Service<Application>::Installation programInstallation(program);
    const Installed<TextMetrics, qt::QtTextMetrics> metrics(texts);
    const Installed<WindowSystem, qt::QtWindowSystem> windowSystem(
        texts, program, [](Window& window, qt::QtApplication& owner) -> std::unique_ptr<WindowHost> {
            return std::make_unique<qt::QtControlsWindowHost>(window, owner);
        });
    const Installed<InterfaceFiles, qt::QtInterfaceFiles> interfaceFiles;
    Installed<StatusBar, qt::QtStatusBar> statusBar(*connection);
    const Installed<Updates, appcast::Updater> updates(&program);

    SessionMenus sessionMenus(settings, windowManager, focus);
    const Installed<Accessibility, atspi::Accessibility> accessibility(
        atspi::Options{.baseKeyOfShifted = [&keys](char32_t character) { return keys.baseKeyOfShifted(character); },
                       .applicationName = nameForPeople,
                       .sessionMenu = [&sessionMenus](auto timeLeft) { return sessionMenus.read(timeLeft); },
                       .bringForward = bringForward});

    activation.answerWaiting();
    AppDelegate delegate;
    program.delegate = &delegate;
    const EndSignal endSignal([&program] { program.terminate(); });
    delegate.applicationWillFinishLaunching();
    activation.answerWaiting();
    delegate.applicationDidFinishLaunching();
    activation.onReturn([&statusBar] { statusBar.adapter.sessionBusReturned(); });
    activation.setHandler([&delegate, &connection](const xdg::Activation& wanted) {
        if (wanted.action == preferencesAction) {
            delegate.openSettings();
        } else {
            delegate.applicationShouldHandleReopen(delegate.preferences.window()->isVisible());
        }
        x11::completeStartup(*connection, startupId(wanted.ticket));
    });
    return QApplication::exec();
}
