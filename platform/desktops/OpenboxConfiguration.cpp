#include "platform/desktops/OpenboxConfiguration.h"

#include "platform/desktops/GioPointers.h"
#include "platform/desktops/Text.h"

namespace orlamo::desktops {

namespace {

constexpr std::size_t maximumDepth = 64;

enum class Place { root, keyboard, binding, action, option, elsewhere };

struct Element {
    Place place;
    std::string name;
};

struct Reader {
    std::vector<Element> open;
    OpenboxBinding binding;
    bool beginsChain = false;
    std::string text;  // of the option
    bool hasRoot = false;
    std::vector<OpenboxBinding> bindings;
};

Place placeOf(const Reader& reader, std::string_view name) {
    if (reader.open.empty()) return name == "openbox_config" ? Place::root : Place::elsewhere;
    switch (reader.open.back().place) {
        case Place::root:
            return name == "keyboard" ? Place::keyboard : Place::elsewhere;
        case Place::keyboard:
            return name == "keybind" ? Place::binding : Place::elsewhere;
        case Place::binding:
            return name == "action" ? Place::action : Place::elsewhere;
        case Place::action:
            return Place::option;
        case Place::option:
        case Place::elsewhere:
            break;
    }
    return Place::elsewhere;
}

std::string_view attribute(std::string_view name, const char* const* names, const char* const* values) {
    for (; *names != nullptr; ++names, ++values) {
        if (name == *names) return *values;
    }
    return {};
}

void start(GMarkupParseContext*, const char* name, const char** names, const char** values, void* data,
           GError** error) {
    auto& reader = *static_cast<Reader*>(data);
    if (reader.open.size() == maximumDepth) {
        g_set_error(error, G_MARKUP_ERROR, G_MARKUP_ERROR_INVALID_CONTENT, "more than %zu nested elements",
                    maximumDepth);
        return;
    }
    const auto place = placeOf(reader, name);
    const bool isInBinding = !reader.open.empty() && reader.open.back().place == Place::binding;
    if (isInBinding && std::string_view(name) == "keybind") reader.beginsChain = true;
    reader.open.push_back({place, name});
    switch (place) {
        case Place::root:
            reader.hasRoot = true;
            break;
        case Place::keyboard:
            reader.bindings.clear();  // Openbox forgets those of an earlier section
            break;
        case Place::binding:
            reader.binding = {};
            reader.beginsChain = false;
            for (const auto key : split(attribute("key", names, values), ' ')) reader.binding.keys.emplace_back(key);
            break;
        case Place::action:
            reader.binding.actions.push_back({std::string(attribute("name", names, values)), {}});
            break;
        case Place::option:
            reader.text.clear();
            break;
        case Place::elsewhere:
            break;
    }
}

void addText(GMarkupParseContext*, const char* text, gsize length, void* data, GError**) {
    auto& reader = *static_cast<Reader*>(data);
    if (!reader.open.empty() && reader.open.back().place == Place::option) reader.text.append(text, length);
}

std::string trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(blanks) - first + 1));
}

void end(GMarkupParseContext*, const char*, void* data, GError**) {
    auto& reader = *static_cast<Reader*>(data);
    const auto [place, name] = std::move(reader.open.back());
    reader.open.pop_back();
    if (place == Place::option) {
        reader.binding.actions.back().options.try_emplace(name, trimmed(reader.text));
    } else if (place == Place::binding) {
        if (reader.beginsChain) reader.binding.actions.clear();
        if (reader.beginsChain || !reader.binding.actions.empty()) {
            reader.bindings.push_back(std::move(reader.binding));
        }
    }
}

struct ContextFree {
    void operator()(GMarkupParseContext* context) const { g_markup_parse_context_free(context); }
};

}  // namespace

std::optional<std::vector<OpenboxBinding>> openboxBindings(std::string_view xml, std::string& error) {
    if (xml.size() > maximumConfigurationSize) {
        error = "larger than " + std::to_string(maximumConfigurationSize) + " bytes";
        return std::nullopt;
    }
    constexpr GMarkupParser parser{start, end, addText, nullptr, nullptr};
    Reader reader;
    const std::unique_ptr<GMarkupParseContext, ContextFree> context(
        g_markup_parse_context_new(&parser, G_MARKUP_TREAT_CDATA_AS_TEXT, &reader, nullptr));
    GError* problem = nullptr;
    const bool isWhole =
        g_markup_parse_context_parse(context.get(), xml.data(), static_cast<gssize>(xml.size()), &problem) != FALSE &&
        g_markup_parse_context_end_parse(context.get(), &problem) != FALSE;
    const Owned<GError> owner(problem);
    if (!isWhole) {
        error = problem->message;
        return std::nullopt;
    }
    if (!reader.hasRoot) {
        error = "no configuration of Openbox";
        return std::nullopt;
    }
    return std::move(reader.bindings);
}

}  // namespace orlamo::desktops
