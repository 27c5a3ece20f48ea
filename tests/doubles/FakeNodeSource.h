#pragma once

#include <deque>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/atspi/NodeSource.h"

namespace orlamo {

/// A made-up program: objects by path, answered one question per wait() in the order they were asked.
class FakeNodeSource : public atspi::NodeSource {
public:
    struct Object {
        std::vector<std::string> children;
        std::string name;
        atspi::ObjectRole role = atspi::ObjectRole::menuItem;
        std::uint64_t states = atspi::states::enabled | atspi::states::sensitive;
        std::string keyBinding = {};
    };

    static atspi::ObjectRef ref(const std::string& path) { return {":1.7", path}; }

    std::map<std::string, Object> objects;
    /// Answers left until the time is over.
    std::size_t answersLeft = 1'000'000'000;
    std::map<atspi::Question, int> asked;

    void ask(const atspi::ObjectRef& object, atspi::Question question, Receive receive) override {
        ++asked[question];
        queue_.push_back({object.path, question, std::move(receive)});
    }

    bool wait() override {
        if (queue_.empty() || answersLeft == 0) return false;
        --answersLeft;
        const Asked next = std::move(queue_.front());
        queue_.pop_front();
        next.receive(answer(next));
        return true;
    }

private:
    struct Asked {
        std::string path;
        atspi::Question question;
        Receive receive;
    };

    /// A separator or a popup refuses to tell a key binding, as they do in Qt.
    atspi::Answer answer(const Asked& asked) const {
        using atspi::ObjectRole;
        using atspi::Question;
        const auto found = objects.find(asked.path);
        if (found == objects.end()) return {};
        const Object& object = found->second;
        const bool hasAction = object.role != ObjectRole::separator && object.role != ObjectRole::popupMenu;
        switch (asked.question) {
            case Question::children: {
                std::vector<atspi::ObjectRef> children;
                for (const std::string& path : object.children) children.push_back(ref(path));
                return children;
            }
            case Question::name:
                return object.name;
            case Question::role:
                return static_cast<std::uint64_t>(object.role);
            case Question::states:
                return object.states;
            case Question::keyBinding:
                break;
        }
        return hasAction ? atspi::Answer{object.keyBinding} : atspi::Answer{};
    }

    std::deque<Asked> queue_;
};

}  // namespace orlamo
