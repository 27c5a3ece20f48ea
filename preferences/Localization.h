#pragma once

#include "preferences/LocalizedText.h"

/// Every text of the string table that the program takes by name: its window's tabs, its status menu, and those of an
/// installer and download feature that nothing shows.
namespace orlamo::Localization {

namespace TabOption {
extern const LocalizedText settings;
extern const LocalizedText toolsLibrary;
extern const LocalizedText tutorial;
extern const LocalizedText freeApps;
extern const LocalizedText about;
}  // namespace TabOption

namespace StatusBar {
extern const LocalizedText setting;
extern const LocalizedText update;
extern const LocalizedText plugin;
extern const LocalizedText about;
extern const LocalizedText quit;
}  // namespace StatusBar

namespace Preference::Appearance {
extern const LocalizedText automatic;
extern const LocalizedText light;
extern const LocalizedText dark;
}  // namespace Preference::Appearance

namespace Create {
namespace ChooseInstaller {
extern const LocalizedFormat<1> tipsTitle;
extern const LocalizedText openPanelMessage;
}  // namespace ChooseInstaller

namespace ChooseDrive {
extern const LocalizedText title;
extern const LocalizedFormat<2> tipsTitle;
}  // namespace ChooseDrive

namespace InstallerMedia {
extern const LocalizedFormat<1> warningTitle;
extern const LocalizedFormat<1> alertMessages;
}  // namespace InstallerMedia

namespace Task {
extern const LocalizedText preparing;
extern const LocalizedText cleaning;
extern const LocalizedText copied;
}  // namespace Task

extern const LocalizedFormat<1> installerDone;
}  // namespace Create

namespace Download {
extern const LocalizedText tipsTitle;

namespace Done {
extern const LocalizedText alertTitle;
extern const LocalizedFormat<2> alertMessages;
}  // namespace Done
}  // namespace Download

namespace Setting::download {
extern const LocalizedText chooseInstallerPathTitle;
}  // namespace Setting::download

namespace Tip {
extern const LocalizedText title;
}  // namespace Tip

}  // namespace orlamo::Localization
