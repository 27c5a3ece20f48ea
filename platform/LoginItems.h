#pragma once

#include <string_view>

#include "platform/Service.h"

namespace orlamo {

/// What starts when the user logs in.
class LoginItems : public Service<LoginItems> {
public:
    virtual ~LoginItems() = default;
    /// Registers or removes the helper with that identifier. False when that could not be done.
    virtual bool SMLoginItemSetEnabled(std::string_view identifier, bool enabled) = 0;
};

}  // namespace orlamo
