#pragma once

#include <gio/gio.h>

#include <memory>

namespace orlamo::desktops {

/// Owners of GLib's values.
struct GioFree {
    void operator()(GVariant* value) const { g_variant_unref(value); }
    void operator()(GMainContext* value) const { g_main_context_unref(value); }
    void operator()(GSource* value) const {
        g_source_destroy(value);
        g_source_unref(value);
    }
    void operator()(GSettingsSchema* value) const { g_settings_schema_unref(value); }
    void operator()(GSettings* value) const { g_object_unref(value); }
    void operator()(GDBusConnection* value) const { g_object_unref(value); }
    void operator()(GCancellable* value) const { g_object_unref(value); }
    void operator()(GError* value) const { g_error_free(value); }
};

template <class T>
using Owned = std::unique_ptr<T, GioFree>;

/// While it lives, what GLib starts on this thread reports to that context and not to the program's own event loop.
class ContextScope {
public:
    explicit ContextScope(GMainContext* context) : context_(context) { g_main_context_push_thread_default(context); }
    ~ContextScope() { g_main_context_pop_thread_default(context_); }
    ContextScope(const ContextScope&) = delete;
    ContextScope& operator=(const ContextScope&) = delete;

private:
    GMainContext* context_;
};

}  // namespace orlamo::desktops
