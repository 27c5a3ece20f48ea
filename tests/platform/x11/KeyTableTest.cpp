#include "platform/x11/KeyTable.h"

#include <gtest/gtest.h>

#include <set>

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

}  // namespace
}  // namespace orlamo::x11
