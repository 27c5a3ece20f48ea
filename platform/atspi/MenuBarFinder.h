#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "platform/atspi/NodeSource.h"

namespace orlamo::atspi {

/// The menu bar under one of the windows, which are given in order of preference; the nearest one of the first window
/// that has any. None: there is none, or the source's time is over. Documents, tables and lists are not entered.
std::optional<ObjectRef> findMenuBar(NodeSource& source, const std::vector<ObjectRef>& windows);

/// The same from a toolkit's cache, without a question.
std::optional<ObjectRef> findKnownMenuBar(const KnownNodes& known, const std::vector<ObjectRef>& windows);

}  // namespace orlamo::atspi
