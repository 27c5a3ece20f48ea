#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/Service.h"

namespace orlamo {

/// Numbers as the platform's accessibility interface has them.
enum class AXError : int {
    success = 0,
    failure = -25200,
    illegalArgument = -25201,
    invalidUIElement = -25202,
    cannotComplete = -25204,
    attributeUnsupported = -25205,
    actionUnsupported = -25206,
    apiDisabled = -25211,
    noValue = -25212,
};

/// A reference to an element of another application's interface. Two references are the same element when they name
/// the same object there, whenever they were read; it stays pressable as long as that object lives.
class AXUIElement {
public:
    virtual ~AXUIElement() = default;
    virtual bool isSameElement(const AXUIElement& other) const = 0;
    /// Equal for the same element.
    virtual std::size_t hash() const = 0;
};

using AXUIElementRef = std::shared_ptr<const AXUIElement>;

/// An attribute's value; texts are UTF-8.
using AXValue = std::variant<std::monostate, bool, std::int64_t, std::string, AXUIElementRef>;

/// CFBooleanGetValue: true for a boolean that is true.
inline bool CFBooleanGetValue(const AXValue& value) {
    const bool* const truth = std::get_if<bool>(&value);
    return truth != nullptr && *truth;
}

/// Whether the system may ask the user.
enum class kAXTrustedCheckOptionPrompt { no, yes };

/// Whether the desktop has a menu of the session now, or why not.
enum class SessionMenuState {
    present,
    unknownDesktop,  // what this desktop can do about the session is not known
    notBound,        // too few of its commands have keys
    noService,       // a service that performs one of them is missing, or nobody answers what the keys are
};

/// Other applications' elements. A menu bar has one child per menu: a first one for the session, a second one titled
/// with the application's name, then the application's own. Each has one child, a menu without a title, which holds the
/// items; an item that opens a submenu holds that submenu's items itself.
/// On an error the out parameter keeps its value. Every call answers within a second.
class Accessibility : public Service<Accessibility> {
public:
    virtual ~Accessibility() = default;

    /// An element for any process id; calls on it fail when there is no such process.
    virtual AXUIElementRef AXUIElementCreateApplication(int processIdentifier) = 0;
    /// "AXMenuBar" of an application; "AXTitle", "AXEnabled", "AXMenuItemCmdModifiers", "AXMenuItemCmdChar",
    /// "AXMenuItemCmdGlyph" of menu elements.
    virtual AXError AXUIElementCopyAttributeValue(const AXUIElementRef& element, std::string_view attribute,
                                                  AXValue& value) = 0;
    /// "AXChildren".
    virtual AXError AXUIElementGetAttributeValueCount(const AXUIElementRef& element, std::string_view attribute,
                                                      std::int64_t& count) = 0;
    /// At most `count` children from `first` on, in menu order.
    virtual AXError AXUIElementCopyAttributeValues(const AXUIElementRef& element, std::string_view attribute,
                                                   std::int64_t first, std::int64_t count,
                                                   std::vector<AXUIElementRef>& values) = 0;
    /// "AXPress".
    virtual AXError AXUIElementPerformAction(const AXUIElementRef& element, std::string_view action) = 0;
    /// Whether the menu bar that was read last begins with that first menu of the session: one heading and four items.
    /// Else that one has no items.
    virtual bool hasSessionMenu() const = 0;
    /// What a reading would find now.
    virtual SessionMenuState sessionMenuState() = 0;
    /// Whether this process may read other applications, without asking the user.
    virtual bool AXIsProcessTrusted() = 0;
    /// The same answer; this desktop has no question of its own to prompt the user with.
    bool AXIsProcessTrustedWithOptions(kAXTrustedCheckOptionPrompt) { return AXIsProcessTrusted(); }
};

}  // namespace orlamo
