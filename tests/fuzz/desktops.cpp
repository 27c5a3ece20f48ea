// What desktops and toolkits hold as shortcuts.
#include "core/KeyManager.h"
#include "platform/EventFlags.h"
#include "platform/atspi/Accelerator.h"
#include "platform/atspi/Utf8.h"
#include "platform/desktops/Command.h"
#include "platform/desktops/KeyBinding.h"
#include "platform/desktops/OpenboxConfiguration.h"
#include "platform/desktops/OpenboxHotKeys.h"
#include "platform/desktops/PlasmaApplets.h"
#include "platform/desktops/SymbolicHotKeys.h"
#include "tests/doubles/FakeLog.h"
#include "tests/doubles/FakeSettingsSource.h"
#include "tests/fuzz/FuzzInput.h"

namespace orlamo::fuzz {
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

/// The texts that toolkits and desktops write for keys: GTK's, Qt's, Openbox's, and Qt's numbers.
void accelerators(std::string_view bytes) {
    const atspi::KeyBinding binding = atspi::parseKeyBinding(bytes);
    check(atspi::parseShortcut(binding.shortcut, atspi::baseKeyOfShiftedOnUsLayout));
    check(atspi::parseShortcut(bytes, [](char32_t character) { return std::optional(character + 1); }));
    require(binding.possibleMnemonic.empty() || atspi::singleCharacter(binding.possibleMnemonic).has_value(),
            "a mnemonic is one character");
    check(desktops::bindingOfAccelerator(bytes));
    check(desktops::bindingOfOpenboxKey(bytes));
    check(desktops::bindingOfQtKey(static_cast<std::int32_t>(FuzzInput(bytes).number(4))));
}

/// What Xfce and KDE hold as shortcuts: accelerators, command lines, global shortcuts, Plasma's applets.
void desktop_settings(std::string_view bytes) {
    FuzzInput input(bytes);
    FakeSettingsSource source;
    source.xfconf.emplace();
    source.kde.emplace();
    while (!input.isEmpty()) {
        const std::string_view line = input.line();
        const auto end = line.find('=');
        const std::string key(line.substr(0, end));
        const std::string value(end == std::string_view::npos ? "" : line.substr(end + 1));
        source.xfconf->insert_or_assign(key, value);
        const std::int32_t qtKey = static_cast<std::int32_t>(FuzzInput(bytes).number(4));
        source.kde->push_back({key, value, {qtKey, static_cast<std::int32_t>(value.size())}});
        const desktops::Command command = desktops::commandOf(value);
        require(command.program.find('/') == std::string::npos, "a program is named without its folder");
    }
    source.files[std::string(desktops::plasmaAppletsFile)] = bytes;
    for (const std::string& launcher : desktops::plasmaLaunchers(bytes)) {
        require(launcher.find(']') == std::string::npos, "an applet's number is taken out of its brackets");
    }
    for (const auto desktop : {desktops::Desktop::xfce, desktops::Desktop::kde}) {
        desktops::symbolicHotKeys(desktop, source).description();
    }
}

/// A configuration of Openbox.
void openbox(std::string_view bytes) {
    const FakeLog log;
    std::string error;
    const auto bindings = desktops::openboxBindings(bytes, error);
    require(bindings.has_value() == error.empty(), "there are bindings or an error");

    FakeSettingsSource source;
    source.files["openbox/rc.xml"] = bytes;
    const PropertyList hotKeys = desktops::openboxHotKeys("", source);
    require(bindings.has_value() || hotKeys == PropertyList(), "what cannot be read has no hot keys");
    hotKeys.description();
}

}  // namespace orlamo::fuzz
