#include "platform/x11/Legends.h"

#include <algorithm>
#include <iterator>
#include <span>

namespace orlamo::x11 {

namespace {

struct Legend {
    std::string_view text;
    std::string_view printed;
};

// One rule for all: Shift's arrow leads, words as far as they fit, in the order Ctrl, Alt. "Super" alone is spelled
// out; together with others it is the window mark that most keyboards print on it, and a Ctrl beside Alt gets short.
constexpr Legend modifierLegends[] = {
    {"⌘", "Ctrl"},    {"⇧", "⇧"},       {"⇧⌘", "⇧Ctrl"},  {"⌥", "Alt"}, {"⌥⌘", "Ctrl\u2009Alt"}, {"⌥⇧", "⇧Alt"},
    {"⌥⇧⌘", "⇧^Alt"}, {"⌃", "Super"},   {"⌃⌘", "⊞Ctrl"},  {"⌃⇧", "⊞⇧"}, {"⌃⇧⌘", "⊞⇧Ctrl"},       {"⌃⌥", "⊞Alt"},
    {"⌃⌥⌘", "⊞^Alt"}, {"⌃⌥⇧", "⊞⇧Alt"}, {"⌃⌥⇧⌘", "⊞⇧^A"}, {"fn", "Fn"},
};

// The keyboard standard's signs where the word is wider than its place, or would run into the title behind it.
constexpr Legend keyLegends[] = {
    {"SPACE", "⌴"},  {"DELETE", "⌦"},  {"HOME", "⇱"},  {"END", "⇲"},   {"PGUP", "⇞"},  {"PGDN", "⇟"},
    {"HELP", "Ins"}, {"CLEAR", "Clr"}, {"F13", "Prt"}, {"F14", "Scr"}, {"F15", "Brk"}, {"fn", "Fn"},
};

std::string_view lookUp(std::span<const Legend> legends, std::string_view text) {
    const auto row = std::ranges::find(legends, text, &Legend::text);
    return row != legends.end() ? row->printed : text;
}

}  // namespace

std::string modifierLegendOf(std::string_view modifierText, std::string_view ctrl) {
    std::string legend(lookUp(modifierLegends, modifierText));
    constexpr std::string_view word = "Ctrl";
    if (const auto at = legend.find(word); at != std::string::npos) legend.replace(at, word.size(), ctrl);
    return legend;
}

std::string_view keyLegendOf(std::string_view keyText) {
    return lookUp(keyLegends, keyText);
}

}  // namespace orlamo::x11
