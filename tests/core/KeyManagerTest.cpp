#include "core/KeyManager.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <vector>

#include "core/KeyTables.h"
#include "tests/doubles/FakeKeyboard.h"

namespace orlamo {
namespace {

using namespace EventFlags;
constexpr auto none = std::nullopt;
const KeyManager& keys = KeyManager::shared();

TEST(KeyManager, EveryKeyTextIsTheNameOfItsCodeAndNoOtherTextHasOne) {
    EXPECT_EQ(keytables::codesByText.size(), 52U);
    for (const auto& row : keytables::codesByText) {
        EXPECT_EQ(keys.keyCodeForKeyText(row.text), row.code) << row.text;
        EXPECT_EQ(keys.keyTextForKeyCode(row.code), row.text) << row.code;
    }
    const std::pair<std::string_view, std::optional<std::int64_t>> cases[] = {
        {"A", 0},    {"B", 11},     {"5", 23},       {"6", 22},    {"\\", 42},   {"`", 50},   {"'", 39},
        {"⇥", 48},   {"SPACE", 49}, {"⌫", 51},       {"↩", 52},    {"⎋", 53},    {"M", 46},   {"=", 24},
        {"a", none}, {"", none},    {"Space", none}, {"F1", none}, {"AB", none}, {"*", none}, {"??", none}};
    for (const auto& [text, code] : cases) EXPECT_EQ(keys.keyCodeForKeyText(text), code) << text;
}

TEST(KeyManager, KeysShareNamesAcrossTheKeyboardAndWhatHasNoneIsTwoQuestionMarks) {
    const std::pair<std::int64_t, std::string_view> cases[] = {
        {-1, "nil"}, {36, "↩"},  {52, "↩"},    {76, "↩"},    {49, "SPACE"}, {117, "DELETE"}, {51, "⌫"},
        {82, "0"},   {92, "9"},  {65, "."},    {78, "-"},    {81, "="},     {75, "/"},       {67, "*"},
        {122, "F1"}, {99, "F3"}, {105, "F13"}, {113, "F15"}, {123, "←"},    {126, "↑"},      {71, "CLEAR"}};
    for (const auto& [code, text] : cases) EXPECT_EQ(keys.keyTextForKeyCode(code), text) << code;
    using Limits = std::numeric_limits<std::int64_t>;
    const std::int64_t nameless[] = {10,           54,  55,  56,  57,  58,    59,
                                     60,           61,  62,  63,  64,  66,    68,
                                     70,           72,  73,  74,  77,  79,    80,
                                     90,           93,  94,  95,  102, 104,   106,
                                     108,          110, 112, 127, -2,  65535, Limits::min(),
                                     Limits::max()};
    for (const std::int64_t code : nameless) EXPECT_EQ(keys.keyTextForKeyCode(code), "??") << code;
    std::size_t count = 5;
    for (std::int64_t code = -1; code <= 126; ++code) count += keys.keyTextForKeyCode(code) == "??" ? 1 : 0;
    EXPECT_EQ(count, std::size(nameless)) << "all others have a name";
}

TEST(KeyManager, ModifierSymbolsComeInTheirFixedOrder) {
    const std::pair<std::uint64_t, std::string_view> cases[] = {{0, ""},
                                                                {0x800000, ""},
                                                                {~(command | option | control | shift), ""},
                                                                {command, "⌘"},
                                                                {shift | command, "⇧⌘"},
                                                                {option | shift, "⌥⇧"},
                                                                {control | 0x800000, "⌃"},
                                                                {control | option, "⌃⌥"},
                                                                {~std::uint64_t{0}, "⌃⌥⇧⌘"}};
    for (const auto& [mask, text] : cases) EXPECT_EQ(keys.modifierSymbolsForMask(mask), text) << std::hex << mask;
}

TEST(KeyManager, ACellMatchesExactlyTheHeldModifiers) {
    struct Case {
        std::uint64_t state;
        std::vector<std::optional<std::string_view>> matching;
        std::vector<std::optional<std::string_view>> others;
    };
    const Case cases[] = {{0x100, {none, "fn", ""}, {"⌘"}},
                          {0, {""}, {none, "fn", "⌘"}},
                          {0x800100, {""}, {none, "fn"}},
                          {shift | command, {"⌘⇧", "⇧⌘"}, {"⌘", "⌘⇧⌥", "⌘⌥", "fn", "", none}},
                          {command | 0x100, {"⌘"}, {none, "", "c", "\xE2"}}};
    FakeKeyboard keyboard;
    const auto matches = [](auto text) { return keys.matchesHeldModifiers(text); };
    for (const auto& [state, matching, others] : cases) {
        keyboard.flags = state;
        keyboard.reads = 0;
        EXPECT_TRUE(std::ranges::all_of(matching, matches)) << std::hex << state;
        EXPECT_TRUE(std::ranges::none_of(others, matches)) << std::hex << state;
        EXPECT_EQ(keyboard.reads, static_cast<int>(matching.size() + others.size()));
    }
}

TEST(KeyManager, AGlyphNamesAKeyThatHasNoCharacter) {
    using Text = std::optional<std::string>;
    const auto named = [](Text key, const Text& glyph) {
        keys.applyMenuGlyph(key, glyph);
        return key;
    };
    const std::pair<const char*, const char*> symbols[] = {{"2", "⇥"},    {"9", "⌴"},   {"23", "⌫"},  {"27", "⎋"},
                                                           {"100", "←"},  {"101", "→"}, {"104", "↑"}, {"106", "↓"},
                                                           {"148", "fn"}, {"+23", "⌫"}, {"023", "⌫"}};
    for (const auto& [glyph, symbol] : symbols) EXPECT_EQ(named("", glyph), symbol) << glyph;
    const Text meaningless[] = {"3",   "-23",  "+-23", "",  " 23", "23 ",
                                "23x", "0x17", "up",   "+", none,  "99999999999999999999"};
    for (const Text& glyph : meaningless) EXPECT_EQ(named("", glyph), "") << glyph.value_or("absent");
    EXPECT_EQ(named("X", "23"), "X");
    EXPECT_EQ(named(none, "23"), none);
}

}  // namespace
}  // namespace orlamo
