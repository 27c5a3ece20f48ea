#include "platform/x11/PostingPlan.h"

#include <gtest/gtest.h>

#include "platform/EventFlags.h"
#include "tests/platform/x11/NamedKeymap.h"

namespace orlamo::x11 {
namespace {

constexpr std::uint16_t codeA = 0, codeQ = 12, codeUp = 126;
constexpr std::uint64_t functionKey = 0x800000, numericPad = 0x200000;

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
        const auto plan = planPosting(layout, {.held = row.held}, codeUp, row.flags);
        EXPECT_EQ(plan, (std::variant<PostingPlan, Refusal>(PostingPlan{row.modifiers, upKey}))) << row.flags;
    }
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
        {"a Latin letter in a Cyrillic group", {.group = 1}, codeQ, EventFlags::command},
        {"a code without a key", {}, 10, 0},
        {"a code out of range", {}, 40000, 0},
        {"minus one as it arrives", {}, 65535, 0},
    };
    for (const auto& row : rows) {
        const auto plan = planPosting(layout, row.keyboard, row.code, row.flags);
        EXPECT_TRUE(std::holds_alternative<Refusal>(plan)) << row.why;
    }
}

TEST(PostingPlan, CapsLockAndNumLockDoNotMatter) {
    const auto plan = planPosting(layoutNamed("us"), {.locked = lockBit | mod2Bit}, codeA, EventFlags::command);
    EXPECT_EQ(plan, (std::variant<PostingPlan, Refusal>(PostingPlan{{leftControl}, aKey})));
}

TEST(PostingPlan, AKeyboardWithoutKeysRefuses) {
    EXPECT_TRUE(std::holds_alternative<Refusal>(planPosting(KeyboardLayout(nullptr), {}, codeA, 0)));
}

}  // namespace
}  // namespace orlamo::x11
