#include "platform/atspi/Accelerator.h"

#include <algorithm>
#include <cctype>

#include "platform/atspi/Utf8.h"

namespace orlamo::atspi {
namespace {

enum class Role { command, option, control, shift, release };

struct ModifierName {
    std::string_view name;
    Role role;
};

/// Upper case. The names of GTK and Qt, and what their translations write on European keyboards.
constexpr ModifierName modifierNames[] = {
    {"CTRL", Role::command},     {"CONTROL", Role::command}, {"PRIMARY", Role::command}, {"CTL", Role::command},
    {"STRG", Role::command},     {"ALT", Role::option},      {"MOD1", Role::option},     {"SUPER", Role::control},
    {"MOD4", Role::control},     {"WIN", Role::control},     {"SHIFT", Role::shift},     {"SHFT", Role::shift},
    {"UMSCHALT", Role::shift},   {"UMSCH", Role::shift},     {"MAJ", Role::shift},       {"MAYÚS", Role::shift},
    {"MAYÚSCULAS", Role::shift}, {"MAYÚSCULA", Role::shift}, {"MAYUS", Role::shift},     {"MAIUSC", Role::shift},
    {"MAIÚSCULAS", Role::shift}, {"MAJÚS", Role::shift},     {"SKIFT", Role::shift},     {"SKIFTE", Role::shift},
    {"VAIHTO", Role::shift},     {"RELEASE", Role::release},
};

struct KeyName {
    std::string_view name;
    char32_t character;
};

/// Upper case: keys with a character of their own that are written as a name.
constexpr KeyName namedCharacters[] = {
    {"TAB", U'\t'},       {"ISO_LEFT_TAB", U'\t'}, {"BACKTAB", U'\t'},    {"BACKSPACE", U'\b'},  {"RETURN", U'\r'},
    {"ESCAPE", 0x1B},     {"ESC", 0x1B},           {"SPACE", U' '},       {"LEERTASTE", U' '},   {"ESPACE", U' '},
    {"ESPACIO", U' '},    {"EXCLAM", U'!'},        {"QUOTEDBL", U'"'},    {"NUMBERSIGN", U'#'},  {"DOLLAR", U'$'},
    {"PERCENT", U'%'},    {"AMPERSAND", U'&'},     {"APOSTROPHE", U'\''}, {"QUOTERIGHT", U'\''}, {"PARENLEFT", U'('},
    {"PARENRIGHT", U')'}, {"ASTERISK", U'*'},      {"PLUS", U'+'},        {"COMMA", U','},       {"MINUS", U'-'},
    {"PERIOD", U'.'},     {"SLASH", U'/'},         {"COLON", U':'},       {"SEMICOLON", U';'},   {"LESS", U'<'},
    {"EQUAL", U'='},      {"GREATER", U'>'},       {"QUESTION", U'?'},    {"AT", U'@'},          {"BRACKETLEFT", U'['},
    {"BACKSLASH", U'\\'}, {"BRACKETRIGHT", U']'},  {"ASCIICIRCUM", U'^'}, {"UNDERSCORE", U'_'},  {"GRAVE", U'`'},
    {"QUOTELEFT", U'`'},  {"BRACELEFT", U'{'},     {"BAR", U'|'},         {"BRACERIGHT", U'}'},  {"ASCIITILDE", U'~'},
};

struct GlyphName {
    std::string_view name;
    std::int64_t glyph;
};

/// Upper case: keys without a character, and the numbers that menus have for them.
constexpr GlyphName namedGlyphs[] = {
    {"LEFT", 100},  {"RIGHT", 101},  {"UP", 104},  {"DOWN", 106}, {"HOME", 102},      {"POS1", 102},   {"END", 105},
    {"ENDE", 105},  {"PAGE_UP", 98}, {"PGUP", 98}, {"PRIOR", 98}, {"PAGE_DOWN", 107}, {"PGDOWN", 107}, {"NEXT", 107},
    {"DELETE", 10}, {"DEL", 10},     {"ENTF", 10}, {"SUPPR", 10}, {"CLEAR", 28},      {"ENTER", 4},    {"HELP", 103},
    {"MENU", 109},  {"INSERT", 0},   {"INS", 0},   {"EINFG", 0},
};

struct KeyText {
    char32_t character;
    std::string_view text;
};

constexpr KeyText symbolTexts[] = {{U'\t', "⇥"}, {U'\b', "⌫"}, {U'\r', "↩"}, {0x1B, "⎋"}, {U' ', "SPACE"}};
constexpr std::u32string_view punctuationKeys = U"=-][';\\,/.`";

std::string upperCase(std::string_view text) {
    std::string upper;
    while (!text.empty()) {
        const auto character = takeCharacter(text);
        if (!character) break;
        // Latin-1 letters have their capitals 0x20 below, as the ASCII ones do.
        const bool isLower = (*character >= U'a' && *character <= U'z') || (*character >= 0xE0 && *character <= 0xFE);
        upper += toUtf8(isLower && *character != 0xF7 ? *character - 0x20 : *character);
    }
    return upper;
}

template <class Row, std::size_t size>
const Row* findName(const Row (&rows)[size], std::string_view name) {
    const auto* const row = std::ranges::find(rows, name, &Row::name);
    return row == std::end(rows) ? nullptr : row;
}

struct Held {
    bool command = false, option = false, control = false, shift = false;

    void add(Role role) {
        command |= role == Role::command;
        option |= role == Role::option;
        control |= role == Role::control;
        shift |= role == Role::shift;
    }

    std::int64_t number() const { return (shift ? 1 : 0) + (option ? 2 : 0) + (control ? 4 : 0) + (command ? 0 : 8); }
};

/// Takes the modifiers off the front of "<Primary><Shift>n". False: one of them has no role here.
bool takeBracketed(std::string_view& text, Held& held) {
    while (text.size() > 1 && text[0] == '<') {
        const std::size_t end = text.find('>');
        if (end == std::string_view::npos) return false;
        const auto* const modifier = findName(modifierNames, upperCase(text.substr(1, end - 1)));
        if (modifier == nullptr) return false;
        held.add(modifier->role);
        text.remove_prefix(end + 1);
    }
    return true;
}

/// Takes the modifiers off the front of "Ctrl+Shift+N"; the last key of "Ctrl++" is the plus.
void takeJoined(std::string_view& text, Held& held) {
    while (true) {
        const std::size_t plus = text.find('+');
        if (plus == 0 || plus == std::string_view::npos || plus + 1 == text.size()) return;
        const std::string name = upperCase(text.substr(0, plus));
        const auto* const modifier = findName(modifierNames, name);
        // "Meta" is Qt's word for the Super key. GTK's <Meta> is another modifier, which a PC keyboard lacks.
        if (modifier == nullptr && name != "META") return;
        held.add(modifier == nullptr ? Role::control : modifier->role);
        text.remove_prefix(plus + 1);
    }
}

std::optional<std::string> keyTextOf(char32_t character) {
    if (character >= U'a' && character <= U'z') return toUtf8(character - U'a' + U'A');
    if ((character >= U'A' && character <= U'Z') || (character >= U'0' && character <= U'9')) return toUtf8(character);
    if (punctuationKeys.find(character) != std::u32string_view::npos) return toUtf8(character);
    const auto* const symbol = std::ranges::find(symbolTexts, character, &KeyText::character);
    if (symbol == std::end(symbolTexts)) return std::nullopt;
    return std::string(symbol->text);
}

bool isAsciiLetter(char32_t character) {
    return (character >= U'a' && character <= U'z') || (character >= U'A' && character <= U'Z');
}

/// The glyph of a key without a character; 0 for a known key that menus have no number for; none for an unknown name.
std::optional<std::int64_t> glyphOf(const std::string& name) {
    if (const auto* const glyph = findName(namedGlyphs, name)) return glyph->glyph;
    const bool isFunctionKey =
        name.size() >= 2 && name.size() <= 3 && name[0] == 'F' &&
        std::all_of(name.begin() + 1, name.end(), [](unsigned char c) { return std::isdigit(c); });
    if (!isFunctionKey) return std::nullopt;
    const int number = std::stoi(name.substr(1));
    if (number >= 1 && number <= 12) return 110 + number;
    return number >= 13 && number <= 15 ? 122 + number : 0;
}

/// ", " separates the strokes of a chord, unless the comma is the key itself.
bool isChord(std::string_view text) {
    const std::size_t comma = text.find(", ");
    return comma != std::string_view::npos && comma != 0;
}

}  // namespace

std::optional<char32_t> baseKeyOfShiftedOnUsLayout(char32_t character) {
    constexpr std::u32string_view shifted = U"~!@#$%^&*()_+{}|:\"<>?";
    constexpr std::u32string_view base = U"`1234567890-=[]\\;',./";
    const std::size_t at = shifted.find(character);
    if (at == std::u32string_view::npos) return std::nullopt;
    return base[at];
}

bool hasKeyCode(std::string_view character) {
    if (std::ranges::find(symbolTexts, character, &KeyText::text) != std::end(symbolTexts)) return true;
    const auto single = singleCharacter(character);
    return single && *single > U' ' && keyTextOf(*single) == character;
}

KeyBinding parseKeyBinding(std::string_view text) {
    const std::size_t first = text.find(';');
    const std::size_t second = first == std::string_view::npos ? first : text.find(';', first + 1);
    if (second != std::string_view::npos) return {text.substr(second + 1), {}};
    constexpr std::string_view alt = "Alt+";
    if (text.starts_with(alt) && singleCharacter(text.substr(alt.size()))) return {text, text.substr(alt.size())};
    return {text, {}};
}

std::optional<Shortcut> parseShortcut(std::string_view text, const BaseKeyOfShifted& baseKeyOfShifted) {
    if (text.empty() || text.size() > 100 || isChord(text)) return std::nullopt;
    Held held;
    if (!takeBracketed(text, held)) return std::nullopt;
    takeJoined(text, held);

    auto character = singleCharacter(text);
    if (!character) {
        const std::string name = upperCase(text);
        const auto* const named = findName(namedCharacters, name);
        if (named == nullptr) {
            const auto glyph = glyphOf(name);
            if (!glyph) return std::nullopt;
            return Shortcut{held.number(), {}, *glyph};
        }
        character = named->character;
        held.shift |= name == "BACKTAB" || name == "ISO_LEFT_TAB";
    }

    if (!isAsciiLetter(*character)) {
        if (const auto base = baseKeyOfShifted(*character)) {
            held.shift = true;
            // The French 1 stands on the key of "&", which has no text here: it keeps its own.
            if (keyTextOf(*base)) character = base;
        }
    }
    const auto keyText = keyTextOf(*character);
    if (!keyText) return Shortcut{held.number(), {}, 0};
    return Shortcut{held.number(), *keyText, 0};
}

}  // namespace orlamo::atspi
