#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "platform/atspi/NodeSource.h"

namespace orlamo::atspi {

/// The menu bar under one of the windows, which are given in order of preference: that of the first window that has
/// any, and of several the first in document order. (LibreOffice has a second one, behind the one that is seen, which
/// names wrong keys.) What the cache knows is not asked. Documents, tables and lists are not entered. None: there is
/// none, or the source's time is over.
std::optional<ObjectRef> findMenuBar(NodeSource& source, const KnownNodes& known,
                                     const std::vector<ObjectRef>& windows);

}  // namespace orlamo::atspi
