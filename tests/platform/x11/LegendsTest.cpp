#include "platform/x11/Legends.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace orlamo::x11 {
namespace {

TEST(Legends, EveryCombinationHasOneOfItsOwn) {
    std::set<std::string> printed;
    for (unsigned bits = 1; bits < 16; ++bits) {
        std::string text;
        if ((bits & 1) != 0) text += "⌃";
        if ((bits & 2) != 0) text += "⌥";
        if ((bits & 4) != 0) text += "⇧";
        if ((bits & 8) != 0) text += "⌘";
        const std::string legend = modifierLegendOf(text, "Ctrl");
        EXPECT_EQ(legend.find("⌘"), std::string::npos) << text;
        EXPECT_EQ(legend.find("⌥"), std::string::npos) << text;
        EXPECT_EQ(legend.find("⌃"), std::string::npos) << text;
        EXPECT_TRUE(printed.insert(legend).second) << text << " reads like another: " << legend;
    }
}

TEST(Legends, KeysReadAsTheKeyboardPrintsThem) {
    EXPECT_EQ(modifierLegendOf("⇧⌘", "Ctrl"), "⇧Ctrl");
    EXPECT_EQ(modifierLegendOf("⇧⌘", "Strg"), "⇧Strg");
    EXPECT_EQ(modifierLegendOf("⌃", "Strg"), "Super");
    EXPECT_EQ(keyLegendOf("F13"), "Prt");
    EXPECT_EQ(keyLegendOf("HELP"), "Ins");
    EXPECT_EQ(keyLegendOf("DELETE"), "⌦");
}

TEST(Legends, OtherTextsStayAsTheyAre) {
    for (const char* const text : {"", "Q", "F5", "⌫", "??", "←"}) EXPECT_EQ(keyLegendOf(text), text);
    for (const char* const text : {"", "⌘⇧", "x"}) EXPECT_EQ(modifierLegendOf(text, "Ctrl"), text);
}

}  // namespace
}  // namespace orlamo::x11
