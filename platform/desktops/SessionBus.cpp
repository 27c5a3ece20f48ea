#include "platform/desktops/SessionBus.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <utility>

#include "platform/Log.h"

namespace orlamo::desktops {

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

// Without this check GLib would start a bus of its own.
bool isThereABus() {
    if (std::getenv("DBUS_SESSION_BUS_ADDRESS") != nullptr) return true;
    const char* const folder = std::getenv("XDG_RUNTIME_DIR");
    std::error_code error;
    return folder != nullptr && std::filesystem::exists(std::filesystem::path(folder) / "bus", error);
}

// Outlives the wait for it when the bus answers too late.
struct Connecting {
    bool isDone = false;
    Owned<GDBusConnection> connection;
    std::string error;
};

void finishConnecting(GObject*, GAsyncResult* result, gpointer data) {
    const std::unique_ptr<std::shared_ptr<Connecting>> holder(static_cast<std::shared_ptr<Connecting>*>(data));
    auto& connecting = **holder;
    GError* error = nullptr;
    connecting.connection.reset(g_bus_get_finish(result, &error));
    if (connecting.connection) g_dbus_connection_set_exit_on_close(connecting.connection.get(), FALSE);
    const Owned<GError> owner(error);
    if (error != nullptr) connecting.error = error->message;
    connecting.isDone = true;
}

// `data` is the call as the log names it.
void logFailure(GObject* connection, GAsyncResult* result, gpointer data) {
    const std::unique_ptr<std::string> call(static_cast<std::string*>(data));
    GError* error = nullptr;
    const Owned<GVariant> answer(g_dbus_connection_call_finish(G_DBUS_CONNECTION(connection), result, &error));
    const Owned<GError> owner(error);
    if (error != nullptr) logLine(*call + ": " + error->message);
}

gboolean setTrue(gpointer flag) {
    *static_cast<bool*>(flag) = true;
    return G_SOURCE_REMOVE;
}

}  // namespace

SessionBus::SessionBus(GMainContext* context, milliseconds budget)
    : context_(context), budget_(budget), deadline_(steady_clock::now() + budget) {}

SessionBus::~SessionBus() = default;

void SessionBus::restartClock() {
    deadline_ = steady_clock::now() + budget_;
    hasFailed_ = false;
    hasRunOut_ = false;
}

milliseconds SessionBus::timeLeft() const {
    return std::max(std::chrono::ceil<milliseconds>(deadline_ - steady_clock::now()), milliseconds(0));
}

bool SessionBus::connect() {
    if (connection_ && !g_dbus_connection_is_closed(connection_.get())) return true;
    connection_.reset();
    if (hasFailed_ || !isThereABus()) return false;

    const ContextScope scope(context_);
    const Owned<GCancellable> cancellable(g_cancellable_new());
    const auto connecting = std::make_shared<Connecting>();
    g_bus_get(G_BUS_TYPE_SESSION, cancellable.get(), finishConnecting, new std::shared_ptr<Connecting>(connecting));
    bool isLate = false;
    const Owned<GSource> timer(g_timeout_source_new(static_cast<guint>(timeLeft().count())));
    g_source_set_callback(timer.get(), setTrue, &isLate, nullptr);
    g_source_attach(timer.get(), context_);
    while (!connecting->isDone && !isLate) g_main_context_iteration(context_, TRUE);
    if (!connecting->isDone) {
        g_cancellable_cancel(cancellable.get());
        connecting->error = "no answer in time";
    }
    connection_ = std::move(connecting->connection);
    hasFailed_ = connection_ == nullptr;
    if (hasFailed_) logLine("The session bus: " + connecting->error);
    return !hasFailed_;
}

Owned<GVariant> SessionBus::call(const std::string& service, const std::string& path, const std::string& interface,
                                 const std::string& method, GVariant* parameters, const char* answerType) {
    const Owned<GVariant> arguments(g_variant_ref_sink(parameters));
    if (!connect()) return nullptr;
    if (timeLeft() == milliseconds(0)) {
        if (!std::exchange(hasRunOut_, true)) logLine(service + " " + method + ": no time left");
        return nullptr;
    }
    GError* error = nullptr;
    Owned<GVariant> answer(g_dbus_connection_call_sync(
        connection_.get(), service.c_str(), path.c_str(), interface.c_str(), method.c_str(), arguments.get(), nullptr,
        G_DBUS_CALL_FLAGS_NO_AUTO_START, static_cast<gint>(timeLeft().count()), nullptr, &error));
    const Owned<GError> owner(error);
    if (!answer) {
        hasRunOut_ = hasRunOut_ || g_error_matches(error, G_IO_ERROR, G_IO_ERROR_TIMED_OUT) != FALSE;
        g_dbus_error_strip_remote_error(error);
        logLine(service + " " + method + ": " + error->message);
        return nullptr;
    }
    if (!g_variant_is_of_type(answer.get(), G_VARIANT_TYPE(answerType))) {
        logLine(service + " " + method + ": an answer of the type " + g_variant_get_type_string(answer.get()));
        return nullptr;
    }
    return answer;
}

bool SessionBus::send(const std::string& service, const std::string& path, const std::string& interface,
                      const std::string& method, GVariant* parameters) {
    const Owned<GVariant> arguments(g_variant_ref_sink(parameters));
    if (!connect()) {
        logLine(service + " " + method + ": no session bus");
        return false;
    }
    g_dbus_connection_call(connection_.get(), service.c_str(), path.c_str(), interface.c_str(), method.c_str(),
                           arguments.get(), nullptr, G_DBUS_CALL_FLAGS_NONE, -1, nullptr, logFailure,
                           new std::string(service + " " + method));
    return true;
}

}  // namespace orlamo::desktops
