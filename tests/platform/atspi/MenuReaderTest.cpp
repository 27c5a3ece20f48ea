#include "platform/atspi/MenuReader.h"

#include <gtest/gtest.h>

#include "platform/atspi/Element.h"
#include "platform/atspi/MenuBarFinder.h"
#include "platform/atspi/MenuTree.h"
#include "platform/atspi/Utf8.h"
#include "tests/doubles/FakeNodeSource.h"

using namespace std::literals;

namespace orlamo::atspi {
namespace {

using Object = FakeNodeSource::Object;
constexpr std::uint64_t usable = states::enabled | states::sensitive, closed = usable | states::visible;
constexpr auto ref = FakeNodeSource::ref;

/// An object with all that it holds; the object's own list of children is not used.
struct Tree {
    Object object;
    std::vector<Tree> children = {};
};

Tree item(std::string name, std::string key, std::uint64_t states = usable) {
    return {{{}, std::move(name), ObjectRole::menuItem, states, std::move(key)}};
}

Tree holding(std::string name, std::vector<Tree> children, ObjectRole role = ObjectRole::menuItem) {
    return {{{}, std::move(name), role}, std::move(children)};
}

class MenuReading : public testing::Test {
protected:
    /// Each object's path is that of what holds it with its number there: "bar/0/2".
    void set(const std::string& path, const Tree& tree) {
        Object object = tree.object;
        for (const Tree& child : tree.children) {
            object.children.push_back(path + "/" + std::to_string(object.children.size()));
            set(object.children.back(), child);
        }
        source.objects[path] = object;
    }
    void setBar(std::vector<Tree> titles) { set("bar", holding("", std::move(titles), ObjectRole::menuBar)); }
    RawTree read() { return MenuReader(source, known, baseKeyOfShifted).read(ref("bar")); }
    MenuTree shape() { return shapeMenus(read(), {ref("root"), "Editor"}, session); }

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

TEST_F(MenuReading, GivesTheMenusThatPeopleSeeWhateverTheToolkitSays) {
    const Tree qtsRecent = holding("", {item("Clear", "Ctrl+K", 0)}, ObjectRole::popupMenu);
    const Tree qts =
        holding("", {item("New", "Ctrl+N"), holding("", {}, ObjectRole::separator), holding("Recent", {qtsRecent})},
                ObjectRole::popupMenu);
    const struct {
        const char* why;
        Tree title;
        const char* text;
    } cases[] = {
        {"the popups of Qt are folded away", holding("File", {qts}), "File[:[New(0N) Recent[Clear(0K)-]]]"},
        {"the padding and the hidden items of GTK are left out",
         holding("File",
                 {item("New      ", "n;<Alt>f:n;<Primary>n", closed), item("Ghost", ";;<Primary>g"),
                  item("Test", "t;<Alt>f:t;", closed), item("Move", "v;<Alt>f:v;<Alt>m", closed),
                  item("  ", ";;F8", closed), holding("Only", {item("One", ";;<Primary>1", closed)}, ObjectRole::menu)},
                 ObjectRole::menu),
         "File[:[New(0N) ? Move(10M) Only[One(01)]]]"},
        {"a mnemonic of Qt is no shortcut, but an Alt key that the name lacks is",
         holding("Go", {item("Mark", "Alt+M"), item("Find", "Alt+I"), item("Lookup", "Alt+u"), item("Äpfel", "Alt+Ä"),
                        item("To the Left", "Alt+Left"), item("M", "Ctrl+;")}),
         "Go[:[Mark Find(10I) ? Äpfel To the Left(10) M(0;)]]"},
        {"without a title", holding("", {item("New", "Ctrl+N"), item("Open", "Ctrl+O")}), "?[:[New(0N) Open(0O)]]"},
    };
    for (const auto& [why, title, expected] : cases) {
        setBar({title});
        EXPECT_EQ(text(shape()), "?[? Editor " + std::string(expected) + "]") << why;
    }
}

TEST_F(MenuReading, ASessionMenuTakesTheFirstPlaceAndItsItemsNeverHaveTheTitleOfAnother) {
    setBar({holding("File", {item("Lock", "Ctrl+K")})});
    session = {SessionMenuState::present,
               "Session",
               {{"Lock", Shortcut{4, "L", 0}, [] { return AXError::noValue; }}, {"Log Out", Shortcut{4, "Q", 0}}}};
    const MenuTree tree = shape();
    EXPECT_EQ(text(tree), "?[Session[:[Lock\u2060(4L) Log Out(4Q)]] Editor File[:[Lock(0K)]]]");
    EXPECT_EQ(tree.nodes[3].press(), AXError::noValue);
}

TEST_F(MenuReading, ForASessionItemWhoseKeyHasNoCodeAnEmptyRowWithAKeyStandsBehindAll) {
    session = {SessionMenuState::present, "Session", {{"Out", Shortcut{2, "DELETE", 0}}, {"In", Shortcut{4, "⎋", 0}}}};
    setBar({holding("A", {item("New", "Ctrl+N"), holding("Sub", {item("One", "Ctrl+1")})}),
            holding("B", {item("Old", "F2")})});
    const std::string front = "?[Session[:[Out(2DELETE) In(4⎋)]] Editor ";
    EXPECT_EQ(text(shape()), front + "A[:[New(0N) Sub[One(01)] space(0A)]] B[:[Old(8)]]]");
    source.objects["bar/0"].children = {};
    EXPECT_EQ(text(shape()), front + "A[:] B[:[Old(8)]] space(0A)]");
    session.items[1].shortcut->character = "F12";
    const MenuTree two = shape();
    EXPECT_EQ(text(two), "?[Session[:[Out(2DELETE) In(4F12)]] Editor A[:] B[:[Old(8)]] space(0A) space(0A)]");
    EXPECT_NE(two.nodes.rbegin()[0].object, two.nodes.rbegin()[1].object) << "a walk would take them for one";
}

TEST_F(MenuReading, NothingIsAskedThatTheCacheKnows) {
    source.objects = {{"new", Object{{}, "", ObjectRole::menuItem, 0, ";;<Primary>n"}}};
    known[ref("bar")] = {{{ref("file")}}, "", ObjectRole::menuBar, usable};
    known[ref("file")] = {{{ref("new"), ref("tear")}}, "File", ObjectRole::menu, usable};
    known[ref("new")] = {std::vector<ObjectRef>{}, "New", ObjectRole::menuItem, usable};
    known[ref("tear")] = {std::vector<ObjectRef>{}, "", ObjectRole::tearOffMenuItem, usable};
    EXPECT_EQ(text(shape()), "?[? Editor File[:[New(0N)]]]");
    EXPECT_EQ(source.asked, (std::map<Question, int>{{Question::keyBinding, 1}}));
}

TEST_F(MenuReading, TheDeadlineLeavesWhatIsThere) {
    setBar({holding("A", {item("New", "Ctrl+N"), item("Old", "")}), holding("B", {item("New", "Ctrl+N")})});
    source.answersLeft = 5;
    const RawTree raw = read();
    EXPECT_FALSE(raw.isComplete);
    EXPECT_LT(raw.readCount(), raw.nodes.size());
    EXPECT_EQ(text(shapeMenus(raw, {ref("root"), "Editor"}, {})), "?[? Editor A[:[? ?]] B[:[?]]]");
}

TEST_F(MenuReading, AtNoMomentDoesTheDeadlineMakeAMnemonicAShortcutOrAnItemNameless) {
    Tree code = holding("Code", {item("C", "Ctrl+C"), item("", "")});
    code.object.keyBinding = "Ctrl+K";
    setBar({holding("Go", {item("Mark", "Alt+M"), item("Find", "Ctrl+F"), code})});
    source.objects.erase("bar/0/2/1");
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

TEST_F(MenuReading, TheMenuBarOfTheFirstWindowThatHasOneIsFoundWithoutEnteringDocuments) {
    const Tree bar = holding("", {}, ObjectRole::menuBar);
    set("dialog", holding("", {holding("", {})}, ObjectRole::dialog));
    set("window", holding("", {holding("", {bar}, static_cast<ObjectRole>(55)), holding("", {bar}, ObjectRole::filler)},
                          ObjectRole::frame));
    EXPECT_EQ(findMenuBar(source, known, {ref("dialog"), ref("window")}), ref("window/1/0"));
    EXPECT_EQ(findMenuBar(source, known, {ref("dialog")}), std::nullopt);
    source.answersLeft = 2;
    EXPECT_EQ(findMenuBar(source, known, {ref("window")}), std::nullopt);
}

TEST_F(MenuReading, OfTwoMenuBarsTheFirstInDocumentOrderCounts) {
    const Tree bar = holding("", {}, ObjectRole::menuBar), panel = holding("", {}, ObjectRole::panel);
    const Tree scroll = holding("", {bar}, static_cast<ObjectRole>(49));
    set("window", holding("",
                          {holding("", {scroll}, ObjectRole::panel),
                           holding("", {bar, holding("", {panel}, ObjectRole::panel)}, ObjectRole::rootPane)},
                          ObjectRole::frame));
    EXPECT_EQ(findMenuBar(source, known, {ref("window")}), ref("window/0/0/0"));
    // The window, what it holds, and the scroll pane: nothing behind the first menu bar.
    EXPECT_EQ(source.asked[Question::children], 4);

    source.asked.clear();
    for (const auto& [path, object] : source.objects) known[ref(path)].role = object.role;
    EXPECT_EQ(findMenuBar(source, known, {ref("window")}), ref("window/0/0/0"));
    EXPECT_EQ(source.asked[Question::role], 0);
}

TEST_F(MenuReading, ElementsAreTheSameInEachReadingAndDifferFromEachOther) {
    setBar({holding("File", {item("New", "Ctrl+N")})});
    const auto first = std::make_shared<MenuTree>(shape()), second = std::make_shared<MenuTree>(shape());
    source.objects["bar/0"].children = {"other"};
    const auto otherItem = std::make_shared<MenuTree>(shape()), laterBus = std::make_shared<MenuTree>(*first);
    ++laterBus->busEpoch;
    // The bar, the session, the application's name, the item in the bar, its menu, the item in that.
    ASSERT_EQ(first->nodes.size(), 6U);
    for (std::uint32_t i = 0; i < 6; ++i) {
        const MenuElement one(first, i);
        for (std::uint32_t j = 0; j < 6; ++j)
            EXPECT_EQ(one.isSameElement(MenuElement(second, j)), i == j) << i << " " << j;
        EXPECT_EQ(one.hash(), MenuElement(second, i).hash()) << i;
        EXPECT_EQ(one.isSameElement(MenuElement(otherItem, i)), i != 5) << i;
        EXPECT_FALSE(one.isSameElement(MenuElement(laterBus, i))) << i;
    }
    const ApplicationElement application(7);
    EXPECT_TRUE(application.isSameElement(ApplicationElement(7)));
    EXPECT_FALSE(application.isSameElement(ApplicationElement(8)));
    EXPECT_FALSE(application.isSameElement(MenuElement(first, 0)));
    EXPECT_FALSE(MenuElement(first, 0).isSameElement(application));
}

TEST(CleanName, KeepsWhatCanBeShown) {
    const std::pair<std::string_view, std::string_view> rows[] = {
        {"New      ", "New"},
        {"\u00A0 Öffnen …\u3000", "Öffnen …"},
        {"a\nb\tc\x7F", "abc"},
        {"a\0b"sv, "ab"},
        {"\u202Egpj.exe\u2066", "gpj.exe"},
        {"a\xFF\xC3(\xED\xA0\x80\xC0\xAF z", "a( z"},
        {"日本語 😀", "日本語 😀"},
        {" \t ", ""},
        {"a\u2060b\U000E0041\uFFF9c", "abc"},
        {"Ệ E\u0302\u0323 Z\u0300\u0301\u0302\u0303\u0304\u20DDy", "Ệ E\u0302\u0323 Z\u0300\u0301\u0302y"},
    };
    for (const auto& [name, clean] : rows) EXPECT_EQ(cleanName(name), clean);
}

TEST(CleanName, IsCutBetweenTwoCharacters) {
    EXPECT_EQ(cleanName("aéé", 4), "aé");
    EXPECT_EQ(cleanName("ab  cd", 4), "ab");
}

}  // namespace
}  // namespace orlamo::atspi
