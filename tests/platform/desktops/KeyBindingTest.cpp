#include "platform/desktops/KeyBinding.h"

#include <gtest/gtest.h>

#include "platform/EventFlags.h"
#include "platform/desktops/Desktop.h"

namespace orlamo::desktops {
namespace {

constexpr std::int64_t ctrl = EventFlags::command;
constexpr std::int64_t alt = EventFlags::option;
constexpr std::int64_t super = EventFlags::control;
constexpr std::int64_t shift = EventFlags::shift;

struct Written {
    std::string_view accelerator;
    std::int64_t keyCode;
    std::int64_t mask;
    std::int64_t character = 65535;
};

class Accelerator : public testing::TestWithParam<Written> {};

TEST_P(Accelerator, BecomesAKeyCodeAndAMask) {
    const auto& [accelerator, keyCode, mask, character] = GetParam();
    const auto binding = bindingOfAccelerator(accelerator);
    EXPECT_TRUE(binding.isSet);
    ASSERT_TRUE(binding.combination.has_value()) << accelerator;
    EXPECT_EQ(*binding.combination, (KeyCombination{character, keyCode, mask})) << accelerator;
}

INSTANTIATE_TEST_SUITE_P(
    OfTheDesktops, Accelerator,
    testing::Values(Written{"<Super>s", 1, super, 's'}, Written{"<Super>S", 1, super, 's'},
                    Written{"<Primary><Alt>Left", 123, ctrl | alt}, Written{"<Shift>Print", 105, shift},
                    Written{"Print", 105, 0}, Written{"<Control><Alt>Tab", 48, ctrl | alt, '\t'},
                    Written{"<Mod4>d", 2, super, 'd'}, Written{"<Alt><Super>8", 28, alt | super, '8'},
                    Written{"<Super>Above_Tab", 50, super, '`'},
                    Written{"<Ctrl><Shift><Alt>R", 15, ctrl | shift | alt, 'r'},
                    Written{"<control><alt>page_up", 116, ctrl | alt}, Written{"<Alt>Prior", 116, alt},
                    Written{"<Meta>space", 49, super, ' '}, Written{"<Primary><Alt>KP_1", 83, ctrl | alt, '1'},
                    Written{"<Super>KP_Left", 86, super, '4'}, Written{"<Alt>F1", 122, alt},
                    Written{"<Super>equal", 24, super, '='}));

TEST(KeyBinding, IsUnsetForTheTextsThatMeanSo) {
    for (const auto* text : {"", "disabled", "Disabled"}) EXPECT_EQ(bindingOfAccelerator(text), KeyBinding()) << text;
    EXPECT_EQ(bindingOfQtKey(0), KeyBinding());
}

TEST(KeyBinding, OfWhatNoKeyWithModifiersSaysIsSetWithoutCombination) {
    for (const auto* text : {"Super_L", "XF86Search", "<Super>", "<Super", "<Hyper>a", "<>a", "<Super>plus", "F13",
                             "0x61", "<Super>eacute", "\xC3\xA9", "<Alt>a b"}) {
        EXPECT_EQ(bindingOfAccelerator(text), (KeyBinding{.isSet = true, .combination = {}})) << text;
    }
}

TEST(KeyBinding, IsReadFromQtKeys) {
    const std::vector<std::pair<std::int32_t, KeyCombination>> cases = {
        {0x10000044, {'d', 2, super}},  // Meta+D
        {0x0e000053, {'s', 1, ctrl | alt | shift}},
        {0x03000009, {65535, 105, shift}},      // Shift+Print
        {0x08000020, {' ', 49, alt}},           // Alt+Space
        {0x0b000002, {'\t', 48, alt | shift}},  // Alt+Shift+Backtab
        {0x2c000031, {'1', 83, ctrl | alt}},    // Ctrl+Alt+keypad 1
        {0x21000005, {3, 76, 0}},               // keypad Enter
        {0x05000038, {65535, 101, ctrl}},       // Ctrl+F9
    };
    for (const auto& [key, combination] : cases) {
        EXPECT_EQ(bindingOfQtKey(key), (KeyBinding{true, combination})) << std::hex << key;
    }
    for (const std::int32_t key : {-1, 0x11000022, 0x1000002b, 0x010000a0, 0x10000000}) {
        EXPECT_EQ(bindingOfQtKey(key), (KeyBinding{true, std::nullopt})) << std::hex << key;
    }
}

TEST(Desktop, IsTheFirstKnownNameOfTheList) {
    const std::vector<std::pair<std::string_view, std::optional<Desktop>>> cases = {
        {"GNOME", Desktop::gnome},
        {"ubuntu:GNOME", Desktop::gnome},
        {"GNOME-Classic:GNOME", Desktop::gnome},
        {"Budgie:GNOME", Desktop::budgie},
        {"GNOME-Flashback:GNOME", Desktop::flashback},
        {"Unity:Unity7:ubuntu", Desktop::gnomeBased},
        {"X-Cinnamon", Desktop::cinnamon},
        {"MATE", Desktop::mate},
        {"xfce", Desktop::xfce},
        {"KDE", Desktop::kde},
        {"", std::nullopt},
        {":openbox::", std::nullopt},
    };
    for (const auto& [names, desktop] : cases) EXPECT_EQ(desktopOfNames(names), desktop) << names;
}

}  // namespace
}  // namespace orlamo::desktops
