#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Accessibility.h"

namespace orlamo {

/// One object of a made-up application. References are made anew for every read, as a real bus makes them, and are the
/// same element when they lead to the same node.
struct FakeElement {
    std::map<std::string, AXValue, std::less<>> attributes;
    std::vector<std::shared_ptr<FakeElement>> children;

    // Faults, when not success.
    std::map<std::string, AXError, std::less<>> attributeErrors;
    AXError countError = AXError::success;
    AXError childrenError = AXError::success;
    std::optional<std::int64_t> reportedCount;  // in place of the number of children
    AXError pressResult = AXError::success;

    FakeElement& with(std::string_view attribute, AXValue value) {
        attributes.insert_or_assign(std::string(attribute), std::move(value));
        return *this;
    }
    std::shared_ptr<FakeElement> add(std::shared_ptr<FakeElement> child) {
        children.push_back(child);
        return child;
    }
};
using FakeElementPtr = std::shared_ptr<FakeElement>;

class FakeElementRef : public AXUIElement {
public:
    explicit FakeElementRef(FakeElementPtr node) : node(std::move(node)) {}
    bool isSameElement(const AXUIElement& other) const override {
        const auto* const reference = dynamic_cast<const FakeElementRef*>(&other);
        return reference != nullptr && reference->node == node;
    }
    std::size_t hash() const override { return std::hash<FakeElementPtr>{}(node); }

    const FakeElementPtr node;
};

class FakeAccessibility : public Accessibility {
public:
    struct Calls {
        int createApplication = 0;
        int copyAttributeValue = 0;
        int count = 0;
        int copyAttributeValues = 0;
    };

    // Building blocks. A menu-bar item holds a menu without a title, and that holds the items.
    static FakeElementPtr element() { return std::make_shared<FakeElement>(); }
    static FakeElementPtr titled(std::string_view title) {
        FakeElementPtr node = element();
        node->with("AXTitle", std::string(title));
        return node;
    }
    /// An enabled item with a shortcut. `modifiers` is the accessibility interface's number.
    static FakeElementPtr item(std::string_view title, std::string_view keyCharacter, std::int64_t modifiers = 0) {
        FakeElementPtr node = titled(title);
        node->with("AXEnabled", true);
        node->with("AXMenuItemCmdModifiers", modifiers);
        node->with("AXMenuItemCmdChar", std::string(keyCharacter));
        return node;
    }
    /// An item that opens a submenu and holds its items itself.
    static FakeElementPtr submenu(std::string_view title, std::vector<FakeElementPtr> items) {
        FakeElementPtr node = titled(title);
        node->children = std::move(items);
        return node;
    }
    static FakeElementPtr menu(std::string_view title, std::vector<FakeElementPtr> items) {
        FakeElementPtr node = titled(title);
        node->add(element())->children = std::move(items);
        return node;
    }
    static AXUIElementRef reference(FakeElementPtr node) { return std::make_shared<FakeElementRef>(std::move(node)); }
    static FakeElementPtr nodeOf(const AXUIElementRef& element) {
        return static_cast<const FakeElementRef&>(*element).node;
    }

    /// Gives a process a menu bar with these items and returns the bar.
    FakeElementPtr setMenuBar(int processIdentifier, std::vector<FakeElementPtr> items) {
        FakeElementPtr bar = element();
        bar->children = std::move(items);
        FakeElementPtr application = element();
        application->with("AXMenuBar", reference(bar));
        applications[processIdentifier] = std::move(application);
        return bar;
    }

    AXUIElementRef AXUIElementCreateApplication(int processIdentifier) override {
        ++calls.createApplication;
        const auto found = applications.find(processIdentifier);
        return reference(found == applications.end() ? nullptr : found->second);
    }

    AXError AXUIElementCopyAttributeValue(const AXUIElementRef& element, std::string_view attribute,
                                          AXValue& value) override {
        ++calls.copyAttributeValue;
        const FakeElementPtr node = nodeOf(element);
        if (const AXError error = failure(node); error != AXError::success) return error;
        const auto fault = node->attributeErrors.find(attribute);
        if (fault != node->attributeErrors.end()) return fault->second;
        const auto found = node->attributes.find(attribute);
        if (found == node->attributes.end()) return AXError::noValue;
        value = found->second;
        return AXError::success;
    }

    AXError AXUIElementGetAttributeValueCount(const AXUIElementRef& element, std::string_view attribute,
                                              std::int64_t& count) override {
        ++calls.count;
        const FakeElementPtr node = nodeOf(element);
        if (const AXError error = failure(node); error != AXError::success) return error;
        if (attribute != "AXChildren") return AXError::attributeUnsupported;
        if (node->countError != AXError::success) return node->countError;
        count = node->reportedCount.value_or(static_cast<std::int64_t>(node->children.size()));
        return AXError::success;
    }

    AXError AXUIElementCopyAttributeValues(const AXUIElementRef& element, std::string_view attribute,
                                           std::int64_t first, std::int64_t count,
                                           std::vector<AXUIElementRef>& values) override {
        ++calls.copyAttributeValues;
        const FakeElementPtr node = nodeOf(element);
        if (const AXError error = failure(node); error != AXError::success) return error;
        if (attribute != "AXChildren") return AXError::attributeUnsupported;
        if (node->childrenError != AXError::success) return node->childrenError;
        if (first < 0 || count < 0) return AXError::illegalArgument;
        values.clear();
        const auto size = static_cast<std::int64_t>(node->children.size());
        for (std::int64_t i = first; i < size && i - first < count; ++i) {
            values.push_back(reference(node->children[static_cast<std::size_t>(i)]));
        }
        return AXError::success;
    }

    AXError AXUIElementPerformAction(const AXUIElementRef& element, std::string_view action) override {
        const FakeElementPtr node = nodeOf(element);
        if (const AXError error = failure(node); error != AXError::success) return error;
        if (action != "AXPress") return AXError::actionUnsupported;
        presses.push_back(node);
        return node->pressResult;
    }

    bool AXIsProcessTrusted() override { return trusted; }
    bool hasSessionMenu() const override { return sessionMenu; }
    SessionMenuState sessionMenuState() override { return menuState; }

    bool sessionMenu = true;
    SessionMenuState menuState = SessionMenuState::present;
    bool trusted = true;                         // while false every call fails
    std::map<int, FakeElementPtr> applications;  // by process id
    std::vector<FakeElementPtr> presses;         // also those that failed with the node's own result
    Calls calls;

private:
    AXError failure(const FakeElementPtr& node) const {
        if (!trusted) return AXError::apiDisabled;
        return node == nullptr ? AXError::invalidUIElement : AXError::success;
    }

    Installation installation_{*this};
};

}  // namespace orlamo
