#pragma once

#include <map>

#include "platform/PropertyList.h"
#include "platform/desktops/KeyBinding.h"

namespace orlamo::desktops {

/// Collects the bindings of each hot key; the first one that can be written as a key with modifiers counts.
class HotKeys {
public:
    /// The desktop has such an action, on whatever keys.
    void addAction(int id) { bindings_.try_emplace(id); }
    void add(int id, const KeyBinding& binding);

    /// As symbolicHotKeys answers them; absent when there is none.
    PropertyList propertyList() const;

private:
    std::map<int, KeyBinding> bindings_;
};

}  // namespace orlamo::desktops
