#include "platform/x11/KeyboardLayout.h"

#include <gtest/gtest.h>

#include "platform/EventFlags.h"
#include "platform/x11/KeyTable.h"
#include "tests/platform/x11/NamedKeymap.h"

namespace orlamo::x11 {
namespace {

constexpr std::uint16_t codeA = 0, codeZ = 6, codeQ = 12, codeOne = 18, codeEqual = 24, codeP = 35, codeUp = 126,
                        codeKeypadSeven = 89;

TEST(KeyboardLayout, AVirtualKeyCodeIsWhereAKeyTypesItByGroupThenByWhatIsHeld) {
    const struct {
        const char* layout;
        const char* variant;
        std::uint16_t code;
        std::vector<KeyPlace> places;
    } rows[] = {
        {"us", "", codeA, {{aKey}}},
        {"us", "", graveKeyCode, {{aboveTabKey}, {aboveTabKey, 0, false, false}}},
        {"us", "", codeKeypadSeven, {{keypadSeven}, {keypadSeven, 0, false, true}}},
        {"de", "", codeZ, {{yKey}}},
        {"de", "", codeEqual, {{digitZeroKey, 0, false, true}}},
        {"fr", "", codeA, {{qKey}}},
        {"fr", "", codeOne, {{digitOneKey, 0, false, true}}},
        {"us", "dvorak", codeP, {{27}}},
        {"ru", "", codeA, {}},
        {"us,ru", "", codeQ, {{qKey}}},
        {"us,ru", "", codeOne, {{digitOneKey}, {digitOneKey, 1}}},
        {"us,ru", "", codeUp, {{upKey}, {upKey, 1}}},
        {"us,de", "", codeZ, {{zKey}, {yKey, 1}}},
        {"de", "", graveKeyCode, {{aboveTabKey, 0, false, false}}},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(layoutNamed(row.layout, row.variant).placesOf(row.code), row.places)
            << row.layout << row.variant << " code " << row.code;
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
    EXPECT_EQ(us.baseKeyOfShifted(U'{', 1), U'[') << "typed in another group only";
    EXPECT_EQ(us.baseKeyOfShifted(U'é', 0), std::nullopt);
    EXPECT_EQ(layoutNamed("de,us").baseKeyOfShifted(U'{', 0), std::nullopt) << "AltGr types it";
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
    EXPECT_TRUE(none.placesOf(codeA).empty());
    EXPECT_EQ(none.baseKeyOfShifted(U'+', 0), std::nullopt);
    EXPECT_EQ(none.eventFlags(0xff), 0U);
    EXPECT_EQ(none.modifierKey(EventFlags::shift), std::nullopt);
    EXPECT_FALSE(none.isEscape(escapeKey));
}

}  // namespace
}  // namespace orlamo::x11
