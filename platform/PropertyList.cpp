#include "platform/PropertyList.h"

#include "platform/Geometry.h"

namespace orlamo {

namespace {

template <class Entries, class Write>
std::string joined(char open, char close, const Entries& entries, Write write) {
    std::string text(1, open);
    for (const auto& entry : entries) {
        if (text.size() > 1) text += ", ";
        text += write(entry);
    }
    return text + close;
}

// In quotes, with those and backslashes escaped, so that the text can be read back.
std::string quoted(std::string_view text) {
    std::string result(1, '"');
    for (const char c : text) {
        if (c == '"' || c == '\\') result += '\\';
        result += c;
    }
    return result + '"';
}

struct Describe {
    std::string operator()(std::monostate) const { return "none"; }
    std::string operator()(bool value) const { return value ? "true" : "false"; }
    std::string operator()(std::int64_t value) const { return std::to_string(value); }
    std::string operator()(double value) const { return describe(value); }
    std::string operator()(const std::string& value) const { return quoted(value); }
    std::string operator()(const PropertyList::Data& value) const {
        return "<" + std::to_string(value.size()) + " bytes>";
    }
    std::string operator()(const PropertyList::Array& value) const {
        return joined('[', ']', value, [](const PropertyList& entry) { return entry.description(); });
    }
    std::string operator()(const PropertyList::Dictionary& value) const {
        return joined('{', '}', value,
                      [](const auto& entry) { return quoted(entry.first) + ": " + entry.second.description(); });
    }
};

}  // namespace

const PropertyList* PropertyList::at(std::string_view key) const {
    const auto* const dictionary = get<Dictionary>();
    if (dictionary == nullptr) return nullptr;
    const auto found = dictionary->find(key);
    return found == dictionary->end() ? nullptr : &found->second;
}

std::string PropertyList::description() const {
    return std::visit(Describe{}, value_);
}

}  // namespace orlamo
