#include "platform/atspi/Accessibility.h"

#include <algorithm>
#include <utility>

#include "platform/atspi/Element.h"
#include "platform/atspi/Press.h"

namespace orlamo::atspi {
namespace {

constexpr std::chrono::milliseconds trustTime{250};

const MenuElement* menuElement(const AXUIElementRef& element) {
    return dynamic_cast<const MenuElement*>(element.get());
}

AXError attributeOf(const MenuNode& node, std::string_view attribute, AXValue& value) {
    const auto give = [&value](auto&& given) {
        value = std::forward<decltype(given)>(given);
        return AXError::success;
    };
    if (attribute == "AXTitle") return node.title ? give(*node.title) : AXError::noValue;
    if (attribute == "AXEnabled") return node.isEnabled ? give(*node.isEnabled) : AXError::noValue;
    if (attribute == "AXMenuItemCmdModifiers") {
        return node.shortcut ? give(node.shortcut->modifiers) : AXError::noValue;
    }
    if (attribute == "AXMenuItemCmdChar") {
        const bool hasCharacter = node.shortcut && !node.shortcut->character.empty();
        return hasCharacter ? give(node.shortcut->character) : AXError::noValue;
    }
    if (attribute == "AXMenuItemCmdGlyph") {
        const bool hasGlyph = node.shortcut && node.shortcut->character.empty();
        return hasGlyph ? give(node.shortcut->glyph) : AXError::noValue;
    }
    return AXError::attributeUnsupported;
}

}  // namespace

Accessibility::Accessibility(Options options) : options_(std::move(options)) {}

AXUIElementRef Accessibility::AXUIElementCreateApplication(int processIdentifier) {
    return std::make_shared<ApplicationElement>(processIdentifier);
}

AXError Accessibility::AXUIElementCopyAttributeValue(const AXUIElementRef& element, std::string_view attribute,
                                                     AXValue& value) {
    if (const auto* const menu = menuElement(element)) return attributeOf(menu->node(), attribute, value);
    const auto* const application = dynamic_cast<const ApplicationElement*>(element.get());
    if (application == nullptr) return AXError::illegalArgument;
    if (attribute != "AXMenuBar") return AXError::attributeUnsupported;
    return copyMenuBar(application->processIdentifier(), value);
}

AXError Accessibility::copyMenuBar(int processIdentifier, AXValue& value) {
    if (processIdentifier <= 0) return AXError::invalidUIElement;
    const auto start = std::chrono::steady_clock::now();
    const Deadline deadline = start + options_.readTime;
    if (!bus_.isEnabled(deadline)) return AXError::apiDisabled;
    Connection* const bus = bus_.connection(deadline);
    if (bus == nullptr) return AXError::apiDisabled;

    if (slowPrograms_.busEpoch != bus_.epoch()) slowPrograms_ = {bus_.epoch(), {}, {}};
    std::shared_ptr<MenuTree> tree;
    lastRead_ = {};
    const AXError result = readMenus(*bus, processIdentifier, options_, deadline, slowPrograms_, tree, lastRead_);
    using std::chrono::microseconds;
    lastRead_.time = std::chrono::duration_cast<microseconds>(std::chrono::steady_clock::now() - start);
    if (result != AXError::success) return result;
    hasSessionMenu_ = tree->hasSessionMenu;
    tree->busEpoch = bus_.epoch();
    tree->processIdentifier = processIdentifier;
    value = AXUIElementRef(std::make_shared<MenuElement>(std::move(tree), 0));
    return AXError::success;
}

AXError Accessibility::AXUIElementGetAttributeValueCount(const AXUIElementRef& element, std::string_view attribute,
                                                         std::int64_t& count) {
    const auto* const menu = menuElement(element);
    if (menu == nullptr) return AXError::illegalArgument;
    if (attribute != "AXChildren") return AXError::attributeUnsupported;
    count = static_cast<std::int64_t>(menu->node().children.size());
    return AXError::success;
}

AXError Accessibility::AXUIElementCopyAttributeValues(const AXUIElementRef& element, std::string_view attribute,
                                                      std::int64_t first, std::int64_t count,
                                                      std::vector<AXUIElementRef>& values) {
    const auto* const menu = menuElement(element);
    if (menu == nullptr || first < 0 || count < 0) return AXError::illegalArgument;
    if (attribute != "AXChildren") return AXError::attributeUnsupported;
    const auto& children = menu->node().children;
    const auto size = static_cast<std::int64_t>(children.size());
    const std::int64_t begin = std::min(first, size);
    const std::int64_t end = begin + std::min(count, size - begin);
    values.clear();
    values.reserve(static_cast<std::size_t>(end - begin));
    for (std::int64_t i = begin; i < end; ++i) {
        values.push_back(std::make_shared<MenuElement>(menu->tree(), children[static_cast<std::size_t>(i)]));
    }
    return AXError::success;
}

AXError Accessibility::AXUIElementPerformAction(const AXUIElementRef& element, std::string_view action) {
    const auto* const menu = menuElement(element);
    if (menu == nullptr) return AXError::illegalArgument;
    const MenuNode& node = menu->node();
    if (action != "AXPress") return AXError::actionUnsupported;
    if (node.press) return node.press();
    if (node.kind != MenuNode::Kind::item) return AXError::actionUnsupported;
    const unsigned epoch = menu->tree()->busEpoch;
    Connection* const bus = bus_.connection(deadlineIn(std::chrono::milliseconds(100)));
    if (bus == nullptr) return AXError::cannotComplete;
    if (epoch != bus_.epoch()) return AXError::invalidUIElement;
    return pressMenuItem(*bus, node, [this, process = menu->tree()->processIdentifier] {
        return options_.bringForward && options_.bringForward(process);
    });
}

SessionMenuState Accessibility::sessionMenuState() {
    return options_.sessionMenu ? options_.sessionMenu(options_.readTime).state : SessionMenuState::unknownDesktop;
}

bool Accessibility::AXIsProcessTrusted() {
    return bus_.isEnabled(deadlineIn(trustTime));
}

}  // namespace orlamo::atspi
