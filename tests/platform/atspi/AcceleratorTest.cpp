#include "platform/atspi/Accelerator.h"

#include <gtest/gtest.h>

#include <sstream>

namespace orlamo::atspi {
namespace {

std::optional<Shortcut> parse(std::string_view text) {
    return parseShortcut(text, baseKeyOfShiftedOnUsLayout);
}

// "modifiers:key", and "#glyph" where there is one.
std::string told(std::string_view text) {
    const auto shortcut = parse(text);
    if (!shortcut) return "none";
    return std::to_string(shortcut->modifiers) + ":" + shortcut->character +
           (shortcut->glyph != 0 ? "#" + std::to_string(shortcut->glyph) : "");
}

TEST(Accelerator, BecomesTheModifierNumberAndTheKey) {
    std::istringstream rows(  // as GTK, Qt, and Qt in other languages write them
        "<Primary>n 0:N  <Control>n 0:N  <Primary><Shift>n 1:N  <Shift><Primary>Tab 1:⇥  <Alt>F4 10:#114  "
        "<Super>x 12:X  <Primary><Alt><Super>x 6:X  <Release>x 8:X  <Primary>plus 1:=  <Primary>equal 0:=  "
        "<Primary>comma 0:,  <Primary>bracketleft 0:[  <Primary>BackSpace 0:⌫  <Alt>Return 10:↩  "
        "<Primary>space 0:SPACE  Escape 8:⎋  F11 8:#121  <Primary>Page_Up 0:#98  <Alt>Left 10:#100  Delete 8:#10  "
        "Ctrl+N 0:N  Ctrl+Shift+S 1:S  Ctrl++ 1:=  Ctrl+Shift++ 1:=  Ctrl+- 0:-  Ctrl+, 0:,  Ctrl+; 0:;  "
        "Ctrl+? 1:/  Ctrl+Shift+= 1:=  Meta+X 12:X  Ctrl+Alt+Shift+V 3:V  Shift+F3 9:#113  F5 8:#115  F13 8:#135  "
        "Ctrl+Space 0:SPACE  Ctrl+PgUp 0:#98  Ctrl+Ins 0:  + 9:=  Ctrl+é 0:  Shift+Backtab 9:⇥  "
        "Strg+N 0:N  Strg+Umschalt+N 1:N  Ctrl+Maj+N 1:N  Ctrl+Mayús+N 1:N  Ctrl+Skift+N 1:N  Strg+Entf 0:#10");
    for (std::string text, shortcut; rows >> text >> shortcut;) EXPECT_EQ(told(text), shortcut) << text;
}

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
