#pragma once

#include <optional>
#include <string>

#include "platform/atspi/Connection.h"
#include "platform/atspi/NodeSource.h"

namespace orlamo::atspi {

/// The toolkit's cache of a program's objects; empty where the toolkit has none, or when it is malformed; none when no
/// answer came by the deadline. Objects that the program has not made yet are not in it: the children of a node are
/// known only where the cache holds as many, with the places 0, 1, 2 ..., as the node says it has.
std::optional<KnownNodes> readCache(Connection& connection, const std::string& bus, Deadline deadline);

}  // namespace orlamo::atspi
