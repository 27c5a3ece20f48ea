#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace orlamo::desktops {

/// One key press with its modifiers, in the numbers of the program.
struct KeyCombination {
    std::int64_t character;  // noCharacter where the key types none
    std::int64_t keyCode;    // virtual key code
    std::int64_t mask;       // EventFlags; Ctrl counts as Command, Alt as Option, Super as Control
    bool operator==(const KeyCombination&) const = default;
};

/// What a desktop holds for an action.
struct KeyBinding {
    bool isSet = false;
    std::optional<KeyCombination> combination;  // absent when unset, or when no single key with modifiers says it
    bool operator==(const KeyBinding&) const = default;
};

/// From "<Primary><Alt>Left", "<Super>s", "Print"; "" and "disabled" are unset.
KeyBinding bindingOfAccelerator(std::string_view accelerator);
/// From "C-A-Left", "W-d", "Print", with the key's name in the case that X has it in.
KeyBinding bindingOfOpenboxKey(std::string_view key);
/// From Qt's Key with its modifier bits; 0 is unset.
KeyBinding bindingOfQtKey(std::int32_t key);

}  // namespace orlamo::desktops
