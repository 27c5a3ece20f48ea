#include <gtest/gtest.h>
#include <xkbcommon/xkbcommon.h>

#include <algorithm>
#include <set>

#include "platform/EventFlags.h"
#include "platform/x11/KeyTable.h"
#include "platform/x11/KeyboardLayout.h"
#include "platform/x11/Legends.h"
#include "platform/x11/PostingPlan.h"

namespace orlamo::x11 {
namespace {

/// The layout that a server with those names would have.
KeyboardLayout layoutNamed(const char* layout, const char* variant = "", const char* options = "") {
    xkb_context* const context = xkb_context_new(XKB_CONTEXT_NO_ENVIRONMENT_NAMES);
    const xkb_rule_names names{"evdev", "pc105", layout, variant, options};
    xkb_keymap* const keymap = xkb_keymap_new_from_names(context, &names, XKB_KEYMAP_COMPILE_NO_FLAGS);
    KeyboardLayout result(keymap);
    xkb_keymap_unref(keymap);
    xkb_context_unref(context);
    return result;
}

// Keycodes of a PC keyboard: the place of the key, whatever it types.
constexpr std::uint8_t escapeKey = 9, digitOneKey = 10, digitZeroKey = 19, qKey = 24, yKey = 29, leftControl = 37,
                       aKey = 38, aboveTabKey = 49, leftShift = 50, zKey = 52, leftAlt = 64, capsLock = 66,
                       keypadSeven = 79, upKey = 111, leftSuper = 133;
// Real modifier bits as the server reports them.
constexpr std::uint8_t shiftBit = 1, lockBit = 2, controlBit = 4, mod1Bit = 8, mod2Bit = 16, mod4Bit = 64,
                       mod5Bit = 128;
constexpr std::uint16_t codeA = 0, codeZ = 6, codeQ = 12, codeOne = 18, codeEqual = 24, codeP = 35, codeUp = 126,
                        codeKeypadSeven = 89;
constexpr std::uint64_t functionKey = 0x800000, numericPad = 0x200000;

TEST(KeyTable, EveryNamedVirtualKeyCodeHasAKeyThatLeadsBackToItAndEveryOtherHasNone) {
    const std::set<int> unnamed{10, 54, 55, 56, 57, 58, 59, 60, 61, 62,  63,  64,  66,  68,  70, 72,
                                73, 74, 77, 79, 80, 90, 93, 94, 95, 102, 104, 106, 108, 110, 112};
    for (std::uint16_t code = 0; code <= 127; ++code) {
        const KeyRow* const row = keyRow(code);
        EXPECT_EQ(row != nullptr, code < 127 && !unnamed.contains(code)) << code;
        if (row == nullptr || code == 52) continue;  // 36 and 52 are the same key here
        EXPECT_EQ(virtualKeyCodeForKeysym(row->keysym), code);
    }
    EXPECT_EQ(keyRow(65535), nullptr);
}

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

TEST(KeyboardLayout, EscapeIsWhereTheUserPutIt) {
    EXPECT_TRUE(layoutNamed("us", "", "caps:swapescape").isEscape(capsLock));
    const KeyboardLayout us = layoutNamed("us");
    for (const std::uint8_t key : {escapeKey, capsLock, std::uint8_t{0}})
        EXPECT_EQ(us.isEscape(key), key == escapeKey) << key;
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

TEST(KeyboardLayout, WithoutAKeymapNothingIsTyped) {
    const KeyboardLayout none(nullptr);
    EXPECT_TRUE(none.placesOf(codeA).empty());
    EXPECT_EQ(none.baseKeyOfShifted(U'+', 0), std::nullopt);
    EXPECT_EQ(none.eventFlags(0xff), 0U);
    EXPECT_EQ(none.modifierKey(EventFlags::shift), std::nullopt);
    EXPECT_FALSE(none.isEscape(escapeKey));
}

bool nobodyAsked(GrabKind, std::uint8_t, std::uint8_t) {
    return false;
}

std::variant<PostingPlan, Refusal> plan(const KeyboardLayout& layout, const HeldKeys& keyboard, std::uint16_t code,
                                        std::uint64_t flags) {
    return planPosting(layout, keyboard, code, flags, {.isGrabbed = nobodyAsked});
}

TEST(PostingPlan, PressesTheModifiersThatAreNotHeldYet) {
    const KeyboardLayout layout = layoutNamed("us");
    const struct {
        std::uint64_t flags;
        std::uint8_t held;
        std::vector<std::uint8_t> modifiers;
    } rows[] = {
        {0, 0, {}},
        {EventFlags::command, 0, {leftControl}},
        {EventFlags::command, controlBit, {}},
        {EventFlags::command | EventFlags::shift, controlBit, {leftShift}},
        {EventFlags::control | EventFlags::option, 0, {leftSuper, leftAlt}},
        {EventFlags::control | functionKey | numericPad, 0, {leftSuper}},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(plan(layout, {.held = row.held}, codeUp, row.flags),
                  (std::variant<PostingPlan, Refusal>(PostingPlan{row.modifiers, upKey})))
            << row.flags;
    }
}

TEST(PostingPlan, PressesTheKeyThatTheDesktopAskedFor) {
    using enum GrabKind;
    struct Grab {
        GrabKind kind;
        std::uint8_t key;
        std::uint8_t modifiers = mod4Bit;
        bool operator==(const Grab&) const = default;
    };
    const struct {
        const char* layout;
        unsigned group;
        std::uint16_t code;
        std::vector<Grab> grabs;
        std::uint8_t key;  // 0: refused
        bool addsShift = false;
    } rows[] = {
        {"us,ru", 1, codeQ, {}, qKey},
        {"us,de", 1, codeZ, {}, yKey},
        {"us,de", 1, codeZ, {{core, zKey}, {core, yKey}}, zKey},
        {"us,de", 1, codeZ, {{xinput, zKey}, {xinput, yKey}}, yKey},
        {"us,de", 1, codeZ, {{xinput, zKey}}, zKey},
        {"us,de", 1, codeZ, {{core, zKey, mod4Bit | shiftBit}}, yKey},
        {"fr", 0, codeOne, {}, 0},
        {"fr", 0, codeOne, {{core, digitOneKey}}, digitOneKey},
        {"fr", 0, codeOne, {{core, digitOneKey, mod4Bit | shiftBit}}, 0},
        {"fr", 0, codeOne, {{core, digitOneKey}}, 0, true},
        {"fr", 0, codeOne, {{core, digitOneKey}, {core, digitOneKey, mod4Bit | shiftBit}}, digitOneKey, true},
        {"us,de", 1, codeZ, {{core, zKey}, {core, yKey}}, zKey, true},
        {"de", 0, graveKeyCode, {}, 0},
        {"de", 0, graveKeyCode, {{xinput, aboveTabKey}}, aboveTabKey},
    };
    for (const auto& row : rows) {
        const auto isGrabbed = [&row](GrabKind kind, std::uint8_t key, std::uint8_t modifiers) {
            return std::ranges::count(row.grabs, Grab{kind, key, modifiers}) != 0;
        };
        const auto made = planPosting(layoutNamed(row.layout), {.group = row.group}, row.code, EventFlags::control,
                                      {isGrabbed, row.addsShift});
        std::vector<std::uint8_t> modifiers{leftSuper};
        if (row.addsShift && row.code == codeOne) modifiers.push_back(leftShift);
        const auto* const plan = std::get_if<PostingPlan>(&made);
        EXPECT_EQ(plan != nullptr ? *plan : PostingPlan{},
                  row.key != 0 ? (PostingPlan{modifiers, row.key}) : PostingPlan{})
            << row.layout << " group " << row.group << " code " << row.code;
    }
}

TEST(PostingPlan, RefusesWhatItCouldNotTypeOrWouldDisturb) {
    std::bitset<256> qDown, controlDown;
    qDown.set(qKey);
    controlDown.set(leftControl);
    const KeyboardLayout twoLayouts = layoutNamed("us,ru"), russian = layoutNamed("ru"), none(nullptr);
    const KeyboardLayout switching = layoutNamed("us,ru", "", "grp:alt_shift_toggle");
    const struct {
        const char* why;
        const KeyboardLayout& layout;
        HeldKeys keyboard;
        std::uint16_t code;
        std::uint64_t flags;
        bool isRefused = true;
    } rows[] = {
        {"held beyond the combination", twoLayouts, {.held = shiftBit}, codeQ, EventFlags::command},
        {"AltGr held", twoLayouts, {.held = mod5Bit}, codeQ, EventFlags::command},
        {"a Ctrl that is locked", twoLayouts, {.locked = controlBit}, codeQ, EventFlags::option},
        {"locks that do not matter", twoLayouts, {.locked = lockBit | mod2Bit}, codeA, EventFlags::command, false},
        {"the key is down", twoLayouts, {.down = qDown}, codeQ, EventFlags::command},
        {"the modifier's key is down though it does not count",
         twoLayouts,
         {.down = controlDown},
         codeQ,
         EventFlags::command},
        {"a code without a key", twoLayouts, {}, 10, 0},
        {"a code out of range", twoLayouts, {}, 40000, 0},
        {"minus one as it arrives", twoLayouts, {}, 65535, 0},
        {"a character of no layout", russian, {}, codeQ, EventFlags::command},
        {"no keyboard", none, {}, codeA, 0},
        {"modifiers that switch the layout", switching, {}, codeUp, EventFlags::option | EventFlags::shift},
        {"one of them", switching, {}, codeUp, EventFlags::option, false},
    };
    for (const auto& row : rows) {
        const auto made = plan(row.layout, row.keyboard, row.code, row.flags);
        EXPECT_EQ(std::holds_alternative<Refusal>(made), row.isRefused) << row.why;
    }
}

TEST(Legends, EveryCombinationHasOneOfItsOwn) {
    std::set<std::string> printed;
    for (unsigned bits = 1; bits < 16; ++bits) {
        std::string text;
        for (int bit = 0; const char* const sign : {"⌃", "⌥", "⇧", "⌘"}) text += (bits >> bit++ & 1) != 0 ? sign : "";
        const std::string legend = modifierLegendOf(text, "Ctrl");
        for (const char* const sign : {"⌘", "⌥", "⌃"}) EXPECT_EQ(legend.find(sign), std::string::npos) << text;
        EXPECT_TRUE(printed.insert(legend).second) << text << " reads like another: " << legend;
    }
}

TEST(Legends, KeysReadAsTheKeyboardPrintsThemAndOtherTextsStay) {
    EXPECT_EQ(modifierLegendOf("⇧⌘", "Ctrl"), "⇧Ctrl");
    EXPECT_EQ(modifierLegendOf("⇧⌘", "Strg"), "⇧Strg");
    EXPECT_EQ(modifierLegendOf("⌃", "Strg"), "Super");
    EXPECT_EQ(keyLegendOf("F13"), "Prt");
    EXPECT_EQ(keyLegendOf("HELP"), "Ins");
    EXPECT_EQ(keyLegendOf("DELETE"), "⌦");
    for (const char* const text : {"", "Q", "F5", "⌫", "??", "←"}) EXPECT_EQ(keyLegendOf(text), text);
    for (const char* const text : {"", "⌘⇧", "x"}) EXPECT_EQ(modifierLegendOf(text, "Ctrl"), text);
}
}  // namespace
}  // namespace orlamo::x11
