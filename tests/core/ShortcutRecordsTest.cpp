#include "core/ShortcutRecords.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace orlamo {
namespace {

const MenuItemRecord record{"Edit/Find", "Next", "⌘", "G", std::nullopt};

TEST(ShortcutRecords, FieldsAreFoundByTheirKeyNames) {
    EXPECT_EQ(record["Path"], "Edit/Find");
    EXPECT_EQ(record["Title"], "Next");
    EXPECT_EQ(record["Modifier"], "⌘");
    EXPECT_EQ(record["MenuItemCmdChar"], "G");
    EXPECT_FALSE(record["MenuItemCmdGlyph"]);
    EXPECT_FALSE(record["path"]);
}

TEST(ShortcutRecords, TheLogFormLeavesAbsentFieldsOut) {
    EXPECT_EQ(describe(std::vector<MenuEntry>{"Edit", record}),
              R"(["Edit", {"MenuItemCmdChar": "G", "Modifier": "⌘", "Path": "Edit/Find", "Title": "Next"}])");
}

TEST(ShortcutRecords, CellModelsKeepWhatTheyAreMadeFrom) {
    static_assert(!std::is_default_constructible_v<ShortcutsModel>);
    static_assert(!std::is_default_constructible_v<CurrentShortcutsModel>);
    const ShortcutsModel system({1, 2, 3, 4}, "title", "path", "modifier", "key", "glyph", 5, 6);
    EXPECT_EQ(system.keyString + system.menuItemCmdGlyph + system.modifier + *system.path, "keyglyphmodifierpath");
    const CurrentShortcutsModel current({1, 2, 3, 4}, "title", "modifier", "key", "glyph", 5, 6, nullptr);
    EXPECT_EQ(current.keyString + current.menuItemCmdGlyph + current.modifier + current.title, "keyglyphmodifiertitle");
}

}  // namespace
}  // namespace orlamo
