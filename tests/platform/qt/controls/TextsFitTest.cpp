#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QListView>
#include <filesystem>

#include "core/SystemShortcuts.h"
#include "panel/SystemTitle.h"
#include "permissions/PrivilegeController.h"
#include "platform/qt/QtBundle.h"
#include "platform/qt/QtTextMetrics.h"
#include "platform/qt/TextCache.h"
#include "platform/qt/Theme.h"
#include "platform/qt/controls/DocumentSize.h"
#include "platform/qt/controls/QtInterfaceFiles.h"
#include "preferences/FreeAppsItem.h"
#include "preferences/FreeAppsViewController.h"
#include "preferences/InitialViewController.h"
#include "preferences/PopoverViewController.h"
#include "preferences/SettingsController.h"
#include "preferences/TutorialViewController.h"
#include "preferences/UserSupportController.h"
#include "tests/doubles/FakeDesktop.h"
#include "tests/platform/qt/controls/WidgetFixture.h"

namespace orlamo {
namespace {

std::vector<std::string> languages() {
    std::vector<std::string> all;
    for (const auto& file : std::filesystem::directory_iterator(ORLAMO_RESOURCES)) {
        const std::string name = file.path().stem();
        if (file.path().extension() == ".ts") all.push_back(name.substr(name.find('_') + 1));
    }
    return all;
}

// Points.
constexpr int leastPageWidth = 640;  // in the preferences at their smallest, beside a scroll bar
constexpr int leastWindowWidth = 860;
constexpr int tabFrame = 76;  // icon and margins of a row in the list of the pages
constexpr int panelSize = 13;
constexpr double panelTitleWidth = 150;

/// The shipped texts in the shipped windows, in a font that is wide among the common ones.
class TextsFit : public WidgetFixture, public testing::WithParamInterface<std::string> {
protected:
    TextsFit() { qt::applyTheme(*qApp, bundle.language()); }
    ~TextsFit() override {
        qApp->setStyleSheet({});
        QApplication::setPalette(QPalette());
        QApplication::setFont(fontBefore);
    }

    void expectWhole(ViewController& controller, int width) {
        QWidget& root = qt::native(controller.view()).widget();
        root.resize(width, root.height());
        root.resize(qt::neededSize(root));
        EXPECT_EQ(root.width(), width) << controller.interfaceName();
        root.show();
        turnEventLoop();
        for (QWidget* const widget : root.findChildren<QWidget*>()) {
            const auto* const label = qobject_cast<QLabel*>(widget);
            const bool isControl = qobject_cast<QAbstractButton*>(widget) || qobject_cast<QComboBox*>(widget);
            if (!widget->isVisibleTo(&root) || (!isControl && (label == nullptr || label->text().isEmpty()))) continue;
            QSize needed = widget->sizeHint();
            if (label != nullptr && label->wordWrap())
                needed = {label->minimumSizeHint().width(), label->heightForWidth(label->width())};
            const bool isWhole = widget->size().expandedTo(needed) == widget->size() &&
                                 widget->parentWidget()->rect().contains(widget->geometry());
            EXPECT_TRUE(isWhole) << controller.interfaceName() << ": " << widget->objectName().toStdString() << " has "
                                 << widget->width() << "x" << widget->height() << ", needs " << needed.width() << "x"
                                 << needed.height();
            ++measured;
        }
        root.hide();
    }

    const QFont fontBefore = QApplication::font();
    FakeDesktop desktop;
    qt::QtBundle bundle{qt::resourcesFolder(std::filesystem::read_symlink("/proc/self/exe")),
                        {QString::fromStdString(GetParam())}};
    Service<Bundle>::Installation bundleInstallation{bundle};
    qt::QtInterfaceFiles files;
    Service<InterfaceFiles>::Installation installation{files};
    int measured = 0;
};

TEST_P(TextsFit, IntoEveryViewAndEveryOutletActionAndImageFindsItsCounterpart) {
    for (const int points : {10, 12}) {
        QApplication::setFont(QFont("DejaVu Sans", points));
        SettingsController settings;
        TutorialViewController tutorial;
        FreeAppsViewController applications;
        UserSupportController support;
        for (auto* const page : std::vector<ViewController*>{&settings, &tutorial, &applications, &support})
            expectWhole(*page, leastPageWidth);
        InitialViewController window;
        expectWhole(window, leastWindowWidth);
        // Their titles stay as they were read first: one language for each process.
        const auto& tabs = *qt::native(window.view()).widget().findChild<QListView*>("tableView");
        for (int row = 0; row < tabs.model()->rowCount(); ++row) {
            const QString title = tabs.model()->index(row, 0).data().toString();
            EXPECT_LE(tabs.fontMetrics().horizontalAdvance(title) + tabFrame, tabs.viewport()->width());
            ++measured;
        }
        EXPECT_LE(tabs.viewport()->width(), points == 10 ? 210 : 240);
        PopoverViewController popover;
        expectWhole(popover, static_cast<int>(popover.view().size().width));
        PrivilegeController permission;
        expectWhole(permission, static_cast<int>(permission.view().size().width));
        EXPECT_LE(permission.view().size().width, 560);
        FreeAppsItem().view();
    }
    EXPECT_GT(measured, 100);
    // The made-up list of applications has no icons.
    std::erase(desktop.log.lines, "image : the bundle has none of that name");
    for (const std::string& line : desktop.log.lines)
        EXPECT_FALSE(line.starts_with("interface ") || line.starts_with("image ")) << line;
}

TEST_P(TextsFit, IntoWindowsThatHaveATitleASizeAndAStyle) {
    for (const auto& [name, title] : {std::pair{"Preferences", "preferences.window.title"},
                                      {"PrivilegeWindowController", "permission.window.title"}}) {
        const WindowDescription window = files.window(name);
        EXPECT_EQ(window.title, bundle.localizedString(title));
        EXPECT_GE(window.contentSize.width, window.minSize.width) << name;
        EXPECT_GT(window.minSize.height, 200) << name;
    }
    EXPECT_EQ(files.window("Preferences").styleMask & (Window::titled | Window::closable),
              Window::titled | Window::closable);
}

TEST_P(TextsFit, IntoThePanelsCells) {
    QApplication::setFont(QFont("DejaVu Sans", 10));
    qt::TextCache texts;
    qt::QtTextMetrics metrics(texts);
    const auto expectShort = [&metrics](const std::string& key) {
        EXPECT_LE(metrics.measure(NSLocalizedString(key), panelSize).width, panelTitleWidth) << NSLocalizedString(key);
    };
    for (const std::string_view row : systemShortcutIDTable)
        expectShort(splitSystemTitle(row.substr(row.find(':') + 1)).label);
    for (const char* const key : {"lock", "log_out", "shut_down", "overview", "show_desktop", "home", "files",
                                  "terminal", "settings", "run", "minimize", "tasks"})
        expectShort(std::string("session.") + key);
}

INSTANTIATE_TEST_SUITE_P(OfEveryLanguage, TextsFit, testing::ValuesIn(languages()));

}  // namespace
}  // namespace orlamo
