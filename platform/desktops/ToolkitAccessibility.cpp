#include "platform/desktops/ToolkitAccessibility.h"

#include "platform/desktops/GioPointers.h"
#include "platform/desktops/SessionBus.h"

namespace orlamo::desktops {

namespace {

constexpr auto schemaName = "org.gnome.desktop.interface";
constexpr auto key = "toolkit-accessibility";

}  // namespace

bool switchOnToolkitAccessibility() {
    auto* const schemas = g_settings_schema_source_get_default();
    if (schemas == nullptr) return false;
    const Owned<GSettingsSchema> schema(g_settings_schema_source_lookup(schemas, schemaName, TRUE));
    if (!schema || g_settings_schema_has_key(schema.get(), key) == FALSE) return false;

    // The settings are written over the connection that this one shares, and after this call; if they opened it
    // themselves, the end of the bus would end the program.
    static const Owned<GMainContext> context(g_main_context_new());
    static SessionBus bus(context.get(), std::chrono::milliseconds(150));
    bus.restartClock();
    bus.connect();
    const ContextScope scope(context.get());
    const Owned<GSettings> settings(g_settings_new_full(schema.get(), nullptr, nullptr));
    return g_settings_set_boolean(settings.get(), key, TRUE) != FALSE;
}

}  // namespace orlamo::desktops
