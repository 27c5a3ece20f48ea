#include "update/UpdaterDelegate.h"

#include "platform/UserDefaults.h"
#include "shell/settings/SettingsKeys.h"

namespace orlamo {

std::set<std::string> UpdaterDelegate::allowedChannelsForUpdater() {
    if (!UserDefaults::standardUserDefaults().boolForKey(SettingsKeys::isBetaChannel)) return {};
    return {"beta"};
}

}  // namespace orlamo
