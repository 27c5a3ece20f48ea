#pragma once

#include <set>
#include <string>

#include "platform/Updater.h"

namespace orlamo {

/// Lets the update controller take the beta channel when the setting isBetaChannel says so.
class UpdaterDelegate : public SPUUpdaterDelegate {
public:
    /// {"beta"}, or nothing beside the default channel. Reads the setting anew each time.
    std::set<std::string> allowedChannelsForUpdater() override;
};

}  // namespace orlamo
