#include "platform/x11/PostingPlan.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/EventFlags.h"
#include "platform/x11/KeyTable.h"
#include "tests/platform/x11/NamedKeymap.h"

namespace orlamo::x11 {
namespace {

constexpr std::uint16_t codeA = 0, codeZ = 6, codeQ = 12, codeOne = 18, codeUp = 126;
constexpr std::uint64_t functionKey = 0x800000, numericPad = 0x200000;

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

TEST(PostingPlan, RefusesModifiersThatSwitchTheLayout) {
    const KeyboardLayout layout = layoutNamed("us,ru", "", "grp:alt_shift_toggle");
    EXPECT_EQ(plan(layout, {}, codeUp, EventFlags::option | EventFlags::shift),
              (std::variant<PostingPlan, Refusal>(Refusal{"these modifiers switch the layout"})));
    EXPECT_TRUE(std::holds_alternative<PostingPlan>(plan(layout, {}, codeUp, EventFlags::option)));
}

TEST(PostingPlan, RefusesWhatItCouldNotTypeOrWouldDisturb) {
    const KeyboardLayout layout = layoutNamed("us,ru");
    std::bitset<256> qDown;
    qDown.set(qKey);
    std::bitset<256> controlDown;
    controlDown.set(leftControl);
    const struct {
        const char* why;
        HeldKeys keyboard;
        std::uint16_t code;
        std::uint64_t flags;
    } rows[] = {
        {"held beyond the combination", {.held = shiftBit}, codeQ, EventFlags::command},
        {"AltGr held", {.held = mod5Bit}, codeQ, EventFlags::command},
        {"a Ctrl that is locked", {.locked = controlBit}, codeQ, EventFlags::option},
        {"the key is down", {.down = qDown}, codeQ, EventFlags::command},
        {"the modifier's key is down though it does not count", {.down = controlDown}, codeQ, EventFlags::command},
        {"a code without a key", {}, 10, 0},
        {"a code out of range", {}, 40000, 0},
        {"minus one as it arrives", {}, 65535, 0},
    };
    for (const auto& row : rows) {
        EXPECT_TRUE(std::holds_alternative<Refusal>(plan(layout, row.keyboard, row.code, row.flags))) << row.why;
    }
    EXPECT_TRUE(std::holds_alternative<Refusal>(plan(layoutNamed("ru"), {}, codeQ, EventFlags::command)));
}

TEST(PostingPlan, CapsLockAndNumLockDoNotMatter) {
    EXPECT_EQ(plan(layoutNamed("us"), {.locked = lockBit | mod2Bit}, codeA, EventFlags::command),
              (std::variant<PostingPlan, Refusal>(PostingPlan{{leftControl}, aKey})));
}

TEST(PostingPlan, AKeyboardWithoutKeysRefuses) {
    EXPECT_TRUE(std::holds_alternative<Refusal>(plan(KeyboardLayout(nullptr), {}, codeA, 0)));
}

}  // namespace
}  // namespace orlamo::x11
