#include "platform/atspi/MenuTree.h"

#include <algorithm>
#include <utility>

namespace orlamo::atspi {
namespace {

class Shaper {
public:
    Shaper(const RawTree& raw, MenuTree& tree) : raw_(raw), tree_(tree), tellsHidden_(tellsHiddenFromShown()) {}

    void addMenus() {
        for (const std::uint32_t index : raw_.nodes[0].children) {
            const RawNode& raw = raw_.nodes[index];
            if (isLeftOut(raw)) continue;
            const std::uint32_t item = add(0, itemNode(raw));
            MenuNode menu;
            menu.kind = MenuNode::Kind::menu;
            menu.object = raw.object;
            addItems(add(item, std::move(menu)), raw);
        }
    }

    std::uint32_t add(std::uint32_t parent, MenuNode node) {
        const auto index = static_cast<std::uint32_t>(tree_.nodes.size());
        tree_.nodes.push_back(std::move(node));
        tree_.nodes[parent].children.push_back(index);
        return index;
    }

private:
    /// Some toolkits call the items of a closed menu visible, others call none of them so.
    bool tellsHiddenFromShown() const {
        return std::ranges::any_of(raw_.nodes, [](const RawNode& node) {
            return node.depth > 1 && node.states && (*node.states & states::visible) != 0 &&
                   (*node.states & states::showing) == 0;
        });
    }

    bool isLeftOut(const RawNode& raw) const {
        if (raw.role == ObjectRole::separator || raw.role == ObjectRole::tearOffMenuItem) return true;
        const bool isHidden = tellsHidden_ && raw.states && (*raw.states & states::visible) == 0;
        const bool isNameless = raw.name && raw.name->empty();
        return isHidden || (raw.depth > 1 && raw.children.empty() && (isNameless || raw.isActionless));
    }

    bool isPopup(const RawNode& raw) const {
        const bool isMenu = raw.role == ObjectRole::popupMenu || raw.role == ObjectRole::menu;
        return isMenu && (!raw.name || raw.name->empty());
    }

    void addItems(std::uint32_t parent, const RawNode& owner) {
        const RawNode* holder = &owner;
        while (holder->children.size() == 1 && isPopup(raw_.nodes[holder->children[0]])) {
            holder = &raw_.nodes[holder->children[0]];
        }
        for (const std::uint32_t index : holder->children) {
            const RawNode& raw = raw_.nodes[index];
            if (!isLeftOut(raw)) addItems(add(parent, itemNode(raw)), raw);
        }
    }

    static MenuNode itemNode(const RawNode& raw) {
        MenuNode node;
        node.object = raw.object;
        if (raw.name && !raw.name->empty()) node.title = raw.name;
        if (raw.states) node.isEnabled = (*raw.states & (states::enabled | states::sensitive)) != 0;
        node.role = raw.role;
        node.keyBinding = raw.keyBinding;
        // Before all of this is answered, the shortcut may turn out a mnemonic, or the item a submenu.
        if (raw.isRead && raw.children.empty() && node.title) node.shortcut = raw.shortcut;
        return node;
    }

    const RawTree& raw_;
    MenuTree& tree_;
    bool tellsHidden_;
};

// Modifier numbers that menus show: none of the others has symbols.
bool isShown(std::int64_t modifiers) {
    return modifiers < 8 || modifiers == 12 || modifiers == 13;
}

bool holdsShownShortcut(const MenuTree& tree, std::uint32_t index) {
    const MenuNode& node = tree.nodes[index];
    const bool hasCharacter = node.shortcut && !node.shortcut->character.empty();
    if (hasCharacter && node.isEnabled.value_or(true) && isShown(node.shortcut->modifiers)) return true;
    return std::ranges::any_of(node.children, [&tree](std::uint32_t child) { return holdsShownShortcut(tree, child); });
}

// The last menu that has an item to show, so that it gets no heading of its own; else the menu bar.
std::uint32_t placeBehindAll(const MenuTree& tree) {
    const auto& menus = tree.nodes[0].children;
    const auto found = std::find_if(menus.rbegin(), menus.rend(),
                                    [&tree](std::uint32_t menu) { return holdsShownShortcut(tree, menu); });
    if (found == menus.rend() || tree.nodes[*found].kind != MenuNode::Kind::item) return 0;
    return tree.nodes[*found].children.front();
}

// A click looks its item up by the title, and the first one counts: an application's own "Lock Screen" must not lock
// the screen. The joiner has neither ink nor width.
std::string titleUnlikeOthers(std::string title, const RawTree& raw) {
    constexpr std::string_view wordJoiner = "\u2060";
    const auto hasThatName = [&title](const RawNode& node) { return node.name == title; };
    while (std::ranges::any_of(raw.nodes, hasThatName)) title += wordJoiner;
    return title;
}

MenuNode emptyRow(std::size_t number) {
    MenuNode node;
    node.object.path = "row" + std::to_string(number);
    node.title = "space";
    node.isEnabled = true;
    node.shortcut = Shortcut{0, "A", 0};
    node.press = [] { return AXError::actionUnsupported; };
    return node;
}

}  // namespace

MenuTree shapeMenus(const RawTree& raw, const ApplicationIdentity& application, const SessionMenu& session) {
    MenuTree tree;
    MenuNode& bar = tree.nodes.emplace_back();
    bar.kind = MenuNode::Kind::menuBar;
    bar.object = raw.nodes[0].object;
    Shaper shaper(raw, tree);

    tree.hasSessionMenu = session.state == SessionMenuState::present;
    MenuNode sessionNode;
    sessionNode.kind = MenuNode::Kind::session;
    if (!session.title.empty()) sessionNode.title = session.title;
    std::uint32_t parent = shaper.add(0, std::move(sessionNode));
    if (!session.items.empty()) {
        MenuNode menu;
        menu.kind = MenuNode::Kind::menu;
        menu.object.path = "session";
        parent = shaper.add(parent, std::move(menu));
    }
    for (std::size_t i = 0; i < session.items.size(); ++i) {
        MenuNode item;
        item.kind = MenuNode::Kind::sessionItem;
        item.object.path = std::to_string(i);
        item.title = titleUnlikeOthers(session.items[i].title, raw);
        item.isEnabled = true;
        item.shortcut = session.items[i].shortcut;
        item.press = session.items[i].press;
        shaper.add(parent, std::move(item));
    }

    MenuNode name;
    name.kind = MenuNode::Kind::applicationName;
    name.object = application.root;
    name.title = application.name;
    shaper.add(0, std::move(name));
    shaper.addMenus();

    const std::uint32_t place = placeBehindAll(tree);
    for (std::size_t i = 0; i < session.items.size(); ++i) {
        const auto& shortcut = session.items[i].shortcut;
        if (shortcut && !hasKeyCode(shortcut->character)) shaper.add(place, emptyRow(i));
    }
    return tree;
}

}  // namespace orlamo::atspi
