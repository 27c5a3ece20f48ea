#include "core/KeyManager.h"

#include <algorithm>
#include <bit>
#include <charconv>

#include "core/KeyTables.h"
#include "platform/Keyboard.h"

namespace orlamo {

namespace {

constexpr std::size_t modifierIndex(std::uint64_t mask) {
    return ((mask & EventFlags::control) != 0 ? 1U : 0U) | ((mask & EventFlags::option) != 0 ? 2U : 0U) |
           ((mask & EventFlags::shift) != 0 ? 4U : 0U) | ((mask & EventFlags::command) != 0 ? 8U : 0U);
}

// How many bytes the UTF-8 character has that starts with this one. A byte that starts none may say up to 8, which is
// as good: it is no modifier.
constexpr std::size_t characterLength(char first) {
    return static_cast<std::size_t>(std::max(1, std::countl_one(static_cast<unsigned char>(first))));
}

std::string_view firstCharacter(std::string_view text) {
    return text.substr(0, characterLength(text.front()));
}

std::size_t characterCount(std::string_view text) {
    std::size_t count = 0;
    for (; !text.empty(); text.remove_prefix(firstCharacter(text).size())) ++count;
    return count;
}

bool containsCharacter(std::string_view text, std::string_view character) {
    for (; !text.empty(); text.remove_prefix(firstCharacter(text).size())) {
        if (firstCharacter(text) == character) return true;
    }
    return false;
}

bool containsEachCharacter(std::string_view text, std::string_view of) {
    for (; !of.empty(); of.remove_prefix(firstCharacter(of).size())) {
        if (!containsCharacter(text, firstCharacter(of))) return false;
    }
    return true;
}

// An optional sign and digits, nothing else.
std::optional<std::int64_t> decimalInteger(std::string_view text) {
    if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
    std::int64_t number = 0;
    const char* const end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stopped != end) return std::nullopt;
    return number;
}

}  // namespace

KeyManager& KeyManager::shared() {
    static KeyManager manager;
    return manager;
}

std::optional<std::int64_t> KeyManager::keyCodeForKeyText(std::string_view keyText) const {
    const auto found = std::ranges::lower_bound(keytables::codesByText, keyText, {}, &keytables::KeyRow::text);
    if (found == keytables::codesByText.end() || found->text != keyText) return std::nullopt;
    return found->code;
}

std::string_view KeyManager::keyTextForKeyCode(std::int64_t keyCode) const {
    if (keyCode < keytables::firstCode || keyCode > keytables::lastCode) return "??";
    return keytables::textsByCode[static_cast<std::size_t>(keyCode - keytables::firstCode)];
}

std::string_view KeyManager::modifierSymbolsForMask(std::uint64_t mask) const {
    return keytables::modifierSymbols[modifierIndex(mask)];
}

bool KeyManager::matchesHeldModifiers(std::optional<std::string_view> modifierText) const {
    const std::uint64_t state = Keyboard::shared().modifierFlags();
    if (!modifierText || *modifierText == "fn") return state == EventFlags::noneHeld;
    const std::string_view held = modifierSymbolsForMask(state);
    return characterCount(held) == characterCount(*modifierText) && containsEachCharacter(held, *modifierText);
}

void KeyManager::applyMenuGlyph(std::optional<std::string>& keyText, const std::optional<std::string>& glyph) const {
    if (!keyText || !keyText->empty() || !glyph) return;
    const auto number = decimalInteger(*glyph);
    if (!number) return;
    const auto found = std::ranges::find(keytables::glyphSymbols, *number, &keytables::GlyphRow::glyph);
    if (found != keytables::glyphSymbols.end()) *keyText = found->symbol;
}

}  // namespace orlamo
