#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <unordered_map>

#include "platform/Accessibility.h"

namespace orlamo {

/// The elements a walk still has to visit, first in, first out. Taking an element drops every other entry of the same
/// element; each operation takes constant time on average, whatever the list holds. Swapping two lists is constant too.
class WorkList {
public:
    /// Whether nothing is left to take.
    bool empty() const { return live_ == 0; }
    void append(AXUIElementRef element);
    /// Not on an empty list.
    AXUIElementRef take();

private:
    struct Entry {
        AXUIElementRef element;
        std::uint64_t sequence;
    };
    // Entries are not searched for: those up to `deadUpTo` are passed over when they reach the front.
    struct Element {
        std::size_t live = 0;
        std::uint64_t deadUpTo = 0;
    };
    struct Hash {
        std::size_t operator()(const AXUIElementRef& element) const { return element->hash(); }
    };
    struct Same {
        bool operator()(const AXUIElementRef& a, const AXUIElementRef& b) const { return a->isSameElement(*b); }
    };

    std::deque<Entry> entries_;
    std::unordered_map<AXUIElementRef, Element, Hash, Same> elements_;
    std::size_t live_ = 0;
    std::uint64_t lastSequence_ = 0;
};

}  // namespace orlamo
