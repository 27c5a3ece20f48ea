#include "core/MenuHarvest.h"

#include <gmock/gmock.h>

#include "core/MenuWalk.h"
#include "tests/doubles/FakeDesktop.h"

namespace orlamo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Items = std::vector<FakeElementPtr>;

constexpr int pid = FakeDesktop::editorProcess;
constexpr auto menu = FakeAccessibility::menu;
constexpr auto submenu = FakeAccessibility::submenu;

FakeElementPtr item(std::string_view title, std::string_view key, std::int64_t modifiers = 0) {
    return FakeAccessibility::item(title, key, modifiers);
}

struct MenuHarvest : testing::Test, FakeDesktop {
    MenuHarvest() {
        openEditor({});
        menuItemKeyCodes.clear();
    }
    // Headings as they are, records as "Path|Title|Modifier|Char|Glyph".
    std::vector<std::string> harvested() {
        std::vector<std::string> lines;
        for (const MenuEntry& entry : harvestMenuShortcuts()) {
            if (const auto* const heading = std::get_if<std::string>(&entry)) {
                lines.push_back(*heading);
                continue;
            }
            const auto& record = std::get<MenuItemRecord>(entry);
            lines.push_back(record["Path"].value_or("(absent)"));
            for (const char* const key : {"Title", "Modifier", "MenuItemCmdChar", "MenuItemCmdGlyph"}) {
                lines.back() += "|" + record[key].value_or("(absent)");
            }
        }
        return lines;
    }
    // With a single menu, so that no application's name follows.
    std::vector<std::string> harvestedMenu(Items items) {
        ax.setMenuBar(pid, {menu("Edit", std::move(items))});
        return harvested();
    }
    FakeAccessibility& ax = accessibility;
};

TEST_F(MenuHarvest, MenusAreReadFromLeftToRightAndTheApplicationsNameComesLast) {
    ax.setMenuBar(pid, {menu("Apple", {item("Lock Screen", "Q")}), menu("Editor", {}),
                        menu("File", {item("Open…", "O"), item("Close", "W")})});
    EXPECT_THAT(harvested(), ElementsAre("\uF8FF", "\uF8FF|Lock Screen|⌘|Q|", "File", "File|Open…|⌘|O|",
                                         "File|Close|⌘|W|", "Editor"));
    EXPECT_THAT(log.lines, ElementsAre("Editor"));
    EXPECT_THAT(menuItemTitles, ElementsAre("Lock Screen", "Open…", "Close"));
    EXPECT_THAT(menuItemKeyCodes, ElementsAre(MenuItemKeyCode{12, 0}, MenuItemKeyCode{31, 0}, MenuItemKeyCode{13, 0}));
}

TEST_F(MenuHarvest, TheApplicationComesToTheFrontBeforeItIsRead) {
    clock.whileAsleep = [this] {
        EXPECT_THAT(workspace.activations, ElementsAre(std::pair(pid, 2U)));
        EXPECT_EQ(ax.calls.createApplication, 0);
    };
    const double wakeUp = clock.now + 0.05;
    harvestedMenu({});
    EXPECT_THAT(clock.sleeps, ElementsAre(wakeUp));
}

TEST_F(MenuHarvest, EveryModifierNumberHasItsTextOrDropsTheItem) {
    const std::map<std::int64_t, std::string_view> texts{{0, "⌘"},  {1, "⇧⌘"},  {2, "⌥⌘"},  {3, "⌥⇧⌘"},
                                                         {4, "⌃⌘"}, {5, "⌃⇧⌘"}, {6, "⌃⌥⌘"}, {7, "⌃⌥⇧⌘"},
                                                         {12, "⌃"}, {13, "⌃⇧"}, {24, "fn"}};
    for (std::int64_t number = -3; number < 40; ++number) {
        const auto found = texts.find(number);
        EXPECT_EQ(modifierSymbolsOfMenuItem(number), found == texts.end() ? std::nullopt : std::optional(found->second))
            << number;
    }
    EXPECT_THAT(harvestedMenu({item("Copy", "C", 12), item("No", "N", 8)}), ElementsAre("Edit", "Edit|Copy|⌃|C|"));
    EXPECT_THAT(menuItemKeyCodes, ElementsAre(MenuItemKeyCode{8, 12}));
}

TEST_F(MenuHarvest, AnItemIsKeptByWhatItTells) {
    const auto glyphOnly = FakeAccessibility::titled("Up");
    glyphOnly->with("AXEnabled", true).with("AXMenuItemCmdGlyph", std::string("104"));
    const auto disabled = item("Paste", "V");
    disabled->with("AXEnabled", false);
    const auto silent = item("Find", "F");
    silent->attributeErrors["AXEnabled"] = AXError::cannotComplete;
    silent->attributeErrors["AXMenuItemCmdModifiers"] = AXError::cannotComplete;
    const auto oddKinds = item("Odd", "O");
    oddKinds->with("AXEnabled", std::int64_t{0});
    oddKinds->with("AXMenuItemCmdModifiers", std::string("1")).with("AXMenuItemCmdGlyph", std::int64_t{23});
    const auto numberForKey = item("Number", "");
    numberForKey->with("AXMenuItemCmdChar", std::int64_t{7});
    const auto untitled = item("", "U");
    untitled->attributes.erase("AXTitle");

    EXPECT_THAT(harvestedMenu({glyphOnly, disabled, FakeAccessibility::titled("Separator"), silent, oddKinds,
                               numberForKey, untitled, item("", "E"), item("Blank", ""), item("Lower", "l")}),
                ElementsAre("Edit", "Edit|Up|⌘||104", "Edit|Find|⌘|F|", "Edit|Odd|⌘|O|", "Edit||⌘|U|", "Edit||⌘|E|",
                            "Edit|Blank|⌘||", "Edit|Lower|⌘|l|"));
    EXPECT_THAT(menuItemTitles, ElementsAre("Up", "Find", "Odd", "Blank", "Lower"));
    ASSERT_EQ(menuItemElements.size(), 5U);
    EXPECT_EQ(FakeAccessibility::nodeOf(menuItemElements[1]), silent);
    EXPECT_EQ(menuItemKeyCodes.size(), 4U) << "F, O, U and E; the others have no key code";
}

TEST_F(MenuHarvest, ASubmenuStandsWhereItsItemIs) {
    EXPECT_THAT(harvestedMenu({item("Copy", "C"),
                               submenu("Find", {item("Next", "G"), submenu("Deep", {item("Deepest", "D")}),
                                                item("Previous", "H")}),
                               submenu("Services", {item("Call", "S")}), submenu("服务", {item("Call", "S")}),
                               submenu("Dienste", {item("Anruf", "S")}), item("Paste", "V")}),
                ElementsAre("Edit", "Edit|Copy|⌘|C|", "Edit/Find", "Edit/Find|Next|⌘|G|", "Edit/Find|Previous|⌘|H|",
                            "Edit/Find|Deepest|⌘|D|", "Edit/Dienste", "Edit/Dienste|Anruf|⌘|S|", "Edit|Paste|⌘|V|"));
}

TEST_F(MenuHarvest, ASubmenuAtTheEndKeepsItsTitleUnlessItHasNoneOrThatOfItsMenu) {
    EXPECT_THAT(harvestedMenu({submenu("Find", {item("Next", "G")})}),
                ElementsAre("Edit", "Edit/Find", "Edit/Find|Next|⌘|G|"));
    EXPECT_THAT(harvestedMenu({menu("Find", {item("Next", "G")})}), ElementsAre("Edit", "Edit|Next|⌘|G|"));
    EXPECT_THAT(harvestedMenu({submenu("Edit", {item("Next", "G")}), item("Copy", "C")}),
                ElementsAre("Edit", "Edit|Copy|⌘|C|", "Edit|Next|⌘|G|"));
}

TEST_F(MenuHarvest, ASubmenuTitleSeenBeforeGetsNoSecondHeading) {
    ax.setMenuBar(pid, {menu("A", {submenu("Zoom", {item("In", "I")})}), menu("", {}),
                        menu("B", {submenu("Zoom", {item("Out", "O")})})});
    EXPECT_THAT(harvested(), ElementsAre("A", "A/Zoom", "A/Zoom|In|⌘|I|", "B", "B/Zoom|Out|⌘|O|"));
}

TEST_F(MenuHarvest, AMenuWithoutATitleIsWalkedUnderEmptyText) {
    const auto untitled = menu("", {item("Copy", "C"), submenu("Find", {item("Next", "G")})});
    untitled->attributes.clear();
    ax.setMenuBar(pid, {item("Bare", ""), untitled});
    EXPECT_THAT(harvested(), ElementsAre("Bare", "Bare|Bare|⌘||", "", "|Copy|⌘|C|", "/Find", "/Find|Next|⌘|G|"));
}

TEST_F(MenuHarvest, AnElementThatWaitsInTheQueueIsVisitedOnceButOneSetAsideOnceMore) {
    const auto twice = item("Twice", "T");
    EXPECT_THAT(harvestedMenu({twice, twice}), ElementsAre("Edit", "Edit|Twice|⌘|T|"));
    EXPECT_THAT(harvestedMenu({submenu("Find", {twice, item("Next", "G"), twice}), twice}),
                ElementsAre("Edit", "Edit/Find", "Edit/Find|Twice|⌘|T|", "Edit/Find|Next|⌘|G|", "Edit|Twice|⌘|T|"));
}

TEST_F(MenuHarvest, WhatAMenuLeavesOverIsWalkedWithTheNextOne) {
    Items many;
    for (int i = 0; i < 1200; ++i) many.push_back(item("Item " + std::to_string(i), "I"));
    ax.setMenuBar(pid, {menu("Long", {submenu("Sub", many)}), menu("Next", many)});
    const auto lines = harvested();
    // Each menu has 1000 visits; three go to the first one's containers, two to the second one's.
    ASSERT_EQ(lines.size(), 2U + 997 + 1 + 998 + 1);
    EXPECT_EQ(lines[998], "Long/Sub|Item 996|⌘|I|");
    EXPECT_EQ(lines[999], "Next");
    EXPECT_EQ(lines[1000], "Next/Sub|Item 997|⌘|I|");
    EXPECT_EQ(lines[1000 + 203], "Next|Item 0|⌘|I|");
}

TEST_F(MenuHarvest, WhatCannotBeReadIsSkipped) {
    const auto uncounted = submenu("Uncounted", {item("Lost", "L")});
    uncounted->countError = AXError::cannotComplete;
    const auto unread = submenu("Unread", {item("Lost", "L")});
    unread->childrenError = AXError::invalidUIElement;
    const auto negative = item("Negative", "N");
    negative->reportedCount = -1;
    EXPECT_THAT(harvestedMenu({uncounted, unread, negative, item("Copy", "C")}), ElementsAre("Edit", "Edit|Copy|⌘|C|"));
}

TEST_F(MenuHarvest, WithoutAMenuBarThereIsNothingAndTheOldListsAreGone) {
    const std::pair<const char*, std::function<void(FakeElement & bar)>> cases[] = {
        {"no frontmost application",
         [this](FakeElement&) {
             workspace.frontmost.reset();
             ax.setMenuBar(1, {menu("Edit", {item("Copy", "C")})});
         }},
        {"no such process", [this](FakeElement&) { ax.applications.clear(); }},
        {"no menu bar", [this](FakeElement&) { ax.applications[pid]->attributes.clear(); }},
        {"a text for a menu bar", [this](FakeElement&) { ax.applications[pid]->with("AXMenuBar", std::string("x")); }},
        {"count fails", [](FakeElement& bar) { bar.countError = AXError::failure; }},
        {"children fail", [](FakeElement& bar) { bar.childrenError = AXError::failure; }},
        {"no children", [](FakeElement& bar) { bar.children.clear(); }},
        {"not trusted", [this](FakeElement&) { ax.trusted = false; }},
    };
    menuItemKeyCodes = {{1, 2}};
    for (const auto& [name, fault] : cases) {
        workspace.frontmost = RunningApplication{pid, std::nullopt, ""};
        ax.trusted = true;
        menuItemTitles = {"left over"};
        menuItemElements = {FakeAccessibility::reference(nullptr)};
        const auto bar = ax.setMenuBar(pid, {menu("Edit", {item("Copy", "C")})});
        fault(*bar);
        EXPECT_THAT(harvested(), IsEmpty()) << name;
        EXPECT_THAT(menuItemTitles, IsEmpty()) << name;
        EXPECT_THAT(menuItemElements, IsEmpty()) << name;
        EXPECT_EQ(menuItemKeyCodes.size(), 1U) << name;
    }
}

TEST_F(MenuHarvest, TheLogFormOfWhatWasReadLeavesAbsentFieldsOut) {
    const MenuItemRecord record{"Edit/Find", "Next", "⌘", "G", std::nullopt};
    EXPECT_FALSE(record["path"]) << "no key of a record";
    EXPECT_EQ(describe(std::vector<MenuEntry>{"Edit", record}),
              R"(["Edit", {"MenuItemCmdChar": "G", "Modifier": "⌘", "Path": "Edit/Find", "Title": "Next"}])");
}

TEST_F(MenuHarvest, EachElementIsAskedOnce) {
    harvestedMenu({item("Copy", "C"), FakeAccessibility::titled("Separator"), submenu("Find", {item("Next", "G")})});
    EXPECT_EQ(ax.calls.count, 1 + 1 + 1 + 4) << "bar, its item, the menu, its elements";
    EXPECT_EQ(ax.calls.copyAttributeValues, 1 + 1 + 1 + 1);
    EXPECT_EQ(ax.calls.copyAttributeValue, 1 + 1 + 3 * 1 + 3 * 5) << "bar, top title, container titles, items";
}

}  // namespace
}  // namespace orlamo
