#pragma once

#include <cstdint>
#include <memory>

#include "platform/Accessibility.h"
#include "platform/atspi/MenuTree.h"

namespace orlamo::atspi {

/// An application, by its process id.
class ApplicationElement : public AXUIElement {
public:
    explicit ApplicationElement(int processIdentifier) : processIdentifier_(processIdentifier) {}

    int processIdentifier() const { return processIdentifier_; }
    bool isSameElement(const AXUIElement& other) const override {
        const auto* const application = dynamic_cast<const ApplicationElement*>(&other);
        return application != nullptr && application->processIdentifier_ == processIdentifier_;
    }
    std::size_t hash() const override { return std::hash<int>{}(processIdentifier_); }

private:
    int processIdentifier_;
};

/// An element of a menu tree. Keeps the tree that it was read with.
class MenuElement : public AXUIElement {
public:
    MenuElement(std::shared_ptr<const MenuTree> tree, std::uint32_t index) : tree_(std::move(tree)), index_(index) {}

    const MenuNode& node() const { return tree_->nodes[index_]; }
    const std::shared_ptr<const MenuTree>& tree() const { return tree_; }
    bool isSameElement(const AXUIElement& other) const override {
        const auto* const element = dynamic_cast<const MenuElement*>(&other);
        return element != nullptr && element->tree_->busEpoch == tree_->busEpoch &&
               element->node().kind == node().kind && element->node().object == node().object;
    }
    std::size_t hash() const override {
        return ObjectRefHash{}(node().object) * 8 + static_cast<std::size_t>(node().kind);
    }

private:
    std::shared_ptr<const MenuTree> tree_;
    std::uint32_t index_;
};

}  // namespace orlamo::atspi
