// The texts that toolkits and desktops write for keys: GTK's, Qt's, Openbox's, and Qt's numbers.
#include "core/KeyManager.h"
#include "platform/EventFlags.h"
#include "platform/atspi/Accelerator.h"
#include "platform/atspi/Utf8.h"
#include "platform/desktops/KeyBinding.h"
#include "tests/fuzz/FuzzInput.h"

using namespace orlamo;
using fuzz::require;

namespace {

void check(const std::optional<atspi::Shortcut>& shortcut) {
    if (!shortcut) return;
    require(shortcut->modifiers >= 0 && shortcut->modifiers <= 15, "the modifiers are a sum of the four bits");
    require(shortcut->glyph >= 0 && shortcut->glyph < 256, "the glyph is one of a menu");
    const bool hasKey = shortcut->character.empty() || KeyManager::shared().keyCodeForKeyText(shortcut->character);
    require(hasKey, "a key character is that of a key");
    require(shortcut->character.empty() || shortcut->glyph == 0, "a key has a character or a glyph");
}

void check(const desktops::KeyBinding& binding) {
    constexpr std::uint64_t known = EventFlags::shift | EventFlags::control | EventFlags::option | EventFlags::command;
    require(binding.isSet || !binding.combination, "what is unset has no key");
    if (!binding.combination) return;
    require(binding.combination->keyCode >= 0 && binding.combination->keyCode < 128, "the key is one of a keyboard");
    require((static_cast<std::uint64_t>(binding.combination->mask) & ~known) == 0, "the mask holds modifiers only");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = fuzz::textOf(data, size);
    const atspi::KeyBinding binding = atspi::parseKeyBinding(text);
    check(atspi::parseShortcut(binding.shortcut, atspi::baseKeyOfShiftedOnUsLayout));
    check(atspi::parseShortcut(text, [](char32_t character) { return std::optional(character + 1); }));
    require(binding.possibleMnemonic.empty() || atspi::singleCharacter(binding.possibleMnemonic).has_value(),
            "a mnemonic is one character");
    check(desktops::bindingOfAccelerator(text));
    check(desktops::bindingOfOpenboxKey(text));
    check(desktops::bindingOfQtKey(static_cast<std::int32_t>(fuzz::FuzzInput(data, size).number(4))));
    return 0;
}
