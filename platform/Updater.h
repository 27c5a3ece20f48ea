#pragma once

#include <memory>
#include <set>
#include <string>

#include "platform/Service.h"

namespace orlamo {

/// Answers what the update controller asks.
class SPUUpdaterDelegate {
public:
    virtual ~SPUUpdaterDelegate() = default;
    /// The channels that updates may come from beside the default one. Asked anew at every check.
    virtual std::set<std::string> allowedChannelsForUpdater() = 0;
};

/// Looks for newer versions in the feed that the information dictionary names (SUFeedURL), and shows what it finds in
/// windows of its own. It never downloads or runs anything.
class SPUStandardUpdaterController {
public:
    enum class Origin { launch, user };

    virtual ~SPUStandardUpdaterController() = default;
    /// Starts a check the user sees; one at a time. Without a feed address a check at launch shows nothing, and one
    /// that the user asks for says that updates come with the package.
    virtual void checkForUpdates(Origin origin) = 0;
};

/// Makes update controllers.
class Updates : public Service<Updates> {
public:
    enum class StartingUpdater { no, yes };

    virtual ~Updates() = default;
    virtual std::unique_ptr<SPUStandardUpdaterController> initWithStartingUpdater(
        StartingUpdater starting, std::unique_ptr<SPUUpdaterDelegate> updaterDelegate) = 0;
};

}  // namespace orlamo
