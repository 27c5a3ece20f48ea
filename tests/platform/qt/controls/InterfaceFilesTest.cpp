#include <filesystem>

#include "permissions/PrivilegeController.h"
#include "platform/qt/controls/QtInterfaceFiles.h"
#include "preferences/FreeAppsItem.h"
#include "preferences/InitialViewController.h"
#include "preferences/PopoverViewController.h"
#include "preferences/Preferences.h"
#include "tests/doubles/FakeAccessibility.h"
#include "tests/doubles/FakeApplication.h"
#include "tests/doubles/FakeBundle.h"
#include "tests/doubles/FakeUserDefaults.h"
#include "tests/doubles/FakeWindowSystem.h"
#include "tests/platform/qt/controls/WidgetFixture.h"

namespace orlamo {
namespace {

/// The shipped files with the controllers that they are made for.
class ShippedInterfaceFiles : public WidgetFixture {
protected:
    ShippedInterfaceFiles() {
        for (const auto& file : std::filesystem::directory_iterator(ORLAMO_RESOURCES)) {
            bundle.resources[file.path().filename()] = file.path();
        }
    }
    void expectNoComplaint() {
        for (const std::string& line : log.lines) {
            EXPECT_FALSE(line.starts_with("interface ") || line.starts_with("image ")) << line;
        }
    }

    FakeBundle bundle;
    FakeAccessibility accessibility;
    FakeApplication application;
    FakeUserDefaults defaults;
    FakeWindowSystem windowSystem;
    qt::QtInterfaceFiles files;
    Service<InterfaceFiles>::Installation installation{files};
};

TEST_F(ShippedInterfaceFiles, EveryOutletAndActionFindsItsCounterpart) {
    InitialViewController initial;
    initial.view();
    std::size_t pages = 0;
    for (const auto& tab : initial.viewControllers()) {
        tab->view();
        ++pages;
    }
    FreeAppsItem().view();
    PopoverViewController().view();
    PrivilegeController().view();
    EXPECT_EQ(pages, 4U);
    expectNoComplaint();
}

TEST_F(ShippedInterfaceFiles, TheWindowsHaveATitleASizeAndAStyle) {
    for (const char* name : {"Preferences", "PrivilegeWindowController"}) {
        const WindowDescription window = files.window(name);
        EXPECT_FALSE(window.title.empty()) << name;
        EXPECT_GE(window.contentSize.width, window.minSize.width) << name;
        EXPECT_GT(window.minSize.height, 200) << name;
    }
    EXPECT_EQ(files.window("Preferences").styleMask & (Window::titled | Window::closable),
              Window::titled | Window::closable);
    expectNoComplaint();
}

}  // namespace
}  // namespace orlamo
