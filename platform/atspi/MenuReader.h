#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

#include "platform/atspi/Accelerator.h"
#include "platform/atspi/NodeSource.h"

namespace orlamo::atspi {

/// An element as the toolkit has it. What was not needed was not asked.
struct RawNode {
    ObjectRef object;
    std::uint32_t depth = 0;
    std::vector<std::uint32_t> children;  // indices into RawTree::nodes
    std::optional<std::string> name;      // cleaned
    std::optional<ObjectRole> role;
    std::optional<std::uint64_t> states;
    std::string keyBinding;
    std::optional<Shortcut> shortcut;
    bool isMnemonicUnlessNameLacksIt = false;
    bool isKeyBindingAsked = false;
    bool isRead = false;        // its children and key binding have been answered
    bool isActionless = false;  // it refuses to tell a key binding: a separator, or the popup around a menu's items
};

struct RawTree {
    std::vector<RawNode> nodes;  // the first one is the menu bar
    bool isComplete = true;      // false: time or a limit ended the reading
    std::size_t calls = 0;

    std::size_t readCount() const;
};

struct ReadLimits {
    std::uint32_t depth = 16;
    std::size_t elements = 10'000;
};

/// Reads the elements under a menu bar with as many questions in flight as the source takes. Asks for children and key
/// binding first, and for the rest only where it is needed: names where they are headings or label a shortcut, states
/// where there is a shortcut. Trees lie: an object is visited once, and the limits hold whatever is answered.
class MenuReader {
public:
    MenuReader(NodeSource& source, const KnownNodes& known, const BaseKeyOfShifted& baseKeyOfShifted,
               ReadLimits limits = {});

    /// Returns what is there when the source's time is over.
    RawTree read(const ObjectRef& menuBar);

private:
    bool visit(const ObjectRef& object, std::uint32_t depth, bool isOnlyChild);
    void askFirst(std::uint32_t index, bool isOnlyChild, const KnownNode* known);
    void askKeyBinding(std::uint32_t index);
    void askName(std::uint32_t index);
    void receiveChildren(std::uint32_t index, const std::vector<ObjectRef>& children);
    void receiveKeyBinding(std::uint32_t index, std::string text);
    void askAboutShortcut(std::uint32_t index);
    void receiveName(std::uint32_t index, const std::string& name);
    void settle(std::uint32_t index);
    template <class Handle>
    void ask(std::uint32_t index, Question question, Handle handle);

    NodeSource& source_;
    const KnownNodes& known_;
    const BaseKeyOfShifted& baseKeyOfShifted_;
    ReadLimits limits_;
    RawTree tree_;
    std::unordered_set<ObjectRef, ObjectRefHash> visited_;
    std::vector<std::uint8_t> outstanding_;  // questions, per node
};

}  // namespace orlamo::atspi
