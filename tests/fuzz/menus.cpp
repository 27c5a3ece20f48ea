// Menus of other programs.
#include <algorithm>
#include <array>
#include <numeric>

#include "core/MenuHarvest.h"
#include "platform/atspi/Accessibility.h"
#include "platform/atspi/Element.h"
#include "platform/atspi/MenuReader.h"
#include "platform/atspi/Utf8.h"
#include "tests/doubles/FakeDesktop.h"
#include "tests/doubles/FakeNodeSource.h"
#include "tests/fuzz/FuzzInput.h"

namespace orlamo::fuzz {

using namespace atspi;

namespace {

AXValue makeValue(FuzzInput& input) {
    const std::size_t kind = input.below(6);
    if (kind == 0) return input.flag();
    if (kind == 1) return static_cast<std::int64_t>(input.below(26));
    if (kind == 2) return static_cast<std::int64_t>(input.number(8));
    if (kind == 3) return FakeAccessibility::reference(nullptr);
    return std::string(input.line());
}

void fill(FakeElement& element, FuzzInput& input, const std::vector<FakeElementPtr>& all) {
    constexpr std::array attributes{"AXTitle", "AXEnabled", "AXMenuItemCmdModifiers", "AXMenuItemCmdChar",
                                    "AXMenuItemCmdGlyph"};
    for (std::size_t children = input.below(8); children > 0; --children) {
        element.children.push_back(all[input.below(all.size())]);
    }
    const auto told = static_cast<unsigned>(input.byte());
    for (std::size_t i = 0; i < attributes.size(); ++i) {
        if ((told >> i & 1) != 0) element.with(attributes[i], makeValue(input));
    }
    if (input.below(16) == 1) element.reportedCount = static_cast<std::int64_t>(input.number(8));
    if (input.below(16) == 1) element.countError = AXError::cannotComplete;
    if (input.below(16) == 1) element.childrenError = AXError::invalidUIElement;
}

/// Answers from a tree that was read before.
class ReadAccessibility : public atspi::Accessibility {
public:
    explicit ReadAccessibility(MenuTree tree) : tree_(std::make_shared<const MenuTree>(std::move(tree))) {}

    AXError AXUIElementCopyAttributeValue(const AXUIElementRef& element, std::string_view attribute,
                                          AXValue& value) override {
        if (attribute != "AXMenuBar") {
            return atspi::Accessibility::AXUIElementCopyAttributeValue(element, attribute, value);
        }
        value = AXUIElementRef(std::make_shared<MenuElement>(tree_, 0));
        return AXError::success;
    }

private:
    std::shared_ptr<const MenuTree> tree_;
    Installation installation_{*this};
};

std::string pathOf(std::size_t number) {
    return "/" + std::to_string(number);
}

FakeNodeSource::Object makeObject(FuzzInput& input, std::size_t count) {
    constexpr std::array roles{ObjectRole::menuItem,  ObjectRole::menu,         ObjectRole::popupMenu,
                               ObjectRole::separator, ObjectRole::menuBar,      ObjectRole::tearOffMenuItem,
                               ObjectRole::unknown,   ObjectRole::checkMenuItem};
    constexpr std::array bindings{"", "Alt+M", "Ctrl+S", "n;<Alt>f:n;<Primary>n", ";;<Control><Shift>Tab", "F5", "Del"};
    FakeNodeSource::Object object;
    object.role = roles[input.below(roles.size())];
    object.states = input.number(4);
    const std::size_t binding = input.below(bindings.size() + 1);
    object.keyBinding = binding < bindings.size() ? bindings[binding] : input.line();
    for (std::size_t children = input.below(9); children > 0; --children) {
        object.children.push_back(pathOf(input.below(count)));
    }
    object.name = input.line();
    return object;
}

/// Children come after their parents, each once: the tree has no cycle, whatever was answered.
void check(const MenuTree& tree) {
    std::vector<int> uses(tree.nodes.size());
    for (std::size_t i = 0; i < tree.nodes.size(); ++i) {
        for (const std::uint32_t child : tree.nodes[i].children) {
            require(child > i && child < tree.nodes.size() && ++uses[child] == 1, "the menus are a tree");
        }
    }
}

std::vector<MenuEntry> harvested() {
    menuItemKeyCodes.clear();
    auto entries = harvestMenuShortcuts();
    describe(entries);
    require(menuItemTitles.size() == menuItemElements.size(), "each title has its element");
    return entries;
}

}  // namespace

/// Menus that lie to the walk over them: cycles, wrong counts, wrong types, errors.
void menu_lies(std::string_view bytes) {
    FuzzInput input(bytes);
    FakeDesktop desktop;
    desktop.openEditor({});
    std::vector<FakeElementPtr> all(1 + input.below(64));
    for (FakeElementPtr& element : all) element = FakeAccessibility::element();
    for (const FakeElementPtr& element : all) fill(*element, input, all);
    auto& menus = desktop.accessibility.setMenuBar(FakeDesktop::editorProcess, {})->children;
    menus = all.front()->children;
    if (menus.size() > 3) menus.resize(3);  // each takes up to a thousand visits

    const auto entries = harvested();
    require(entries.size() <= menus.size() * 3000 + 1, "a menu has so many visits");
    for (std::size_t i = 0; i < menuItemElements.size(); ++i) {
        const auto element = FakeAccessibility::nodeOf(menuItemElements[i]);
        require(element->attributes["AXTitle"] == AXValue(menuItemTitles[i]), "an element is that of its title");
    }
    require(desktop.accessibility.presses.empty(), "reading presses nothing");
    for (const FakeElementPtr& element : all) element->children.clear();  // else cycles keep each other
}

/// A menu bar on the accessibility bus, through reading and shaping to the shortcuts that are shown.
void menus(std::string_view bytes) {
    FuzzInput input(bytes);
    FakeNodeSource source;
    const std::size_t count = 1 + input.byte();
    const bool isCached = input.flag();
    if (input.flag()) source.answersLeft = input.byte();
    KnownNodes known;
    for (std::size_t i = 0; i < count && !input.isEmpty(); ++i) {
        const FakeNodeSource::Object object = makeObject(input, count);
        if (isCached && input.flag()) {
            KnownNode node{std::nullopt, object.name, object.role, object.states};
            if (input.flag()) node.children.emplace();
            for (const auto& child : object.children) {
                if (node.children) node.children->push_back(FakeNodeSource::ref(child));
            }
            known[FakeNodeSource::ref(pathOf(i))] = std::move(node);
        }
        source.objects[pathOf(i)] = object;
    }

    constexpr ReadLimits limits{8, 100};
    const BaseKeyOfShifted base = baseKeyOfShiftedOnUsLayout;
    const RawTree raw = MenuReader(source, known, base, limits).read(FakeNodeSource::ref(pathOf(0)));
    require(raw.nodes.size() <= limits.elements, "there are no more elements than the limit");
    for (const RawNode& node : raw.nodes) require(node.depth <= limits.depth, "nothing is deeper than the limit");
    const SessionMenu session{
        SessionMenuState::present, "Session", {{"Lock", Shortcut{0, "L", 0}}, {"Log Out", std::nullopt}}};
    MenuTree tree = shapeMenus(raw, {FakeNodeSource::ref("/root"), "Editor"}, session);
    check(tree);

    FakeDesktop desktop;
    desktop.openEditor({});
    ReadAccessibility accessibility(std::move(tree));
    const auto entries = harvested();
    require(!entries.empty() && entries.back() == MenuEntry("Editor"), "the application's name stands last");
    std::size_t place = 0;
    for (const MenuEntry& entry : entries) {
        const auto* const record = std::get_if<MenuItemRecord>(&entry);
        if (record == nullptr) continue;
        require(place < menuItemElements.size() && menuItemTitles[place] == record->title, "titles are in order");
        const auto& element = dynamic_cast<const MenuElement&>(*menuItemElements[place++]);
        require(element.node().title == record->title, "an element is that of its record");
        const bool isOfSession = element.node().kind == MenuNode::Kind::sessionItem;
        const bool isPressable = isOfSession || element.node().kind == MenuNode::Kind::item;
        const std::string clean = cleanName(*record->title);  // that of the session is marked beside a namesake
        require(isOfSession ? record->title->starts_with(clean) : record->title == clean, "an item has a clean name");
        require(!clean.empty(), "an item has a name");
        require(isPressable && element.node().children.empty(), "what is shown can be pressed");
    }
    require(place == menuItemElements.size(), "there is a record for each element");
}

}  // namespace orlamo::fuzz
