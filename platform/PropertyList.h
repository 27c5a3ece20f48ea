#pragma once

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "platform/Service.h"

namespace orlamo {

/// A value of a property list. Absent is std::monostate; lookups never throw.
class PropertyList {
public:
    using Array = std::vector<PropertyList>;
    using Dictionary = std::map<std::string, PropertyList, std::less<>>;
    using Data = std::vector<std::uint8_t>;
    using Value = std::variant<std::monostate, bool, std::int64_t, double, std::string, Data, Array, Dictionary>;

    PropertyList() = default;
    template <class T>
    PropertyList(T value) : value_(std::move(value)) {}

    template <class T>
    const T* get() const {
        return std::get_if<T>(&value_);
    }
    /// The dictionary's entry, or null when this is no dictionary or lacks the key.
    const PropertyList* at(std::string_view key) const;
    /// One line, for the log: {"key": value, ...}
    std::string description() const;

    bool operator==(const PropertyList&) const = default;

private:
    Value value_;
};

/// Reads property lists, XML or binary.
class PropertyListParser : public Service<PropertyListParser> {
public:
    struct Result {
        PropertyList value;
        std::string error;  // empty on success, else why it could not be read
    };
    virtual ~PropertyListParser() = default;
    /// Refuses more than 1 MiB and more than 64 levels.
    virtual Result propertyListWithData(std::span<const std::uint8_t> data) = 0;
};

}  // namespace orlamo
