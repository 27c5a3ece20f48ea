#include "platform/atspi/Cache.h"

#include <systemd/sd-bus.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>
#include <unordered_map>
#include <utility>

#include "platform/atspi/Utf8.h"

namespace orlamo::atspi {
namespace {

constexpr std::size_t mostObjects = 20'000;
constexpr std::size_t mostListedChildren = 50'000;  // of all objects together
constexpr std::size_t longestPath = 512;

struct CachedObject {
    ObjectRef object;
    ObjectRef parent;
    KnownNode node;
    std::int32_t place = -1;       // among its parent's children
    std::int32_t childCount = -1;  // -1: the older form, which lists the children
};

bool readRef(sd_bus_message* message, const std::string& bus, ObjectRef& object) {
    const char *name = nullptr, *path = nullptr;
    if (sd_bus_message_read(message, "(so)", &name, &path) <= 0) return false;
    if (strnlen(path, longestPath + 1) > longestPath) path = "";
    object = {*name == '\0' ? bus : std::string(name), path};
    return true;
}

bool readStates(sd_bus_message* message, std::uint64_t& states) {
    if (sd_bus_message_enter_container(message, 'a', "u") < 0) return false;
    std::uint32_t word = 0;
    int result = 0;
    for (int shift = 0; (result = sd_bus_message_read_basic(message, 'u', &word)) > 0; shift += 32) {
        if (shift < 64) states |= static_cast<std::uint64_t>(word) << shift;
    }
    return result == 0 && sd_bus_message_exit_container(message) >= 0;
}

bool readListedChildren(sd_bus_message* message, const std::string& bus, CachedObject& cached, std::size_t& room) {
    if (sd_bus_message_enter_container(message, 'a', "(so)") < 0) return false;
    std::vector<ObjectRef> children;
    ObjectRef child;
    while (room > 0 && readRef(message, bus, child)) {
        children.push_back(child);
        --room;
    }
    cached.node.children = std::move(children);
    return sd_bus_message_exit_container(message) >= 0;
}

/// One row: object, application, parent, then place and child count or, in the older form, the list of children; then
/// interfaces, name, role, description, states.
std::optional<CachedObject> readRow(sd_bus_message* message, const std::string& bus, const char* row,
                                    bool listsChildren, std::size_t& room) {
    if (sd_bus_message_enter_container(message, 'r', row) <= 0) return std::nullopt;
    CachedObject cached;
    ObjectRef application;
    if (!readRef(message, bus, cached.object) || !readRef(message, bus, application) ||
        !readRef(message, bus, cached.parent)) {
        return std::nullopt;
    }
    const bool hasChildren = listsChildren ? readListedChildren(message, bus, cached, room)
                                           : sd_bus_message_read(message, "ii", &cached.place, &cached.childCount) > 0;
    const char *name = nullptr, *description = nullptr;
    std::uint32_t role = 0;
    if (!hasChildren || sd_bus_message_skip(message, "as") < 0 ||
        sd_bus_message_read(message, "sus", &name, &role, &description) <= 0 ||
        !readStates(message, cached.node.states) || sd_bus_message_exit_container(message) < 0) {
        return std::nullopt;
    }
    cached.node.name = cleanName(name);
    cached.node.role = static_cast<ObjectRole>(role);
    return cached;
}

/// Gives each object its children where the rows agree with the number that it says it has.
KnownNodes connect(std::vector<CachedObject> rows) {
    KnownNodes known;
    std::unordered_map<ObjectRef, std::int32_t, ObjectRefHash> counts;
    for (CachedObject& row : rows) {
        if (row.childCount >= 0) counts[row.object] = row.childCount;
        known[row.object] = std::move(row.node);
    }
    std::ranges::stable_sort(rows, {}, &CachedObject::place);
    std::unordered_map<ObjectRef, std::vector<ObjectRef>, ObjectRefHash> children;
    for (const CachedObject& row : rows) {
        auto& siblings = children[row.parent];
        if (row.place >= 0 && static_cast<std::size_t>(row.place) == siblings.size()) siblings.push_back(row.object);
    }
    for (const auto& [object, count] : counts) {
        auto& found = children[object];
        if (found.size() == static_cast<std::size_t>(count)) known[object].children = std::move(found);
    }
    return known;
}

KnownNodes readRows(sd_bus_message* message, const std::string& bus, Deadline deadline) {
    constexpr const char* row = "(so)(so)(so)iiassusau";
    constexpr const char* olderRow = "(so)(so)(so)a(so)assusau";
    const bool listsChildren = sd_bus_message_has_signature(message, "a((so)(so)(so)a(so)assusau)") > 0;
    if (!listsChildren && sd_bus_message_has_signature(message, "a((so)(so)(so)iiassusau)") <= 0) return {};
    const std::string rowType = std::string("(") + (listsChildren ? olderRow : row) + ")";
    if (sd_bus_message_enter_container(message, 'a', rowType.c_str()) < 0) return {};
    std::vector<CachedObject> rows;
    std::size_t room = mostListedChildren;
    while (rows.size() < mostObjects && std::chrono::steady_clock::now() < deadline) {
        auto cached = readRow(message, bus, listsChildren ? olderRow : row, listsChildren, room);
        if (!cached) break;
        if (!cached->object.path.empty()) rows.push_back(std::move(*cached));
    }
    return connect(std::move(rows));
}

}  // namespace

std::optional<KnownNodes> readCache(Connection& connection, const std::string& bus, Deadline deadline) {
    KnownNodes known;
    bool isAnswered = false;
    const int owner = 0;
    connection.call(
        {bus, "/org/a11y/atspi/cache", "org.a11y.atspi.Cache", "GetItems"},
        [&](sd_bus_message* reply) {
            isAnswered = true;
            if (reply != nullptr && sd_bus_message_is_method_error(reply, nullptr) <= 0) {
                known = readRows(reply, bus, deadline);
            }
        },
        &owner);
    const std::array<Connection*, 1> connections{&connection};
    while (!isAnswered && waitForAnswers(connections, deadline)) {
    }
    connection.cancel(&owner);
    if (!isAnswered) return std::nullopt;
    return known;
}

}  // namespace orlamo::atspi
