#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <unordered_map>
#include <variant>
#include <vector>

namespace orlamo::atspi {

/// An object on the accessibility bus: the unique name of its program's connection, and its path there.
struct ObjectRef {
    std::string bus;
    std::string path;

    bool operator==(const ObjectRef&) const = default;
};

struct ObjectRefHash {
    std::size_t operator()(const ObjectRef& object) const {
        return std::hash<std::string>{}(object.path) * 31 + std::hash<std::string>{}(object.bus);
    }
};

/// The numbers that the accessibility bus has for kinds of objects; those that menus are made of or found in.
enum class ObjectRole : std::uint32_t {
    alert = 2,
    checkMenuItem = 8,
    dialog = 16,
    filler = 20,
    frame = 23,
    internalFrame = 28,
    layeredPane = 30,
    menu = 33,
    menuBar = 34,
    menuItem = 35,
    panel = 39,
    popupMenu = 41,
    radioMenuItem = 45,
    rootPane = 46,
    scrollPane = 49,
    separator = 50,
    splitPane = 53,
    tearOffMenuItem = 59,
    unknown = 67,
    viewport = 68,
    window = 69,
    section = 85,
    redundantObject = 86,
    grouping = 99,
};

/// Bits of an object's states.
namespace states {
constexpr std::uint64_t active = 1ULL << 1;
constexpr std::uint64_t enabled = 1ULL << 8;
constexpr std::uint64_t sensitive = 1ULL << 24;
constexpr std::uint64_t showing = 1ULL << 25;
constexpr std::uint64_t visible = 1ULL << 30;
}  // namespace states

/// What is known of an object before it is asked, from its toolkit's cache.
struct KnownNode {
    std::optional<std::vector<ObjectRef>> children;  // none: the cache does not hold them all
    std::string name;
    ObjectRole role{};
    std::uint64_t states = 0;
};

using KnownNodes = std::unordered_map<ObjectRef, KnownNode, ObjectRefHash>;

enum class Question { children, name, role, states, keyBinding };

/// Nothing when the object did not answer or refused; else children, a text (name, key binding) or a number (role,
/// states).
using Answer = std::variant<std::monostate, std::vector<ObjectRef>, std::string, std::uint64_t>;

/// Where answers about objects come from: the bus, or a made-up tree in tests.
class NodeSource {
public:
    using Receive = std::function<void(Answer)>;

    virtual ~NodeSource() = default;

    /// Sends the question and returns at once; `receive` runs inside a later wait().
    virtual void ask(const ObjectRef& object, Question question, Receive receive) = 0;
    /// Waits for answers and hands them out. False, with nothing handed out, once none is outstanding or the time for
    /// the whole reading is over.
    virtual bool wait() = 0;
};

}  // namespace orlamo::atspi
