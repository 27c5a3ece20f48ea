#include "platform/plist/LibplistParser.h"

#include <plist/plist.h>

#include <cstdlib>
#include <memory>

#include "platform/plist/Structure.h"

namespace orlamo::plist {

namespace {

struct NodeFree {
    void operator()(plist_t node) const { plist_free(node); }
};
struct Free {
    void operator()(void* memory) const { std::free(memory); }
};
using Node = std::unique_ptr<void, NodeFree>;
using Text = std::unique_ptr<char, Free>;

// These nest no deeper than the check of the structure lets through.
PropertyList converted(plist_t node);

PropertyList dictionary(plist_t node) {
    PropertyList::Dictionary entries;
    plist_dict_iter walk = nullptr;
    plist_dict_new_iter(node, &walk);
    const std::unique_ptr<void, Free> owner(walk);
    while (walk != nullptr) {
        char* key = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(node, walk, &key, &value);
        const Text keyOwner(key);
        if (value == nullptr) break;
        if (key != nullptr) entries.insert_or_assign(key, converted(value));
    }
    return entries;
}

PropertyList array(plist_t node) {
    PropertyList::Array entries;
    plist_array_iter walk = nullptr;
    plist_array_new_iter(node, &walk);
    const std::unique_ptr<void, Free> owner(walk);
    while (walk != nullptr) {
        plist_t value = nullptr;
        plist_array_next_item(node, walk, &value);
        if (value == nullptr) break;
        entries.push_back(converted(value));
    }
    return entries;
}

PropertyList text(plist_t node, void (*read)(plist_t, char**)) {
    char* value = nullptr;
    read(node, &value);
    const Text owner(value);
    return value == nullptr ? std::string() : std::string(value);
}

PropertyList data(plist_t node) {
    char* value = nullptr;
    std::uint64_t length = 0;
    plist_get_data_val(node, &value, &length);
    const Text owner(value);
    return value == nullptr ? PropertyList::Data() : PropertyList::Data(value, value + length);
}

template <class Read>
PropertyList number(plist_t node, void (*read)(plist_t, Read*)) {
    Read value = 0;
    read(node, &value);
    return static_cast<std::int64_t>(value);
}

PropertyList converted(plist_t node) {
    switch (plist_get_node_type(node)) {
        case PLIST_BOOLEAN: {
            std::uint8_t value = 0;
            plist_get_bool_val(node, &value);
            return value != 0;
        }
        case PLIST_UINT:
            return number(node, plist_get_uint_val);
        case PLIST_UID:
            return number(node, plist_get_uid_val);
        case PLIST_REAL: {
            double value = 0;
            plist_get_real_val(node, &value);
            return value;
        }
        case PLIST_DATE: {
            std::int32_t seconds = 0;
            std::int32_t microseconds = 0;
            plist_get_date_val(node, &seconds, &microseconds);
            return seconds + microseconds / 1e6;
        }
        case PLIST_STRING:
            return text(node, plist_get_string_val);
        case PLIST_KEY:
            return text(node, plist_get_key_val);
        case PLIST_DATA:
            return data(node);
        case PLIST_ARRAY:
            return array(node);
        case PLIST_DICT:
            return dictionary(node);
        default:
            return {};
    }
}

PropertyListParser::Result refused(const std::string& why) {
    return {.value = {}, .error = "not a readable property list: " + why};
}

}  // namespace

PropertyListParser::Result LibplistParser::propertyListWithData(std::span<const std::uint8_t> data) {
    if (data.empty()) return refused("it is empty");
    if (data.size() > maximumBytes) return refused("more than 1 MiB");
    const bool binary = isBinary(data);
    if (const auto why = binary ? objectionToBinary(data) : objectionToXml(data); !why.empty()) return refused(why);

    plist_t parsed = nullptr;
    const auto* const bytes = reinterpret_cast<const char*>(data.data());
    const auto length = static_cast<std::uint32_t>(data.size());
    if (binary) {
        plist_from_bin(bytes, length, &parsed);
    } else {
        plist_from_xml(bytes, length, &parsed);
    }
    const Node owner(parsed);
    if (parsed == nullptr) return refused(binary ? "its binary form is damaged" : "its XML is no property list");
    return {.value = converted(parsed), .error = {}};
}

}  // namespace orlamo::plist
