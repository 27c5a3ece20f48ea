// Menus that lie to the walk over them: cycles, wrong counts, wrong types, errors.
#include <array>

#include "core/MenuHarvest.h"
#include "tests/doubles/FakeAccessibility.h"
#include "tests/doubles/FakeClock.h"
#include "tests/doubles/FakeLog.h"
#include "tests/doubles/FakeWorkspace.h"
#include "tests/fuzz/FuzzInput.h"

using namespace orlamo;
using fuzz::require;

namespace {

AXValue makeValue(fuzz::FuzzInput& input) {
    switch (input.below(6)) {
        case 0:
            return input.flag();
        case 1:
            return static_cast<std::int64_t>(input.below(26));
        case 2:
            return static_cast<std::int64_t>(input.number(8));
        case 3:
            return FakeAccessibility::reference(nullptr);
        default:
            return std::string(input.line());
    }
}

void fill(FakeElement& element, fuzz::FuzzInput& input, const std::vector<FakeElementPtr>& all) {
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

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::FuzzInput input(data, size);
    const FakeLog log;
    FakeClock clock;
    FakeWorkspace workspace;
    FakeAccessibility accessibility;
    workspace.frontmost = RunningApplication{42, "org.example.editor", "Editor"};
    std::vector<FakeElementPtr> all(1 + input.below(64));
    for (FakeElementPtr& element : all) element = FakeAccessibility::element();
    for (const FakeElementPtr& element : all) fill(*element, input, all);
    auto& menus = accessibility.setMenuBar(42, {})->children;
    menus = all.front()->children;
    if (menus.size() > 3) menus.resize(3);  // each takes up to a thousand visits

    menuItemKeyCodes.clear();
    const auto entries = harvestMenuShortcuts();
    describe(entries);
    require(entries.size() <= menus.size() * 3000 + 1, "a menu has so many visits");
    require(menuItemTitles.size() == menuItemElements.size(), "each title has its element");
    for (std::size_t i = 0; i < menuItemElements.size(); ++i) {
        const auto element = FakeAccessibility::nodeOf(menuItemElements[i]);
        require(element->attributes["AXTitle"] == AXValue(menuItemTitles[i]), "an element is that of its title");
    }
    require(accessibility.presses.empty(), "reading presses nothing");
    for (const FakeElementPtr& element : all) element->children.clear();  // else cycles keep each other
    return 0;
}
