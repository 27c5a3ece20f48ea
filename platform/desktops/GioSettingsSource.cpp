#include "platform/desktops/GioSettingsSource.h"

#include <filesystem>
#include <fstream>

#include "platform/Log.h"
#include "platform/desktops/GioPointers.h"
#include "platform/desktops/KdeService.h"
#include "platform/desktops/SessionBus.h"
#include "platform/desktops/Text.h"

namespace orlamo::desktops {

namespace {

std::string text(GVariant* value) {
    gsize length = 0;
    const char* const bytes = g_variant_get_string(value, &length);
    return std::string(bytes, length);
}

std::optional<std::vector<std::string>> textsOf(GVariant* value) {
    if (g_variant_is_of_type(value, G_VARIANT_TYPE_STRING)) return std::vector{text(value)};
    if (!g_variant_is_of_type(value, G_VARIANT_TYPE_STRING_ARRAY)) return std::nullopt;
    std::vector<std::string> texts;
    for (gsize i = 0; i < g_variant_n_children(value); ++i) {
        texts.push_back(text(Owned<GVariant>(g_variant_get_child_value(value, i)).get()));
    }
    return texts;
}

// From the answer of allShortcutInfos: action, its title, component, its title, context, its title, keys, default keys.
void appendShortcuts(GVariant* answer, const std::string& component, std::vector<GlobalShortcut>& shortcuts) {
    const Owned<GVariant> infos(g_variant_get_child_value(answer, 0));
    for (gsize i = 0; i < g_variant_n_children(infos.get()); ++i) {
        const Owned<GVariant> info(g_variant_get_child_value(infos.get(), i));
        const Owned<GVariant> action(g_variant_get_child_value(info.get(), 0));
        const Owned<GVariant> keys(g_variant_get_child_value(info.get(), 6));
        gsize count = 0;
        const auto* const first =
            static_cast<const gint32*>(g_variant_get_fixed_array(keys.get(), &count, sizeof(gint32)));
        shortcuts.push_back({component, text(action.get()), std::vector<std::int32_t>(first, first + count)});
    }
}

}  // namespace

struct GioSettingsSource::Parts {
    Owned<GMainContext> context{g_main_context_new()};
    SessionBus bus{context.get(), longestWait};
    std::map<std::string, Owned<GSettings>, std::less<>> settings;  // by schema; null for one that is not installed

    GSettings* settingsOf(std::string_view schemaId) {
        if (const auto found = settings.find(schemaId); found != settings.end()) return found->second.get();
        auto& made = settings[std::string(schemaId)];
        // Asking for a schema that is missing would end the program.
        auto* const schemas = g_settings_schema_source_get_default();
        const Owned<GSettingsSchema> schema(
            schemas == nullptr ? nullptr
                               : g_settings_schema_source_lookup(schemas, std::string(schemaId).c_str(), TRUE));
        if (!schema || g_settings_schema_get_path(schema.get()) == nullptr) {
            logLine("The schema " + std::string(schemaId) + " is not installed");
            return nullptr;
        }
        made.reset(g_settings_new_full(schema.get(), nullptr, nullptr));
        return made.get();
    }
};

GioSettingsSource::GioSettingsSource() : parts_(std::make_unique<Parts>()) {}

GioSettingsSource::~GioSettingsSource() = default;

void GioSettingsSource::refresh() {
    auto& parts = *parts_;
    const ContextScope scope(parts.context.get());
    parts.settings.clear();
    while (g_main_context_iteration(parts.context.get(), FALSE)) continue;
    parts.bus.restartClock();
}

std::optional<std::vector<std::string>> GioSettingsSource::texts(std::string_view schema, std::string_view key) {
    auto& parts = *parts_;
    // dconf would connect to the bus by itself and then let the program end with it.
    parts.bus.connect();
    const ContextScope scope(parts.context.get());
    auto* const settings = parts.settingsOf(schema);
    if (settings == nullptr) return std::nullopt;
    GSettingsSchema* definition = nullptr;
    g_object_get(settings, "settings-schema", &definition, nullptr);
    const Owned<GSettingsSchema> owner(definition);
    const std::string name(key);
    if (g_settings_schema_has_key(definition, name.c_str()) == FALSE) return std::nullopt;
    return textsOf(Owned<GVariant>(g_settings_get_value(settings, name.c_str())).get());
}

std::optional<std::map<std::string, std::string>> GioSettingsSource::properties(std::string_view channel) {
    const auto answer = parts_->bus.call("org.xfce.Xfconf", "/org/xfce/Xfconf", "org.xfce.Xfconf", "GetAllProperties",
                                         g_variant_new("(ss)", std::string(channel).c_str(), "/"), "(a{sv})");
    if (!answer) return std::nullopt;
    std::map<std::string, std::string> properties;
    const Owned<GVariant> entries(g_variant_get_child_value(answer.get(), 0));
    for (gsize i = 0; i < g_variant_n_children(entries.get()); ++i) {
        const char* path = nullptr;
        GVariant* value = nullptr;
        g_variant_get_child(entries.get(), i, "{&sv}", &path, &value);
        const Owned<GVariant> owner(value);
        if (g_variant_is_of_type(value, G_VARIANT_TYPE_STRING)) {
            properties[path] = text(value);
        } else if (g_variant_is_of_type(value, G_VARIANT_TYPE_BOOLEAN)) {
            properties[path] = g_variant_get_boolean(value) != FALSE ? "true" : "false";
        }
    }
    return properties;
}

std::optional<std::vector<GlobalShortcut>> GioSettingsSource::globalShortcuts(
    std::span<const std::string_view> components) {
    auto& bus = parts_->bus;
    const auto answer =
        bus.call(kdeService, "/kglobalaccel", "org.kde.KGlobalAccel", "allComponents", g_variant_new("()"), "(ao)");
    if (!answer) return std::nullopt;
    const Owned<GVariant> running(g_variant_get_child_value(answer.get(), 0));
    std::vector<GlobalShortcut> shortcuts;
    for (gsize i = 0; i < g_variant_n_children(running.get()); ++i) {
        const char* path = nullptr;
        g_variant_get_child(running.get(), i, "&o", &path);
        for (const auto component : components) {
            if (path != kdeComponentPath(component)) continue;
            const auto infos = bus.call(kdeService, path, kdeComponentInterface, "allShortcutInfos",
                                        g_variant_new("()"), "(a(ssssssaiai))");
            if (infos) appendShortcuts(infos.get(), std::string(component), shortcuts);
        }
    }
    return shortcuts;
}

std::optional<std::string> GioSettingsSource::file(std::string_view path, std::size_t limit) {
    const std::filesystem::path name(path);
    std::vector<std::filesystem::path> places;
    if (name.is_absolute()) {
        places.push_back(name);
    } else {
        places.push_back(g_get_user_config_dir() / name);
        for (const auto* folder = g_get_system_config_dirs(); *folder != nullptr; ++folder) {
            places.push_back(*folder / name);
        }
    }
    for (const auto& place : places) {
        std::error_code error;
        if (!std::filesystem::is_regular_file(place, error)) continue;  // a pipe would wait for its writer
        std::ifstream stream(place, std::ios::binary);
        if (!stream) continue;
        std::string contents(std::min<std::uintmax_t>(limit, std::filesystem::file_size(place, error)), '\0');
        stream.read(contents.data(), static_cast<std::streamsize>(contents.size()));
        contents.resize(static_cast<std::size_t>(stream.gcount()));
        return contents;
    }
    return std::nullopt;
}

}  // namespace orlamo::desktops
