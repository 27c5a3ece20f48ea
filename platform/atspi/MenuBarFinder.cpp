#include "platform/atspi/MenuBarFinder.h"

#include <memory>
#include <unordered_set>
#include <utility>

namespace orlamo::atspi {
namespace {

constexpr int deepest = 8;
constexpr std::size_t mostObjects = 1000;

bool mayHoldMenuBar(ObjectRole role) {
    switch (role) {
        case ObjectRole::alert:
        case ObjectRole::dialog:
        case ObjectRole::filler:
        case ObjectRole::frame:
        case ObjectRole::internalFrame:
        case ObjectRole::layeredPane:
        case ObjectRole::panel:
        case ObjectRole::rootPane:
        case ObjectRole::splitPane:
        case ObjectRole::unknown:
        case ObjectRole::viewport:
        case ObjectRole::window:
        case ObjectRole::section:
        case ObjectRole::redundantObject:
        case ObjectRole::grouping:
            return true;
        default:
            return false;
    }
}

/// Asks all of them at once. Nothing stands for an object that did not answer before the time was over.
std::vector<Answer> askAll(NodeSource& source, const std::vector<ObjectRef>& objects, Question question) {
    struct Round {
        std::vector<Answer> answers;
        std::size_t outstanding;
    };
    const auto round = std::make_shared<Round>(Round{std::vector<Answer>(objects.size()), objects.size()});
    for (std::size_t i = 0; i < objects.size(); ++i) {
        source.ask(objects[i], question, [round, i](Answer answer) {
            --round->outstanding;
            round->answers[i] = std::move(answer);
        });
    }
    while (round->outstanding > 0 && source.wait()) {
    }
    return std::move(round->answers);
}

/// Level by level, roles first: the mere question for the children of a long table makes a program build them all.
std::optional<ObjectRef> findUnder(NodeSource& source, const ObjectRef& window) {
    std::unordered_set<ObjectRef, ObjectRefHash> visited{window};
    std::vector<ObjectRef> holders{window};
    for (int depth = 0; depth < deepest && !holders.empty(); ++depth) {
        std::vector<ObjectRef> level;
        for (const Answer& answer : askAll(source, holders, Question::children)) {
            const auto* const children = std::get_if<std::vector<ObjectRef>>(&answer);
            if (children == nullptr) continue;
            for (const ObjectRef& child : *children) {
                if (visited.size() < mostObjects && visited.insert(child).second) level.push_back(child);
            }
        }
        const std::vector<Answer> roles = askAll(source, level, Question::role);
        holders.clear();
        for (std::size_t i = 0; i < level.size(); ++i) {
            const auto* const number = std::get_if<std::uint64_t>(&roles[i]);
            if (number == nullptr) continue;
            const auto role = static_cast<ObjectRole>(*number);
            if (role == ObjectRole::menuBar) return level[i];
            if (mayHoldMenuBar(role)) holders.push_back(level[i]);
        }
    }
    return std::nullopt;
}

/// How far below the window the object lies; none when it is not under it.
std::optional<int> depthBelow(const KnownNodes& known, const ObjectRef& window, ObjectRef object) {
    for (int depth = 0; depth <= deepest + 1; ++depth) {
        if (object == window) return depth;
        const auto node = known.find(object);
        if (node == known.end()) return std::nullopt;
        object = node->second.parent;
    }
    return std::nullopt;
}

}  // namespace

std::optional<ObjectRef> findMenuBar(NodeSource& source, const std::vector<ObjectRef>& windows) {
    for (const ObjectRef& window : windows) {
        if (auto bar = findUnder(source, window)) return bar;
    }
    return std::nullopt;
}

std::optional<ObjectRef> findKnownMenuBar(const KnownNodes& known, const std::vector<ObjectRef>& windows) {
    for (const ObjectRef& window : windows) {
        std::optional<ObjectRef> nearest;
        int nearestDepth = deepest + 2;
        for (const auto& [object, node] : known) {
            if (node.role != ObjectRole::menuBar) continue;
            const auto depth = depthBelow(known, window, object);
            if (!depth || *depth >= nearestDepth) continue;
            nearest = object;
            nearestDepth = *depth;
        }
        if (nearest) return nearest;
    }
    return std::nullopt;
}

}  // namespace orlamo::atspi
