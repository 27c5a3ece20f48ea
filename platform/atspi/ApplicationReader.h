#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

#include "platform/atspi/Accelerator.h"
#include "platform/atspi/Connection.h"
#include "platform/atspi/MenuTree.h"

namespace orlamo::atspi {

/// What the reading asks of others. An empty function: the answer named beside it.
struct Options {
    BaseKeyOfShifted baseKeyOfShifted = baseKeyOfShiftedOnUsLayout;
    /// An application's name for people, by process id; empty: the one it gives itself on the bus.
    std::function<std::string(int processIdentifier)> applicationName;
    /// Asked for at each reading, with the time left for it; empty: the desktop is not known.
    std::function<SessionMenu(std::chrono::milliseconds timeLeft)> sessionMenu;
    /// Gives an application the input focus back; false: it cannot. Some enable an item only while they have it.
    std::function<bool(int processIdentifier)> bringForward;
    /// For one whole reading, finding the application included.
    std::chrono::milliseconds readTime{700};
};

/// How a reading went, for measurements.
struct ReadStatistics {
    std::size_t calls = 0;
    std::size_t elements = 0;
    std::size_t elementsRead = 0;
    bool usedCache = false;
    std::chrono::microseconds time{0};
};

/// Programs, by their bus name, that are better asked in another way at the next reading.
struct SlowPrograms {
    unsigned busEpoch = 0;  // another life of the bus gives the names to others
    /// Their cache was not to be had though there was a fair time for it, or holds much besides menus: putting it
    /// together takes longer than the questions that it saves.
    std::unordered_set<std::string> caches;
    /// A reading at their own address, begun with a fair time left, lasted until the time was over, or found a menu bar
    /// and lost the connection. Where the first answer there or the cache was missing, the bus was asked within that
    /// reading, and nothing is held against the address.
    std::unordered_set<std::string> addresses;
};

/// Reads the menus of the application with this process id. On an error the tree stays as it was; a reading that its
/// time ended is no error once there is a menu bar: what came in by then is the tree.
AXError readMenus(Connection& bus, int processIdentifier, const Options& options, Deadline deadline, SlowPrograms& slow,
                  std::shared_ptr<MenuTree>& tree, ReadStatistics& statistics);

}  // namespace orlamo::atspi
