#include "core/KeyManager.h"

#include <gtest/gtest.h>

#include <limits>

#include "core/KeyTables.h"
#include "tests/doubles/FakeKeyboard.h"

namespace orlamo {
namespace {

using namespace EventFlags;
const KeyManager& keys = KeyManager::shared();

TEST(KeyManager, KeyTextsHaveTheCodeOfTheMainKey) {
    EXPECT_EQ(keytables::codesByText.size(), 52U);
    const std::pair<std::string_view, std::optional<std::int64_t>> cases[] = {
        {"A", 0},
        {"B", 11},
        {"5", 23},
        {"6", 22},
        {"\\", 42},
        {"`", 50},
        {"'", 39},
        {"⇥", 48},
        {"SPACE", 49},
        {"⌫", 51},
        {"↩", 52},
        {"⎋", 53},
        {"M", 46},
        {"=", 24},
        {"a", std::nullopt},
        {"", std::nullopt},
        {"Space", std::nullopt},
        {"F1", std::nullopt},
        {"AB", std::nullopt},
        {"*", std::nullopt},
        {"??", std::nullopt},
    };
    for (const auto& [text, code] : cases) EXPECT_EQ(keys.keyCodeForKeyText(text), code) << text;
}

TEST(KeyManager, EveryKeyTextIsTheNameOfItsCode) {
    for (const auto& row : keytables::codesByText) {
        EXPECT_EQ(keys.keyCodeForKeyText(row.text), row.code) << row.text;
        EXPECT_EQ(keys.keyTextForKeyCode(row.code), row.text) << row.code;
    }
}

TEST(KeyManager, CodesWithoutANameAreTwoQuestionMarks) {
    const std::int64_t nameless[] = {10, 54, 55, 56, 57, 58, 59, 60, 61, 62,  63,  64,  66,  68,  70, 72,
                                     73, 74, 77, 79, 80, 90, 93, 94, 95, 102, 104, 106, 108, 110, 112};
    std::size_t count = 0;
    for (std::int64_t code = -1; code <= 126; ++code) count += keys.keyTextForKeyCode(code) == "??" ? 1 : 0;
    EXPECT_EQ(count, std::size(nameless));
    for (const std::int64_t code : nameless) EXPECT_EQ(keys.keyTextForKeyCode(code), "??") << code;
    for (const std::int64_t code :
         {std::int64_t{-2}, std::int64_t{127}, std::int64_t{65535}, std::numeric_limits<std::int64_t>::min(),
          std::numeric_limits<std::int64_t>::max()}) {
        EXPECT_EQ(keys.keyTextForKeyCode(code), "??") << code;
    }
}

TEST(KeyManager, KeysShareNamesAcrossTheKeyboard) {
    const std::pair<std::int64_t, std::string_view> cases[] = {
        {-1, "nil"}, {36, "↩"},  {52, "↩"},    {76, "↩"},    {49, "SPACE"}, {117, "DELETE"}, {51, "⌫"},
        {82, "0"},   {92, "9"},  {65, "."},    {78, "-"},    {81, "="},     {75, "/"},       {67, "*"},
        {122, "F1"}, {99, "F3"}, {105, "F13"}, {113, "F15"}, {123, "←"},    {126, "↑"},      {71, "CLEAR"},
    };
    for (const auto& [code, text] : cases) EXPECT_EQ(keys.keyTextForKeyCode(code), text) << code;
}

TEST(KeyManager, ModifierSymbolsComeInTheirFixedOrder) {
    const std::pair<std::uint64_t, std::string_view> cases[] = {
        {0, ""},
        {0x800000, ""},
        {~(command | option | control | shift), ""},
        {command, "⌘"},
        {shift | command, "⇧⌘"},
        {option | shift, "⌥⇧"},
        {control | 0x800000, "⌃"},
        {control | option, "⌃⌥"},
        {~std::uint64_t{0}, "⌃⌥⇧⌘"},
    };
    for (const auto& [mask, text] : cases) EXPECT_EQ(keys.modifierSymbolsForMask(mask), text) << std::hex << mask;
}

TEST(KeyManager, ACellMatchesExactlyTheHeldModifiers) {
    constexpr auto absent = std::nullopt;
    const struct {
        std::uint64_t state;
        std::optional<std::string_view> text;
        bool matches;
    } cases[] = {
        {0x100, absent, true},
        {0x100, "fn", true},
        {0x100, "", true},
        {0x100, "⌘", false},
        {0, absent, false},
        {0, "fn", false},
        {0, "", true},
        {0x800100, absent, false},
        {0x800100, "fn", false},
        {0x800100, "", true},
        {shift | command, "⌘⇧", true},
        {shift | command, "⇧⌘", true},
        {shift | command, "⌘", false},
        {shift | command, "⌘⇧⌥", false},
        {shift | command, "⌘⌥", false},
        {shift | command, "fn", false},
        {shift | command, "", false},
        {command | 0x100, "⌘", true},
        {command | 0x100, absent, false},
        {command, "c", false},
        {command, "\xE2", false},
    };
    FakeKeyboard keyboard;
    for (const auto& [state, text, matches] : cases) {
        keyboard.flags = state;
        keyboard.reads = 0;
        EXPECT_EQ(keys.matchesHeldModifiers(text), matches) << std::hex << state << ' ' << text.value_or("absent");
        EXPECT_EQ(keyboard.reads, 1);
    }
}

TEST(KeyManager, AGlyphNamesAKeyThatHasNoCharacter) {
    using Text = std::optional<std::string>;
    const struct {
        Text key;
        Text glyph;
        Text result;
    } cases[] = {
        {"", "2", "⇥"},
        {"", "9", "⌴"},
        {"", "23", "⌫"},
        {"", "27", "⎋"},
        {"", "100", "←"},
        {"", "101", "→"},
        {"", "104", "↑"},
        {"", "106", "↓"},
        {"", "148", "fn"},
        {"", "+23", "⌫"},
        {"", "023", "⌫"},
        {"X", "23", "X"},
        {"", "3", ""},
        {"", "-23", ""},
        {"", "+-23", ""},
        {"", "", ""},
        {"", " 23", ""},
        {"", "23 ", ""},
        {"", "23x", ""},
        {"", "0x17", ""},
        {"", "up", ""},
        {"", std::nullopt, ""},
        {"", "99999999999999999999", ""},
        {"", "+", ""},
        {std::nullopt, "23", std::nullopt},
    };
    for (const auto& [key, glyph, result] : cases) {
        Text text = key;
        keys.applyMenuGlyph(text, glyph);
        EXPECT_EQ(text, result) << glyph.value_or("absent");
    }
}

}  // namespace
}  // namespace orlamo
