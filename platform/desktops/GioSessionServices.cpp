#include "platform/desktops/GioSessionServices.h"

#include <map>
#include <optional>
#include <set>
#include <utility>
#include <vector>

#include "platform/Log.h"
#include "platform/desktops/Command.h"
#include "platform/desktops/GioPointers.h"
#include "platform/desktops/KdeService.h"
#include "platform/desktops/SessionBus.h"

namespace orlamo::desktops {

namespace {

using Names = std::set<std::string, std::less<>>;

constexpr auto bus = "org.freedesktop.DBus";
constexpr auto busPath = "/org/freedesktop/DBus";

std::string homeAddress() {
    GError* error = nullptr;
    char* const address = g_filename_to_uri(g_get_home_dir(), nullptr, &error);
    const Owned<GError> owner(error);
    if (address == nullptr) return "''";
    const Owned<GVariant> text(g_variant_ref_sink(g_variant_new_take_string(address)));
    char* const printed = g_variant_print(text.get(), FALSE);
    std::string quoted(printed);
    g_free(printed);
    return quoted;
}

/// Floating.
GVariant* tupleFor(const BusMethod& method) {
    std::string text(method.arguments);
    constexpr std::string_view home = "%h";
    if (const auto at = text.find(home); at != std::string::npos) text.replace(at, home.size(), homeAddress());
    GVariant* const arguments = g_variant_parse(nullptr, text.c_str(), nullptr, nullptr, nullptr);
    return arguments != nullptr ? arguments : g_variant_new("()");
}

bool runCommand(const std::string& text) {
    int count = 0;
    char** words = nullptr;
    GError* error = nullptr;
    const bool isRun = g_shell_parse_argv(text.c_str(), &count, &words, &error) != FALSE &&
                       g_spawn_async(g_get_home_dir(), words, nullptr,
                                     static_cast<GSpawnFlags>(G_SPAWN_SEARCH_PATH | G_SPAWN_STDOUT_TO_DEV_NULL |
                                                              G_SPAWN_STDERR_TO_DEV_NULL),
                                     nullptr, nullptr, nullptr, &error) != FALSE;
    g_strfreev(words);
    const Owned<GError> owner(error);
    if (!isRun) logLine("The command " + text + ": " + error->message);
    return isRun;
}

bool isProgramThere(const std::string& text) {
    int count = 0;
    char** words = nullptr;
    if (g_shell_parse_argv(text.c_str(), &count, &words, nullptr) == FALSE) return false;
    char* const path = g_find_program_in_path(words[0]);
    g_strfreev(words);
    g_free(path);
    return path != nullptr;
}

}  // namespace

struct GioSessionServices::Parts {
    explicit Parts(WindowRequests requests) : windowManager(std::move(requests)) {}

    WindowRequests windowManager;
    Owned<GMainContext> context{g_main_context_new()};
    SessionBus bus{context.get(), longestWait};
    std::optional<Names> running;  // names on the bus, asked for once
    std::optional<Names> startable;
    std::map<std::string, bool, std::less<>> activeComponents;  // of KDE

    const Names& names(std::optional<Names>& kept, const char* method) {
        if (kept) return *kept;
        kept.emplace();
        const auto answer = bus.call(desktops::bus, busPath, desktops::bus, method, g_variant_new("()"), "(as)");
        if (!answer) return *kept;
        GVariantIter* names = nullptr;
        g_variant_get(answer.get(), "(as)", &names);
        for (const char* name = nullptr; g_variant_iter_next(names, "&s", &name) != FALSE;) kept->emplace(name);
        g_variant_iter_free(names);
        return *kept;
    }

    bool runs(std::string_view service) { return names(running, "ListNames").contains(service); }

    bool isThere(const BusMethod& method) {
        if (runs(method.service)) return true;
        return method.mayStartService && names(startable, "ListActivatableNames").contains(method.service);
    }

    bool isThere(WindowRequest request) { return windowManager.canDo(request); }

    // The service keeps the actions of programs that have ended, which then do nothing.
    bool isThere(const KdeAction& action) {
        const auto [found, isNew] = activeComponents.try_emplace(std::string(action.component), false);
        if (!isNew || !runs(kdeService)) return found->second;
        const auto answer = bus.call(kdeService, kdeComponentPath(action.component), kdeComponentInterface, "isActive",
                                     g_variant_new("()"), "(b)");
        gboolean isActive = FALSE;
        if (answer) g_variant_get(answer.get(), "(b)", &isActive);
        return found->second = isActive != FALSE;
    }

    bool isThere(const CommandLine& command) {
        return (command.service.empty() || runs(command.service)) && isProgramThere(command.text);
    }

    bool perform(const BusMethod& method) {
        return bus.send(std::string(method.service), std::string(method.path), std::string(method.interface),
                        std::string(method.method), tupleFor(method));
    }

    bool perform(WindowRequest request) {
        const bool isAsked = windowManager.ask(request);
        if (!isAsked) logLine("No window manager that could be asked");
        return isAsked;
    }

    bool perform(const KdeAction& action) {
        return bus.send(kdeService, kdeComponentPath(action.component), kdeComponentInterface, "invokeShortcut",
                        g_variant_new("(s)", std::string(action.action).c_str()));
    }

    bool perform(const CommandLine& command) { return runCommand(command.text); }
};

GioSessionServices::GioSessionServices(WindowRequests windowManager)
    : parts_(std::make_unique<Parts>(std::move(windowManager))) {}

GioSessionServices::~GioSessionServices() = default;

void GioSessionServices::refresh() {
    parts_->bus.restartClock();
    parts_->running.reset();
    parts_->startable.reset();
    parts_->activeComponents.clear();
}

bool GioSessionServices::isThere(const SessionDeed& deed) {
    return std::visit([this](const auto& each) { return parts_->isThere(each); }, deed);
}

bool GioSessionServices::perform(const SessionDeed& deed) {
    parts_->bus.restartClock();
    return std::visit([this](const auto& each) { return parts_->perform(each); }, deed);
}

}  // namespace orlamo::desktops
