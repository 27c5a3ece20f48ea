#include "platform/atspi/MenuReader.h"

#include <algorithm>
#include <utility>

#include "platform/atspi/Utf8.h"

namespace orlamo::atspi {
namespace {

constexpr std::size_t longestPath = 512;
constexpr std::size_t longestKeyBinding = 256;

/// What separates items, or tears the menu off.
bool isLine(const RawNode& node) {
    return node.role == ObjectRole::separator || node.role == ObjectRole::tearOffMenuItem;
}

bool isPopup(const RawNode& node) {
    return node.role == ObjectRole::popupMenu;
}

bool isLowerCaseLetter(std::string_view text) {
    return text.size() == 1 && text[0] >= 'a' && text[0] <= 'z';
}

}  // namespace

std::size_t RawTree::readCount() const {
    return static_cast<std::size_t>(std::ranges::count(nodes, true, &RawNode::isRead));
}

MenuReader::MenuReader(NodeSource& source, const KnownNodes& known, const BaseKeyOfShifted& baseKeyOfShifted,
                       ReadLimits limits)
    : source_(source), known_(known), baseKeyOfShifted_(baseKeyOfShifted), limits_(limits) {}

RawTree MenuReader::read(const ObjectRef& menuBar) {
    visit(menuBar, 0, false);
    while (source_.wait()) {
    }
    const bool isAnswered = std::ranges::all_of(outstanding_, [](std::uint8_t count) { return count == 0; });
    tree_.isComplete = tree_.isComplete && isAnswered;
    return std::move(tree_);
}

template <class Handle>
void MenuReader::ask(std::uint32_t index, Question question, Handle handle) {
    ++tree_.calls;
    ++outstanding_[index];
    source_.ask(tree_.nodes[index].object, question, [this, index, handle](Answer answer) {
        handle(std::move(answer));
        --outstanding_[index];
        settle(index);
    });
}

/// Returns whether the object is a new element of the tree. One of another program is none: its press would be there.
bool MenuReader::visit(const ObjectRef& object, std::uint32_t depth, bool isOnlyChild) {
    if (object.path.empty() || object.path.size() > longestPath) return false;
    if (!tree_.nodes.empty() && object.bus != tree_.nodes[0].object.bus) return false;
    if (tree_.nodes.size() >= limits_.elements || depth > limits_.depth) {
        tree_.isComplete = false;
        return false;
    }
    if (!visited_.insert(object).second) return false;

    const auto index = static_cast<std::uint32_t>(tree_.nodes.size());
    RawNode& node = tree_.nodes.emplace_back();
    outstanding_.push_back(0);
    node.object = object;
    node.depth = depth;
    const auto known = known_.find(object);
    if (known != known_.end()) {
        node.name = cleanName(known->second.name);
        node.role = known->second.role;
        node.states = known->second.states;
    }
    askFirst(index, isOnlyChild, known == known_.end() ? nullptr : &known->second);
    return true;
}

/// The elements of the menu bar itself are headings, and only have mnemonics. An only child may be the popup that Qt
/// puts between an item and its items: its role tells, and it has no key binding either.
void MenuReader::askFirst(std::uint32_t index, bool isOnlyChild, const KnownNode* known) {
    const bool asksRole = isOnlyChild && !tree_.nodes[index].role;
    const bool isSeparator = isLine(tree_.nodes[index]);
    const bool isContainer = known != nullptr && known->children && !known->children->empty();
    if (!isSeparator && !(known != nullptr && known->children)) {
        ask(index, Question::children, [this, index](Answer answer) {
            if (const auto* const children = std::get_if<std::vector<ObjectRef>>(&answer)) {
                receiveChildren(index, *children);
            }
        });
    }
    if (tree_.nodes[index].depth == 1 && known == nullptr) askName(index);
    if (asksRole) {
        ask(index, Question::role, [this, index](Answer answer) {
            const auto* const role = std::get_if<std::uint64_t>(&answer);
            tree_.nodes[index].role = role == nullptr ? ObjectRole::unknown : static_cast<ObjectRole>(*role);
        });
    }
    if (!isSeparator && !isContainer && !asksRole) askKeyBinding(index);
    if (isContainer) receiveChildren(index, *known->children);
    settle(index);
}

void MenuReader::askKeyBinding(std::uint32_t index) {
    RawNode& node = tree_.nodes[index];
    node.isKeyBindingAsked = true;
    if (node.depth <= 1 || isPopup(node)) return;
    ask(index, Question::keyBinding, [this, index](Answer answer) {
        auto* const text = std::get_if<std::string>(&answer);
        tree_.nodes[index].isActionless = text == nullptr;
        if (text != nullptr) receiveKeyBinding(index, std::move(*text));
    });
}

void MenuReader::receiveChildren(std::uint32_t index, const std::vector<ObjectRef>& children) {
    const std::uint32_t depth = tree_.nodes[index].depth;
    for (const ObjectRef& child : children) {
        const auto childIndex = static_cast<std::uint32_t>(tree_.nodes.size());
        if (visit(child, depth + 1, children.size() == 1)) tree_.nodes[index].children.push_back(childIndex);
        if (tree_.nodes.size() >= limits_.elements && &child != &children.back()) {
            tree_.isComplete = false;
            break;
        }
    }
}

/// Called as an element's answers came in: the last one settles what else is needed.
void MenuReader::settle(std::uint32_t index) {
    RawNode& node = tree_.nodes[index];
    if (outstanding_[index] != 0 || node.isRead) return;
    const bool isContainer = !node.children.empty();
    if (!isContainer && !node.isKeyBindingAsked && !isLine(node)) {
        askKeyBinding(index);
        if (outstanding_[index] != 0) return;
    }
    node.isRead = true;
    if (!isContainer) {
        if (node.shortcut) askAboutShortcut(index);
        return;
    }
    node.shortcut.reset();
    if (node.depth > 1 && !node.name && !isPopup(node)) askName(index);
}

void MenuReader::askName(std::uint32_t index) {
    ask(index, Question::name, [this, index](Answer answer) {
        if (const auto* const name = std::get_if<std::string>(&answer)) receiveName(index, *name);
    });
}

void MenuReader::receiveKeyBinding(std::uint32_t index, std::string text) {
    if (text.size() > longestKeyBinding) return;
    RawNode& node = tree_.nodes[index];
    node.keyBinding = std::move(text);
    const KeyBinding binding = parseKeyBinding(node.keyBinding);
    // Qt writes the letter of a shortcut in upper case always.
    if (isLowerCaseLetter(binding.possibleMnemonic)) return;
    node.isMnemonicUnlessNameLacksIt = !binding.possibleMnemonic.empty();
    node.shortcut = parseShortcut(binding.shortcut, baseKeyOfShifted_);
}

void MenuReader::askAboutShortcut(std::uint32_t index) {
    const auto askStates = [this](std::uint32_t item) {
        if (tree_.nodes[item].states || !tree_.nodes[item].shortcut) return;
        ask(item, Question::states, [this, item](Answer answer) {
            if (const auto* const value = std::get_if<std::uint64_t>(&answer)) tree_.nodes[item].states = *value;
        });
    };
    if (tree_.nodes[index].name) {
        receiveName(index, *tree_.nodes[index].name);
        askStates(index);
        return;
    }
    const bool statesWait = tree_.nodes[index].isMnemonicUnlessNameLacksIt;
    ask(index, Question::name, [this, index, statesWait, askStates](Answer answer) {
        const auto* const name = std::get_if<std::string>(&answer);
        receiveName(index, name == nullptr ? std::string{} : *name);
        if (statesWait) askStates(index);
    });
    if (!statesWait) askStates(index);
}

void MenuReader::receiveName(std::uint32_t index, const std::string& name) {
    RawNode& node = tree_.nodes[index];
    node.name = cleanName(name);
    if (!node.isMnemonicUnlessNameLacksIt) return;
    const std::string_view mnemonic = parseKeyBinding(node.keyBinding).possibleMnemonic;
    if (node.name->find(mnemonic) != std::string::npos) node.shortcut.reset();
}

}  // namespace orlamo::atspi
