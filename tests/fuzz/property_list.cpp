// A property list, and the hot keys of one through the catalogue.
#include <algorithm>

#include "core/KeyManager.h"
#include "core/SystemShortcuts.h"
#include "platform/plist/LibplistParser.h"
#include "tests/doubles/FakeDesktop.h"
#include "tests/fuzz/FuzzInput.h"

namespace orlamo::fuzz {
namespace {

std::size_t levels(const PropertyList& list) {
    std::size_t below = 0;
    if (const auto* const array = list.get<PropertyList::Array>()) {
        for (const PropertyList& each : *array) below = std::max(below, levels(each));
    } else if (const auto* const dictionary = list.get<PropertyList::Dictionary>()) {
        for (const auto& [key, each] : *dictionary) below = std::max(below, levels(each));
    }
    return below + 1;
}

}  // namespace

void property_list(std::string_view bytes) {
    const auto* const data = reinterpret_cast<const std::uint8_t*>(bytes.data());
    const auto [value, error] = plist::LibplistParser().propertyListWithData({data, bytes.size()});
    require(error.empty() || value == PropertyList(), "what is refused has no value");
    require(levels(value) <= 64, "no more than 64 levels");
    value.description();

    FakeDesktop desktop;
    desktop.bundle.resources["com.apple.symbolichotkeys.plist"] = "/dev/null";
    desktop.parser.result.value = value;
    const PropertyList* const keys = value.at("AppleSymbolicHotKeys");
    desktop.preferences.setHotKeys(keys != nullptr ? *keys : value);
    const auto entries = loadSystemShortcuts();
    describe(entries);
    const auto isRecord = [](const SystemShortcutEntry& entry) { return entry.index() == 1; };
    require(static_cast<std::size_t>(std::ranges::count_if(entries, isRecord)) == systemKeyCombos.size(),
            "each shortcut has its keys");
    for (const SystemKeyCombo& combo : systemKeyCombos) {
        require(KeyManager::shared().keyTextForKeyCode(combo.keycode) != "??", "a key that is shown has a name");
    }
}

}  // namespace orlamo::fuzz
