#include "platform/atspi/MenuBarFinder.h"

#include <algorithm>
#include <memory>
#include <unordered_set>
#include <utility>

namespace orlamo::atspi {
namespace {

constexpr int deepest = 8;
constexpr std::size_t mostObjects = 1000;
constexpr std::size_t mostChildrenKept = 10'000;  // of one level, until they are sorted out

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
        case ObjectRole::scrollPane:
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

/// An object below a window, and its way there: its place among its siblings, and so on from the window down.
struct Place {
    ObjectRef object;
    std::vector<std::size_t> way;
};

class Finder {
public:
    Finder(NodeSource& source, const KnownNodes& known, const ObjectRef& window)
        : source_(source), known_(known), visited_{window}, holders_{{window, {}}} {}

    /// Level by level, roles first: the mere question for the children of a long table makes a program build them all.
    /// Once a menu bar is found, only what comes before it is entered, and only one level further down.
    std::optional<ObjectRef> find() {
        int levelsLeft = deepest;
        while (levelsLeft-- > 0 && !holders_.empty()) {
            const std::vector<Place> level = childrenOfHolders();
            const std::vector<Answer> roles = askAll(level, Question::role);
            holders_.clear();
            for (std::size_t i = 0; i < level.size(); ++i) {
                const auto* const number = std::get_if<std::uint64_t>(&roles[i]);
                if (number == nullptr) continue;
                const auto role = static_cast<ObjectRole>(*number);
                const bool isFirst = !found_ || level[i].way < found_->way;
                if (role == ObjectRole::menuBar && isFirst) {
                    if (!found_) levelsLeft = std::min(levelsLeft, 1);
                    found_ = level[i];
                }
                if (mayHoldMenuBar(role) && isFirst) holders_.push_back(level[i]);
            }
        }
        return found_ ? std::optional(found_->object) : std::nullopt;
    }

private:
    std::vector<Place> childrenOfHolders() {
        std::vector<Place> level;
        const std::vector<Answer> answers = askAll(holders_, Question::children);
        for (std::size_t i = 0; i < answers.size(); ++i) {
            const auto* const children = std::get_if<std::vector<ObjectRef>>(&answers[i]);
            if (children == nullptr) continue;
            for (std::size_t place = 0; place < children->size(); ++place) {
                const ObjectRef& child = (*children)[place];
                if (child.bus != holders_[i].object.bus || visited_.size() >= mostObjects) continue;
                if (!visited_.insert(child).second) continue;
                level.push_back({child, holders_[i].way});
                level.back().way.push_back(place);
            }
        }
        return level;
    }

    /// Nothing stands for an object that did not answer before the time was over.
    std::vector<Answer> askAll(const std::vector<Place>& places, Question question) {
        struct Round {
            std::vector<Answer> answers;
            std::size_t outstanding = 0;
            std::size_t room = mostChildrenKept;
        };
        const auto round = std::make_shared<Round>();
        round->answers.resize(places.size());
        for (std::size_t i = 0; i < places.size(); ++i) {
            round->answers[i] = knownAnswer(places[i].object, question);
            if (!std::holds_alternative<std::monostate>(round->answers[i])) continue;
            ++round->outstanding;
            source_.ask(places[i].object, question, [round, i](Answer answer) {
                --round->outstanding;
                if (auto* const children = std::get_if<std::vector<ObjectRef>>(&answer)) {
                    children->resize(std::min(children->size(), round->room));
                    children->shrink_to_fit();  // a thousand answers of a thousand children each are 60 MiB
                    round->room -= children->size();
                }
                round->answers[i] = std::move(answer);
            });
        }
        while (round->outstanding > 0 && source_.wait()) {
        }
        return std::move(round->answers);
    }

    Answer knownAnswer(const ObjectRef& object, Question question) const {
        const auto node = known_.find(object);
        if (node == known_.end()) return {};
        if (question == Question::role) return static_cast<std::uint64_t>(node->second.role);
        return node->second.children ? Answer{*node->second.children} : Answer{};
    }

    NodeSource& source_;
    const KnownNodes& known_;
    std::unordered_set<ObjectRef, ObjectRefHash> visited_;
    std::vector<Place> holders_;
    std::optional<Place> found_;
};

}  // namespace

std::optional<ObjectRef> findMenuBar(NodeSource& source, const KnownNodes& known,
                                     const std::vector<ObjectRef>& windows) {
    for (const ObjectRef& window : windows) {
        if (auto bar = Finder(source, known, window).find()) return bar;
    }
    return std::nullopt;
}

}  // namespace orlamo::atspi
