#include "update/UpdateSchedule.h"

#include <string>

#include "platform/Clock.h"
#include "platform/Log.h"
#include "platform/UserDefaults.h"
#include "shell/settings/SettingsKeys.h"
#include "update/DateFormat.h"

namespace orlamo::UpdateSchedule {

bool shouldCheckForUpdates() {
    const UserDefaults::Value stored =
        UserDefaults::standardUserDefaults().objectForKey(SettingsKeys::LastUpdateCheckDate);
    const auto* const text = std::get_if<std::string>(&stored);
    if (text == nullptr) return true;
    const auto date = DateFormat::dateFromString(*text);
    if (!date) return true;
    const bool isDue = Clock::shared().secondsSince1970() - *date > updateInterval;
    logLine(std::string("现在是否是应用程序更新的时候？ ") + (isDue ? "true" : "false"));
    return isDue;
}

void recordUpdateCheckDate() {
    const std::string text = DateFormat::stringFromDate(Clock::shared().secondsSince1970());
    UserDefaults::standardUserDefaults().setObject(SettingsKeys::LastUpdateCheckDate, text);
    logLine("应用程序更新检查已完成，时间：" + text);
}

}  // namespace orlamo::UpdateSchedule
