#pragma once

#include <vector>

#include "platform/Interface.h"

namespace orlamo {

/// The small views and scroll views that any interface file of the preferences may name.
std::vector<InterfaceClass> interfaceClasses();

}  // namespace orlamo
