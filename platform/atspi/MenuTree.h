#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/Accessibility.h"
#include "platform/atspi/Accelerator.h"
#include "platform/atspi/MenuReader.h"
#include "platform/atspi/NodeSource.h"

namespace orlamo::atspi {

/// What the desktop offers under a session menu: when it is present, one heading and four things to do about the
/// session.
struct SessionMenu {
    struct Item {
        std::string title;
        std::optional<Shortcut> shortcut;
        std::function<AXError()> press = {};
    };
    SessionMenuState state = SessionMenuState::unknownDesktop;
    std::string title = {};
    std::vector<Item> items = {};
};

/// A menu element in the shape that platform/Accessibility.h promises.
struct MenuNode {
    enum class Kind { menuBar, session, sessionItem, applicationName, item, menu };

    Kind kind = Kind::item;
    /// What it stands for on the bus: with the kind, its identity. A menu has that of the item it belongs to, the
    /// application's name that of the application; a session item has none but its number as the path, an empty row
    /// likewise.
    ObjectRef object;
    std::optional<std::string> title;
    std::optional<bool> isEnabled;
    std::optional<Shortcut> shortcut;
    std::string keyBinding;  // as the toolkit wrote it
    std::optional<ObjectRole> role;
    std::function<AXError()> press = {};  // session items and empty rows only
    std::vector<std::uint32_t> children;  // indices into MenuTree::nodes
};

/// The menus of an application at one moment. Never changes once it is made.
struct MenuTree {
    std::vector<MenuNode> nodes;  // the first one is the menu bar
    unsigned busEpoch = 0;        // the life of the accessibility bus in which it was read
    int processIdentifier = 0;    // of the application
    bool hasSessionMenu = false;
};

/// The application whose menus these are: its root object, and its name for people.
struct ApplicationIdentity {
    ObjectRef root;
    std::string name;
};

/// Puts raw elements into the promised shape: the session and the application's name in front, Qt's popups folded away,
/// one menu under each menu-bar item; separators, tear-off items, hidden items and items without a name are left out.
/// A session item called like one of the application's gets a sign behind its title that is not seen.
/// Behind them all stands an item "space" for each session item whose key has no code: who pairs items with key codes
/// by counting, and leaves that title's row empty, has a pair for every other item then.
MenuTree shapeMenus(const RawTree& raw, const ApplicationIdentity& application, const SessionMenu& session);

}  // namespace orlamo::atspi
