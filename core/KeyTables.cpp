#include "core/KeyTables.h"

#include <algorithm>

namespace orlamo::keytables {

namespace {

// What a menu's key character is typed with: the main block only, so every text stands for one key.
constexpr std::array<KeyRow, 52> mainBlock{{
    {"A", 0},  {"S", 1},  {"D", 2},      {"F", 3},  {"H", 4},   {"G", 5},  {"Z", 6},  {"X", 7},  {"C", 8},
    {"V", 9},  {"B", 11}, {"Q", 12},     {"W", 13}, {"E", 14},  {"R", 15}, {"Y", 16}, {"T", 17}, {"1", 18},
    {"2", 19}, {"3", 20}, {"4", 21},     {"6", 22}, {"5", 23},  {"=", 24}, {"9", 25}, {"7", 26}, {"-", 27},
    {"8", 28}, {"0", 29}, {"]", 30},     {"O", 31}, {"U", 32},  {"[", 33}, {"I", 34}, {"P", 35}, {"L", 37},
    {"J", 38}, {"'", 39}, {"K", 40},     {";", 41}, {"\\", 42}, {",", 43}, {"/", 44}, {"N", 45}, {"M", 46},
    {".", 47}, {"⇥", 48}, {"SPACE", 49}, {"`", 50}, {"⌫", 51},  {"↩", 52}, {"⎋", 53},
}};

constexpr auto sortedByText(std::array<KeyRow, 52> rows) {
    std::ranges::sort(rows, {}, &KeyRow::text);
    return rows;
}
constexpr auto mainBlockByText = sortedByText(mainBlock);

// What a key is called: the whole keyboard, so several keys share a text.
constexpr std::array<KeyRow, 97> names{{
    {"nil", -1},   {"A", 0},      {"S", 1},      {"D", 2},        {"F", 3},     {"H", 4},     {"G", 5},
    {"Z", 6},      {"X", 7},      {"C", 8},      {"V", 9},        {"B", 11},    {"Q", 12},    {"W", 13},
    {"E", 14},     {"R", 15},     {"Y", 16},     {"T", 17},       {"1", 18},    {"2", 19},    {"3", 20},
    {"4", 21},     {"6", 22},     {"5", 23},     {"=", 24},       {"9", 25},    {"7", 26},    {"-", 27},
    {"8", 28},     {"0", 29},     {"]", 30},     {"O", 31},       {"U", 32},    {"[", 33},    {"I", 34},
    {"P", 35},     {"↩", 36},     {"L", 37},     {"J", 38},       {"'", 39},    {"K", 40},    {";", 41},
    {"\\", 42},    {",", 43},     {"/", 44},     {"N", 45},       {"M", 46},    {".", 47},    {"⇥", 48},
    {"SPACE", 49}, {"`", 50},     {"⌫", 51},     {"↩", 52},       {"⎋", 53},    {".", 65},    {"*", 67},
    {"+", 69},     {"CLEAR", 71}, {"/", 75},     {"↩", 76},       {"-", 78},    {"=", 81},    {"0", 82},
    {"1", 83},     {"2", 84},     {"3", 85},     {"4", 86},       {"5", 87},    {"6", 88},    {"7", 89},
    {"8", 91},     {"9", 92},     {"F5", 96},    {"F6", 97},      {"F7", 98},   {"F3", 99},   {"F8", 100},
    {"F9", 101},   {"F11", 103},  {"F13", 105},  {"F14", 107},    {"F10", 109}, {"F12", 111}, {"F15", 113},
    {"HELP", 114}, {"HOME", 115}, {"PGUP", 116}, {"DELETE", 117}, {"F4", 118},  {"END", 119}, {"F2", 120},
    {"PGDN", 121}, {"F1", 122},   {"←", 123},    {"→", 124},      {"↓", 125},   {"↑", 126},
}};

constexpr std::array<std::string_view, codeCount> indexedByCode() {
    std::array<std::string_view, codeCount> texts{};
    texts.fill("??");
    for (const auto& [text, code] : names) texts[static_cast<std::size_t>(code - firstCode)] = text;
    return texts;
}

constexpr std::array<GlyphRow, 9> glyphs{{
    {2, "⇥"},
    {9, "⌴"},
    {23, "⌫"},
    {27, "⎋"},
    {100, "←"},
    {101, "→"},
    {104, "↑"},
    {106, "↓"},
    {148, "fn"},
}};

}  // namespace

constinit const std::span<const KeyRow> codesByText = mainBlockByText;
constinit const std::array<std::string_view, codeCount> textsByCode = indexedByCode();
constinit const std::array<std::string_view, 16> modifierSymbols{
    "", "⌃", "⌥", "⌃⌥", "⇧", "⌃⇧", "⌥⇧", "⌃⌥⇧", "⌘", "⌃⌘", "⌥⌘", "⌃⌥⌘", "⇧⌘", "⌃⇧⌘", "⌥⇧⌘", "⌃⌥⇧⌘",
};
constinit const std::span<const GlyphRow> glyphSymbols = glyphs;

}  // namespace orlamo::keytables
