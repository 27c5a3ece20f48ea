#include "platform/atspi/MenuReader.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/atspi/MenuBarFinder.h"
#include "platform/atspi/MenuTree.h"
#include "tests/doubles/FakeNodeSource.h"

namespace orlamo::atspi {
namespace {

using Object = FakeNodeSource::Object;
constexpr std::uint64_t usable = states::enabled | states::sensitive;

class MenuReading : public testing::Test {
protected:
    RawTree read(ReadLimits limits = {}) {
        return MenuReader(source, known, baseKeyOfShifted, limits).read(FakeNodeSource::ref("bar"));
    }
    MenuTree shape() { return shapeMenus(read(), {FakeNodeSource::ref("root"), "Editor"}, session); }

    /// "File[:New(0N)]": a title or "?" per element, its children in brackets.
    static std::string text(const MenuTree& tree, std::uint32_t index = 0) {
        const MenuNode& node = tree.nodes[index];
        std::string line = node.kind == MenuNode::Kind::menu ? ":" : node.title.value_or("?");
        if (node.shortcut) line += "(" + std::to_string(node.shortcut->modifiers) + node.shortcut->character + ")";
        if (node.isEnabled == false) line += "-";
        if (node.children.empty()) return line;
        std::string children;
        for (const std::uint32_t child : node.children) children += (children.empty() ? "" : " ") + text(tree, child);
        return line + "[" + children + "]";
    }

    FakeNodeSource source;
    KnownNodes known;
    BaseKeyOfShifted baseKeyOfShifted = baseKeyOfShiftedOnUsLayout;
    SessionMenu session;
};

TEST_F(MenuReading, QtsPopupsAreFoldedAwayAndEachMenuBarItemHasOneMenu) {
    source.objects = {{"bar", Object{{"file"}, "", ObjectRole::menuBar}},
                      {"file", Object{{"popup"}, "File"}},
                      {"popup", Object{{"new", "line", "recent"}, "", ObjectRole::popupMenu}},
                      {"new", Object{{}, "New", ObjectRole::menuItem, usable, "Ctrl+N"}},
                      {"line", Object{{}, "", ObjectRole::separator}},
                      {"recent", Object{{"popup2"}, "Recent", ObjectRole::menuItem, usable, "Alt+R"}},
                      {"popup2", Object{{"clear"}, "", ObjectRole::popupMenu}},
                      {"clear", Object{{}, "Clear", ObjectRole::menuItem, 0, "Ctrl+K"}}};
    EXPECT_EQ(text(shape()), "?[? Editor File[:[New(0N) Recent[Clear(0K)-]]]]");
}

TEST_F(MenuReading, GtksPaddingAndHiddenItemsAreLeftOut) {
    const std::uint64_t closed = usable | states::visible;
    source.objects = {{"bar", Object{{"file"}, "", ObjectRole::menuBar}},
                      {"file", Object{{"new", "hidden", "nameless", "sub"}, "File", ObjectRole::menu}},
                      {"new", Object{{}, "New      ", ObjectRole::menuItem, closed, "n;<Alt>f:n;<Primary>n"}},
                      {"hidden", Object{{}, "Ghost", ObjectRole::menuItem, usable, ";;<Primary>g"}},
                      {"nameless", Object{{}, "  ", ObjectRole::menuItem, closed, ";;F8"}},
                      {"sub", Object{{"one"}, "Only", ObjectRole::menu, closed}},
                      {"one", Object{{}, "One", ObjectRole::menuItem, closed, ";;<Primary>1"}}};
    EXPECT_EQ(text(shape()), "?[? Editor File[:[New(0N) Only[One(01)]]]]");
}

TEST_F(MenuReading, AMnemonicOfQtIsNoShortcutButAnAltKeyThatTheNameLacksIs) {
    source.objects = {{"bar", Object{{"go"}, "", ObjectRole::menuBar}},
                      {"go", Object{{"a", "b", "c"}, "Go"}},
                      {"a", Object{{}, "Mark", ObjectRole::menuItem, usable, "Alt+M"}},
                      {"b", Object{{}, "Find", ObjectRole::menuItem, usable, "Alt+I"}},
                      {"c", Object{{}, "Lookup", ObjectRole::menuItem, usable, "Alt+u"}}};
    EXPECT_EQ(text(shape()), "?[? Editor Go[:[Mark Find(10I) ?]]]");
}

TEST_F(MenuReading, AMenuBarItemWithoutATitleIsReported) {
    source.objects = {{"bar", Object{{"x"}, "", ObjectRole::menuBar}},
                      {"x", Object{{"new", "open"}, ""}},
                      {"new", Object{{}, "New", ObjectRole::menuItem, usable, "Ctrl+N"}},
                      {"open", Object{{}, "Open", ObjectRole::menuItem, usable, "Ctrl+O"}}};
    EXPECT_EQ(text(shape()), "?[? Editor ?[:[New(0N) Open(0O)]]]");
}

TEST_F(MenuReading, ASessionMenuTakesTheFirstPlace) {
    source.objects = {{"bar", Object{{}, "", ObjectRole::menuBar}}};
    session = {SessionMenuState::present, "Session", {{"Lock", Shortcut{4, "L", 0}, [] { return AXError::noValue; }}}};
    const MenuTree tree = shape();
    EXPECT_EQ(text(tree), "?[Session[:[Lock(4L)]] Editor]");
    EXPECT_EQ(tree.nodes[3].press(), AXError::noValue);
}

TEST_F(MenuReading, ASessionItemNeverHasTheTitleOfAnItemOfTheApplication) {
    source.objects = {{"bar", Object{{"file"}, "", ObjectRole::menuBar}},
                      {"file", Object{{"lock"}, "File"}},
                      {"lock", Object{{}, "Lock", ObjectRole::menuItem, usable, "Ctrl+K"}}};
    session = {SessionMenuState::present, "Session", {{"Lock", Shortcut{4, "L", 0}}, {"Log Out", Shortcut{4, "Q", 0}}}};
    EXPECT_EQ(text(shape()), "?[Session[:[Lock\u2060(4L) Log Out(4Q)]] Editor File[:[Lock(0K)]]]");
}

TEST_F(MenuReading, ForASessionItemWhoseKeyHasNoCodeAnEmptyRowWithAKeyStandsBehindAll) {
    session = {SessionMenuState::present, "Session", {{"Out", Shortcut{2, "DELETE", 0}}, {"In", Shortcut{4, "⎋", 0}}}};
    source.objects = {{"bar", Object{{"a", "b"}, "", ObjectRole::menuBar}},
                      {"a", Object{{"new", "sub"}, "A"}},
                      {"new", Object{{}, "New", ObjectRole::menuItem, usable, "Ctrl+N"}},
                      {"sub", Object{{"one"}, "Sub"}},
                      {"one", Object{{}, "One", ObjectRole::menuItem, usable, "Ctrl+1"}},
                      {"b", Object{{"old"}, "B"}},
                      {"old", Object{{}, "Old", ObjectRole::menuItem, usable, "F2"}}};
    const std::string front = "?[Session[:[Out(2DELETE) In(4⎋)]] Editor ";
    EXPECT_EQ(text(shape()), front + "A[:[New(0N) Sub[One(01)] space(0A)]] B[:[Old(8)]]]");
    source.objects["a"].children = {};
    EXPECT_EQ(text(shape()), front + "A[:] B[:[Old(8)]] space(0A)]");
    session.items[1].shortcut->character = "F12";
    const MenuTree two = shape();
    EXPECT_EQ(text(two), "?[Session[:[Out(2DELETE) In(4F12)]] Editor A[:] B[:[Old(8)]] space(0A) space(0A)]");
    EXPECT_NE(two.nodes.rbegin()[0].object, two.nodes.rbegin()[1].object) << "a walk would take them for one";
}

TEST_F(MenuReading, NothingIsAskedThatTheCacheKnows) {
    const auto ref = FakeNodeSource::ref;
    source.objects = {{"new", Object{{}, "", ObjectRole::menuItem, 0, ";;<Primary>n"}}};
    known[ref("bar")] = {{{ref("file")}}, "", ObjectRole::menuBar, usable};
    known[ref("file")] = {{{ref("new"), ref("tear")}}, "File", ObjectRole::menu, usable};
    known[ref("new")] = {std::vector<ObjectRef>{}, "New", ObjectRole::menuItem, usable};
    known[ref("tear")] = {std::vector<ObjectRef>{}, "", ObjectRole::tearOffMenuItem, usable};
    EXPECT_EQ(text(shape()), "?[? Editor File[:[New(0N)]]]");
    EXPECT_EQ(source.asked, (std::map<Question, int>{{Question::keyBinding, 1}}));
}

TEST_F(MenuReading, TheDeadlineLeavesWhatIsThere) {
    source.objects = {{"bar", Object{{"a", "b"}, "", ObjectRole::menuBar}},
                      {"a", Object{{"new", "old"}, "A"}},
                      {"b", Object{{"new"}, "B"}},
                      {"new", Object{{}, "New", ObjectRole::menuItem, usable, "Ctrl+N"}}};
    source.answersLeft = 5;
    const RawTree raw = read();
    EXPECT_FALSE(raw.isComplete);
    EXPECT_LT(raw.readCount(), raw.nodes.size());
    EXPECT_EQ(text(shapeMenus(raw, {FakeNodeSource::ref("root"), "Editor"}, {})), "?[? Editor A[:[? ?]] B[:]]");
}

TEST_F(MenuReading, AtNoMomentDoesTheDeadlineMakeAMnemonicAShortcutOrAnItemNameless) {
    source.objects = {{"bar", Object{{"go"}, "", ObjectRole::menuBar}},
                      {"go", Object{{"a", "b", "sub"}, "Go"}},
                      {"a", Object{{}, "Mark", ObjectRole::menuItem, usable, "Alt+M"}},
                      {"b", Object{{}, "Find", ObjectRole::menuItem, usable, "Ctrl+F"}},
                      {"sub", Object{{"c", "d"}, "Code", ObjectRole::menuItem, usable, "Ctrl+K"}},
                      {"c", Object{{}, "C", ObjectRole::menuItem, usable, "Ctrl+C"}}};
    const FakeNodeSource whole = source;
    for (std::size_t answers = 1; answers < 30; ++answers) {
        source = whole;
        source.answersLeft = answers;
        for (const MenuNode& node : shape().nodes) {
            if (!node.shortcut) continue;
            EXPECT_TRUE(node.title == "Find" || node.title == "C") << answers << " " << node.title.value_or("none");
        }
    }
}

TEST_F(MenuReading, ATreeThatHoldsItselfIsReadOnce) {
    source.objects = {{"bar", Object{{"bar", "a"}, "", ObjectRole::menuBar}},
                      {"a", Object{{"a", "b", "bar", "b"}, "A"}},
                      {"b", Object{{"a"}, "B", ObjectRole::menuItem, usable, "Ctrl+B"}}};
    EXPECT_EQ(text(shape()), "?[? Editor A[:[B(0B)]]]");
}

TEST_F(MenuReading, ATreeOfEndlessDepthEndsAtTheLimit) {
    source.lie = [](const ObjectRef& object) { return std::vector{FakeNodeSource::ref(object.path + "x")}; };
    const RawTree raw = read();
    EXPECT_EQ(raw.nodes.size(), ReadLimits{}.depth + 1);
    EXPECT_FALSE(raw.isComplete);
}

TEST_F(MenuReading, AMillionChildrenEndAtTheLimit) {
    std::vector<ObjectRef> million;
    for (int i = 0; i < 1'000'000; ++i) million.push_back(FakeNodeSource::ref(std::to_string(i)));
    source.lie = [&](const ObjectRef& object) { return object.path == "bar" ? million : std::vector<ObjectRef>{}; };
    const RawTree raw = read();
    EXPECT_EQ(raw.nodes.size(), ReadLimits{}.elements);
    EXPECT_FALSE(raw.isComplete);
}

TEST_F(MenuReading, LongTextsAreCutOrDropped) {
    const std::string megabyte(1'000'000, 'x');
    source.objects = {{"bar", Object{{"a"}, "", ObjectRole::menuBar}},
                      {"a", Object{{"b", "c", megabyte}, megabyte}},
                      {"b", Object{{}, megabyte, ObjectRole::menuItem, usable, "Ctrl+B"}},
                      {"c", Object{{}, "C", ObjectRole::menuItem, usable, megabyte}}};
    const RawTree raw = read();
    EXPECT_EQ(raw.nodes.size(), 4U);
    EXPECT_EQ(raw.nodes[1].name->size(), 1024U);
    EXPECT_EQ(raw.nodes[2].name->size(), 1024U);
    EXPECT_TRUE(raw.nodes[3].keyBinding.empty());
}

TEST_F(MenuReading, TheMenuBarOfTheFirstWindowThatHasOneIsFoundWithoutEnteringDocuments) {
    source.objects = {{"dialog", Object{{"button"}, "", ObjectRole::dialog}},
                      {"window", Object{{"table", "filler"}, "", ObjectRole::frame}},
                      {"table", Object{{"bar2"}, "", static_cast<ObjectRole>(55)}},
                      {"bar2", Object{{}, "", ObjectRole::menuBar}},
                      {"filler", Object{{"bar"}, "", ObjectRole::filler}},
                      {"bar", Object{{}, "", ObjectRole::menuBar}}};
    const auto ref = FakeNodeSource::ref;
    EXPECT_EQ(findMenuBar(source, known, {ref("dialog"), ref("window")}), ref("bar"));
    EXPECT_EQ(findMenuBar(source, known, {ref("dialog")}), std::nullopt);
    source.answersLeft = 2;
    EXPECT_EQ(findMenuBar(source, known, {ref("window")}), std::nullopt);
}

TEST_F(MenuReading, OfTwoMenuBarsTheFirstInDocumentOrderCounts) {
    const auto pane = static_cast<ObjectRole>(49);
    source.objects = {{"window", Object{{"top", "root"}, "", ObjectRole::frame}},
                      {"top", Object{{"scroll"}, "", ObjectRole::panel}},
                      {"scroll", Object{{"bar"}, "", pane}},
                      {"bar", Object{{}, "", ObjectRole::menuBar}},
                      {"root", Object{{"behind", "more"}, "", ObjectRole::rootPane}},
                      {"behind", Object{{}, "", ObjectRole::menuBar}},
                      {"more", Object{{"panel"}, "", ObjectRole::panel}},
                      {"panel", Object{{}, "", ObjectRole::panel}}};
    const auto ref = FakeNodeSource::ref;
    EXPECT_EQ(findMenuBar(source, known, {ref("window")}), ref("bar"));
    // The window, what it holds, and the scroll pane: nothing behind the first menu bar.
    EXPECT_EQ(source.asked[Question::children], 4);

    source.asked.clear();
    for (const char* const path : {"top", "scroll", "bar", "root", "behind", "more"}) {
        known[ref(path)].role = source.objects[path].role;
    }
    EXPECT_EQ(findMenuBar(source, known, {ref("window")}), ref("bar"));
    EXPECT_EQ(source.asked[Question::role], 0);
}

}  // namespace
}  // namespace orlamo::atspi
