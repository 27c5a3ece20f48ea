#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orlamo {

/// Names keys and modifiers. Modifier texts are concatenations of "⌃", "⌥", "⇧", "⌘" in this order, or "fn".
/// Nothing fails: what is unknown reads as said at each operation.
class KeyManager {
public:
    static KeyManager& shared();

    /// The virtual key code of a key text as a cell shows it ("A", "SPACE"); exact, and none for any other text.
    std::optional<std::int64_t> keyCodeForKeyText(std::string_view keyText) const;

    /// The key text of a virtual key code: "nil" for -1, "??" for a code that has no name. Static text.
    std::string_view keyTextForKeyCode(std::int64_t keyCode) const;

    /// The symbols of the four modifier bits of EventFlags; other bits do not count. Static text.
    std::string_view modifierSymbolsForMask(std::uint64_t mask) const;

    /// Whether exactly these modifiers are held now, in any order. Absent and "fn": nothing at all is held, that is the
    /// keyboard's whole state is EventFlags::noneHeld.
    bool matchesHeldModifiers(std::optional<std::string_view> modifierText) const;

    /// Replaces an empty key text by the symbol of a menu item's glyph number, where that is known.
    void applyMenuGlyph(std::optional<std::string>& keyText, const std::optional<std::string>& glyph) const;
};

}  // namespace orlamo
