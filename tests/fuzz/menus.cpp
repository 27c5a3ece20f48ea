// A menu bar on the accessibility bus, through reading and shaping to the shortcuts that are shown.
#include <algorithm>
#include <array>
#include <numeric>

#include "core/MenuHarvest.h"
#include "platform/atspi/Accessibility.h"
#include "platform/atspi/Element.h"
#include "platform/atspi/MenuReader.h"
#include "platform/atspi/Utf8.h"
#include "tests/doubles/FakeClock.h"
#include "tests/doubles/FakeLog.h"
#include "tests/doubles/FakeNodeSource.h"
#include "tests/doubles/FakeWorkspace.h"
#include "tests/fuzz/FuzzInput.h"

using namespace orlamo;
using namespace orlamo::atspi;
using fuzz::require;

namespace {

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

FakeNodeSource::Object makeObject(fuzz::FuzzInput& input, std::size_t count) {
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

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::FuzzInput input(data, size);
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

    const FakeLog log;
    FakeClock clock;
    FakeWorkspace workspace;
    workspace.frontmost = RunningApplication{42, "org.example.editor", "Editor"};
    ReadAccessibility accessibility(std::move(tree));
    menuItemKeyCodes.clear();
    const auto entries = harvestMenuShortcuts();
    describe(entries);
    require(!entries.empty() && entries.back() == MenuEntry("Editor"), "the application's name stands last");
    require(menuItemTitles.size() == menuItemElements.size(), "each title has its element");
    std::size_t place = 0;
    for (const MenuEntry& entry : entries) {
        const auto* const record = std::get_if<MenuItemRecord>(&entry);
        if (record == nullptr) continue;
        require(record->title == cleanName(*record->title) && !record->title->empty(), "an item has a clean name");
        require(place < menuItemElements.size() && menuItemTitles[place] == record->title, "titles are in order");
        const auto& element = dynamic_cast<const MenuElement&>(*menuItemElements[place++]);
        require(element.node().title == record->title, "an element is that of its record");
        const bool isPressable =
            element.node().kind == MenuNode::Kind::item || element.node().kind == MenuNode::Kind::sessionItem;
        require(isPressable && element.node().children.empty(), "what is shown can be pressed");
    }
    require(place == menuItemElements.size(), "there is a record for each element");
    return 0;
}
