#include "platform/x11/KeyboardLayout.h"

#include <gtest/gtest.h>

#include "platform/EventFlags.h"
#include "tests/platform/x11/NamedKeymap.h"

namespace orlamo::x11 {
namespace {

constexpr std::uint16_t codeA = 0, codeZ = 6, codeQ = 12, codeOne = 18, codeEqual = 24, codeP = 35, codeF4 = 118,
                        codeUp = 126, codePrint = 105, codeKeypadSeven = 89;

TEST(KeyboardLayout, AVirtualKeyCodeIsTheKeyThatTypesItInTheGroup) {
    const struct {
        const char* layout;
        const char* variant;
        unsigned group;
        std::uint16_t code;
        std::optional<std::uint8_t> key;
    } rows[] = {
        {"us", "", 0, codeA, aKey},
        {"us", "", 0, codeKeypadSeven, keypadSeven},
        {"de", "", 0, codeZ, yKey},
        {"de", "", 0, codeEqual, {}},
        {"fr", "", 0, codeA, qKey},
        {"fr", "", 0, codeOne, {}},
        {"us", "dvorak", 0, codeP, std::uint8_t{27}},
        {"ru", "", 0, codeA, {}},
        {"ru", "", 0, codeF4, f4Key},
        {"us,ru", "", 0, codeQ, qKey},
        {"us,ru", "", 1, codeQ, {}},
        {"us,ru", "", 1, codeOne, digitOneKey},
        {"us,ru", "", 1, codeUp, upKey},
        {"us,ru", "", 1, codePrint, printKey},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(layoutNamed(row.layout, row.variant).keyFor(row.code, row.group), row.key)
            << row.layout << row.variant << " group " << row.group << " code " << row.code;
    }
}

TEST(KeyboardLayout, FlagsNameTheRolesOfThePcKeys) {
    const KeyboardLayout layout = layoutNamed("de");
    EXPECT_EQ(layout.eventFlags(controlBit), EventFlags::command);
    EXPECT_EQ(layout.eventFlags(mod1Bit), EventFlags::option);
    EXPECT_EQ(layout.eventFlags(mod4Bit), EventFlags::control);
    EXPECT_EQ(layout.eventFlags(shiftBit | controlBit), EventFlags::shift | EventFlags::command);
    EXPECT_EQ(layout.eventFlags(lockBit | mod2Bit | mod5Bit), 0U) << "locks and AltGr";
    EXPECT_EQ(layout.realModifiers(EventFlags::control | EventFlags::shift), mod4Bit | shiftBit);
}

TEST(KeyboardLayout, ModifiersFollowWhatTheUserExchanged) {
    const KeyboardLayout capsIsControl = layoutNamed("us", "", "ctrl:swapcaps");
    EXPECT_EQ(capsIsControl.modifierKey(EventFlags::command), capsLock);
    const KeyboardLayout altIsSuper = layoutNamed("us", "", "altwin:swap_alt_win");
    EXPECT_EQ(altIsSuper.modifierKey(EventFlags::control), leftAlt);
    EXPECT_EQ(altIsSuper.modifierKey(EventFlags::option), leftSuper);
}

TEST(KeyboardLayout, ACharacterThatNeedsShiftHasABaseKey) {
    const KeyboardLayout us = layoutNamed("us,ru");
    EXPECT_EQ(us.baseKeyOfShifted(U'+', 0), U'=');
    EXPECT_EQ(us.baseKeyOfShifted(U'?', 0), U'/');
    EXPECT_EQ(us.baseKeyOfShifted(U'=', 0), std::nullopt);
    EXPECT_EQ(us.baseKeyOfShifted(U'A', 0), std::nullopt) << "a letter's case";
    EXPECT_EQ(us.baseKeyOfShifted(U'?', 1), U'7');
    EXPECT_EQ(us.baseKeyOfShifted(U'é', 0), std::nullopt);
    EXPECT_EQ(layoutNamed("de").baseKeyOfShifted(U'+', 0), std::nullopt) << "has its own key";
    EXPECT_EQ(layoutNamed("fr").baseKeyOfShifted(U'1', 0), U'&');
}

TEST(KeyboardLayout, EscapeIsFoundWhereTheUserPutIt) {
    EXPECT_TRUE(layoutNamed("us").isEscape(escapeKey));
    EXPECT_FALSE(layoutNamed("us").isEscape(capsLock));
    EXPECT_TRUE(layoutNamed("us", "", "caps:swapescape").isEscape(capsLock));
    EXPECT_FALSE(layoutNamed("us").isEscape(0));
}

TEST(KeyboardLayout, WithoutAKeymapNothingIsTyped) {
    const KeyboardLayout none(nullptr);
    EXPECT_EQ(none.keyFor(codeA, 0), std::nullopt);
    EXPECT_EQ(none.eventFlags(0xff), 0U);
    EXPECT_EQ(none.modifierKey(EventFlags::shift), std::nullopt);
    EXPECT_FALSE(none.isEscape(escapeKey));
}

}  // namespace
}  // namespace orlamo::x11
