#include "platform/atspi/Accelerator.h"

#include <gtest/gtest.h>

namespace orlamo::atspi {
namespace {

std::optional<Shortcut> parse(std::string_view text) {
    return parseShortcut(text, baseKeyOfShiftedOnUsLayout);
}

struct Row {
    const char* text;
    std::int64_t modifiers;
    const char* character;
    std::int64_t glyph = 0;
};

class Accelerator : public testing::TestWithParam<Row> {};

TEST_P(Accelerator, BecomesTheModifierNumberAndTheKey) {
    const auto shortcut = parse(GetParam().text);
    ASSERT_TRUE(shortcut) << GetParam().text;
    EXPECT_EQ(shortcut->modifiers, GetParam().modifiers) << GetParam().text;
    EXPECT_EQ(shortcut->character, GetParam().character) << GetParam().text;
    EXPECT_EQ(shortcut->glyph, GetParam().glyph) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(
    Gtk, Accelerator,
    testing::Values(Row{"<Primary>n", 0, "N"}, Row{"<Control>n", 0, "N"}, Row{"<Primary><Shift>n", 1, "N"},
                    Row{"<Shift><Primary>Tab", 1, "⇥"}, Row{"<Alt>F4", 10, "", 114}, Row{"<Super>x", 12, "X"},
                    Row{"<Primary><Alt><Super>x", 6, "X"}, Row{"<Release>x", 8, "X"}, Row{"<Primary>plus", 1, "="},
                    Row{"<Primary>equal", 0, "="}, Row{"<Primary>comma", 0, ","}, Row{"<Primary>bracketleft", 0, "["},
                    Row{"<Primary>BackSpace", 0, "⌫"}, Row{"<Alt>Return", 10, "↩"}, Row{"<Primary>space", 0, "SPACE"},
                    Row{"Escape", 8, "⎋"}, Row{"F11", 8, "", 121}, Row{"<Primary>Page_Up", 0, "", 98},
                    Row{"<Alt>Left", 10, "", 100}, Row{"Delete", 8, "", 10}));

INSTANTIATE_TEST_SUITE_P(Qt, Accelerator,
                         testing::Values(Row{"Ctrl+N", 0, "N"}, Row{"Ctrl+Shift+S", 1, "S"}, Row{"Ctrl++", 1, "="},
                                         Row{"Ctrl+Shift++", 1, "="}, Row{"Ctrl+-", 0, "-"}, Row{"Ctrl+,", 0, ","},
                                         Row{"Ctrl+;", 0, ";"}, Row{"Ctrl+?", 1, "/"}, Row{"Ctrl+Shift+=", 1, "="},
                                         Row{"Meta+X", 12, "X"}, Row{"Ctrl+Alt+Shift+V", 3, "V"},
                                         Row{"Shift+F3", 9, "", 113}, Row{"F5", 8, "", 115}, Row{"F13", 8, "", 135},
                                         Row{"Ctrl+Space", 0, "SPACE"}, Row{"Ctrl+PgUp", 0, "", 98},
                                         Row{"Ctrl+Ins", 0, "", 0}, Row{"+", 9, "="}, Row{"Ctrl+é", 0, ""},
                                         Row{"Shift+Backtab", 9, "⇥"}));

INSTANTIATE_TEST_SUITE_P(Translated, Accelerator,
                         testing::Values(Row{"Strg+N", 0, "N"}, Row{"Strg+Umschalt+N", 1, "N"},
                                         Row{"Ctrl+Maj+N", 1, "N"}, Row{"Ctrl+Mayús+N", 1, "N"},
                                         Row{"Ctrl+Skift+N", 1, "N"}, Row{"Strg+Entf", 0, "", 10}));

TEST(Accelerator, WhatTheInterfaceCannotSayIsNoShortcut) {
    for (const char* const text : {"", "Ctrl+K, Ctrl+S", "Ctrl+,, Ctrl+S", "<Hyper>x", "<Meta>x", "<Primary>KP_Add",
                                   "Ctrl+Num+0", "Foo+N", "Ctrl+XF86Search", "<Primary", "Ctrl+", "\xFF\xFE"}) {
        EXPECT_FALSE(parse(text)) << text;
    }
    EXPECT_FALSE(parse(std::string(1'000'000, '<')));
}

TEST(Accelerator, TheActiveLayoutSaysWhichCharactersNeedShift) {
    const auto german = [](char32_t character) -> std::optional<char32_t> {
        return character == U'=' ? std::optional(U'0') : character == U'*' ? std::optional(U'+') : std::nullopt;
    };
    EXPECT_EQ(parseShortcut("Ctrl+=", german), (Shortcut{1, "0", 0}));
    // The key with the plus on it has no row in the key-text table.
    EXPECT_EQ(parseShortcut("Ctrl++", german), (Shortcut{0, "", 0}));
    EXPECT_EQ(parseShortcut("Ctrl+*", german), (Shortcut{1, "", 0}));
    const auto french = [](char32_t character) { return character == U'1' ? std::optional(U'&') : std::nullopt; };
    EXPECT_EQ(parseShortcut("Ctrl+1", french), (Shortcut{1, "1", 0})) << "its base key has no text";
}

}  // namespace
}  // namespace orlamo::atspi
