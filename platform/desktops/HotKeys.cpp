#include "platform/desktops/HotKeys.h"

#include "platform/desktops/KeyTable.h"

namespace orlamo::desktops {

void HotKeys::add(int id, const KeyBinding& binding) {
    auto& found = bindings_[id];
    if (found.combination) return;
    found.isSet = found.isSet || binding.isSet;
    found.combination = binding.combination;
}

PropertyList HotKeys::propertyList() const {
    PropertyList::Dictionary entries;
    for (const auto& [id, binding] : bindings_) {
        if (binding.isSet && !binding.combination) continue;
        constexpr KeyCombination noKey{noCharacter, noCharacter, 0};
        const auto [character, keyCode, mask] = binding.combination.value_or(noKey);
        entries[std::to_string(id)] = PropertyList::Dictionary{
            {"enabled", binding.isSet},
            {"value", PropertyList::Dictionary{{"parameters", PropertyList::Array{character, keyCode, mask}}}},
        };
    }
    if (entries.empty()) return {};
    return entries;
}

}  // namespace orlamo::desktops
