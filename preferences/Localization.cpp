#include "preferences/Localization.h"

namespace orlamo::Localization {

constinit const LocalizedText TabOption::settings{"tab.types.settings"};
constinit const LocalizedText TabOption::toolsLibrary{"tab.types.tools.library"};
constinit const LocalizedText TabOption::tutorial{"tab.types.tutorial"};
constinit const LocalizedText TabOption::freeApps{"tab.types.free_apps"};
constinit const LocalizedText TabOption::about{"tab.types.about"};

constinit const LocalizedText StatusBar::setting{"statusBar.title.setting"};
constinit const LocalizedText StatusBar::update{"statusBar.title.update"};
constinit const LocalizedText StatusBar::plugin{"statusBar.title.plugin"};
constinit const LocalizedText StatusBar::about{"statusBar.title.about"};
constinit const LocalizedText StatusBar::quit{"statusBar.title.quit"};

constinit const LocalizedText Preference::Appearance::automatic{"preference.appearance.auto"};
constinit const LocalizedText Preference::Appearance::light{"preference.appearance.light"};
constinit const LocalizedText Preference::Appearance::dark{"preference.appearance.dark"};

constinit const LocalizedFormat<1> Create::ChooseInstaller::tipsTitle{"create.choose.installer.tips.title"};
constinit const LocalizedText Create::ChooseInstaller::openPanelMessage{"create.choose.installer.openPanel.message"};
constinit const LocalizedText Create::ChooseDrive::title{"create.choose.drive.title"};
constinit const LocalizedFormat<2> Create::ChooseDrive::tipsTitle{"create.choose.disk.tips.title"};
constinit const LocalizedFormat<1> Create::InstallerMedia::warningTitle{"create.installer.media.warning.title"};
constinit const LocalizedFormat<1> Create::InstallerMedia::alertMessages{"create.installer.media.alert.messages"};
constinit const LocalizedText Create::Task::preparing{"task.create.title.preparing"};
constinit const LocalizedText Create::Task::cleaning{"task.create.title.cleaning"};
constinit const LocalizedText Create::Task::copied{"task.create.title.copied"};
constinit const LocalizedFormat<1> Create::installerDone{"create.installer.done"};

constinit const LocalizedText Download::tipsTitle{"download.main.tips.title"};
constinit const LocalizedText Download::Done::alertTitle{"download.done.alert.title"};
constinit const LocalizedFormat<2> Download::Done::alertMessages{"download.done.alert.messages"};

constinit const LocalizedText Setting::download::chooseInstallerPathTitle{
    "setting.choose.download.installer.path.title"};

constinit const LocalizedText Tip::title{"Tip.title"};

}  // namespace orlamo::Localization
