#include "platform/x11/KeyTable.h"

#include <gtest/gtest.h>

#include <set>

#include "platform/x11/KeyNames.h"

namespace orlamo::x11 {
namespace {

TEST(KeyTable, EveryNamedVirtualKeyCodeHasAKeyAndEveryOtherHasNone) {
    const std::set<int> unnamed{10, 54, 55, 56, 57, 58, 59, 60, 61, 62,  63,  64,  66,  68,  70, 72,
                                73, 74, 77, 79, 80, 90, 93, 94, 95, 102, 104, 106, 108, 110, 112};
    for (int code = 0; code <= 126; ++code) {
        EXPECT_EQ(keyRow(static_cast<std::uint16_t>(code)) != nullptr, !unnamed.contains(code)) << code;
    }
    EXPECT_EQ(keyRow(127), nullptr);
    EXPECT_EQ(keyRow(65535), nullptr);
}

TEST(KeyTable, AKeysymLeadsBackToItsCode) {
    for (std::uint16_t code = 0; code <= 126; ++code) {
        const KeyRow* const row = keyRow(code);
        if (row == nullptr || code == 52) continue;  // 36 and 52 are the same key here
        EXPECT_EQ(virtualKeyCodeForKeysym(row->keysym), code);
    }
}

TEST(KeyNames, AcceleratorNamesBecomeVirtualKeyCodes) {
    const struct {
        const char* name;
        std::optional<std::uint16_t> code;
    } rows[] = {
        {"a", 0},          {"A", 0},         {"Page_Up", 116},      {"Print", 105},
        {"Above_Tab", 50}, {"KP_Add", 69},   {"F4", 118},           {"Left", 123},
        {"space", 49},     {"Return", 36},   {"Tab", 48},           {"ISO_Left_Tab", 48},
        {"KP_End", 83},    {"Escape", 53},   {"grave", 50},         {"Super_L", {}},
        {"plus", {}},      {"F13", {}},      {"XF86AudioMute", {}}, {"", {}},
        {"page up", {}},   {"NoSymbol", {}},
    };
    for (const auto& row : rows) EXPECT_EQ(virtualKeyCodeForKeysymName(row.name), row.code) << row.name;
}

}  // namespace
}  // namespace orlamo::x11
