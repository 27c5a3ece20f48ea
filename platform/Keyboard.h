#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/EventFlags.h"
#include "platform/Service.h"

namespace orlamo {

/// The keyboard as the user has it: what is held now, and what its keys are called.
class Keyboard : public Service<Keyboard> {
public:
    virtual ~Keyboard() = default;

    /// The modifiers held at this moment as EventFlags; exactly EventFlags::noneHeld when none is.
    virtual std::uint64_t modifierFlags() = 0;

    /// What this keyboard prints for a modifier text such as "⇧⌘": at most 50 points wide at 14. Other texts as they
    /// are.
    virtual std::string modifierLegend(std::string_view modifierText) const = 0;
    /// What this keyboard prints for a key text such as "F13" or "⌫": at most 25 points wide at 14. Others as they are.
    virtual std::string keyLegend(std::string_view keyText) const = 0;
};

}  // namespace orlamo
