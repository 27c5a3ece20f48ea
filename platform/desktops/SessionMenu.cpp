#include "platform/desktops/SessionMenu.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

#include "platform/EventFlags.h"
#include "platform/desktops/Command.h"
#include "platform/desktops/XfceBindings.h"

namespace orlamo::desktops {

namespace {

// A menu says Shift, Option and Control with Command or Control alone; it cannot say Option without Command.
bool canBeShown(const KeyCombination& key, SessionRole role) {
    constexpr std::int64_t lastOfMainBlock = 53;
    constexpr std::int64_t returnKey = 36;
    const auto mask = static_cast<std::uint64_t>(key.mask);
    const bool hasCommand = (mask & EventFlags::command) != 0;
    const bool isControlAlone = (mask & EventFlags::control) != 0 && (mask & EventFlags::option) == 0;
    if (!hasCommand && !isControlAlone) return false;
    return role != SessionRole::further || key.keyCode <= lastOfMainBlock || key.keyCode == returnKey;
}

struct Bound {
    KeyCombination key;
    std::string command;  // what the key runs, where that is a command
};

/// What one desktop's settings hold now.
class Bindings {
public:
    Bindings(Desktop desktop, std::span<const SessionRow> rows, SettingsSource& source)
        : desktop_(desktop), source_(source) {
        if (desktop == Desktop::xfce) {
            xfce_ = source.properties(xfceChannel);
        } else if (desktop == Desktop::kde) {
            std::vector<std::string_view> components;
            for (const auto& row : rows) {
                if (std::ranges::find(components, row.place) == components.end()) components.push_back(row.place);
            }
            kde_ = source.globalShortcuts(components);
        }
    }

    /// Whether somebody could be asked.
    bool isAnswered() const { return isAnswered_ || xfce_ || kde_; }

    /// The first binding that can be shown.
    std::optional<Bound> of(const SessionRow& row) {
        if (desktop_ == Desktop::xfce) return ofXfce(row);
        if (desktop_ == Desktop::kde) return ofKde(row);
        return ofSettings(row);
    }

private:
    static std::optional<Bound> shown(const KeyBinding& binding, const SessionRow& row, std::string command = {}) {
        if (!binding.combination || !canBeShown(*binding.combination, row.role)) return std::nullopt;
        return Bound{*binding.combination, std::move(command)};
    }

    std::optional<Bound> ofSettings(const SessionRow& row) {
        for (const auto& key : {std::string(row.name), std::string(row.name) + "-static"}) {
            const auto texts = source_.texts(row.place, key);
            if (!texts) continue;
            isAnswered_ = true;
            for (const auto& text : *texts) {
                if (auto bound = shown(bindingOfAccelerator(text), row)) return bound;
            }
        }
        return std::nullopt;
    }

    std::optional<Bound> ofXfce(const SessionRow& row) {
        if (!xfce_) return std::nullopt;
        const bool isCommand = row.place == "/commands";
        const auto wanted = argumentsOf(row.name);
        for (const auto& [accelerator, action] : xfceBindings(*xfce_, std::string(row.place))) {
            if (isCommand ? argumentsOf(action) != wanted : action != row.name) continue;
            if (auto bound = shown(bindingOfAccelerator(accelerator), row, action)) return bound;
        }
        return std::nullopt;
    }

    std::optional<Bound> ofKde(const SessionRow& row) {
        if (!kde_) return std::nullopt;
        for (const auto& shortcut : *kde_) {
            if (shortcut.component != row.place || shortcut.action != row.name) continue;
            for (const auto key : shortcut.keys) {
                if (auto bound = shown(bindingOfQtKey(key), row)) return bound;
            }
        }
        return std::nullopt;
    }

    Desktop desktop_;
    SettingsSource& source_;
    bool isAnswered_ = false;
    std::optional<std::map<std::string, std::string>> xfce_;
    std::optional<std::vector<GlobalShortcut>> kde_;
};

SessionDeed deedOf(const SessionRow& row, std::string command) {
    return std::visit(
        [&command](const auto& performer) -> SessionDeed {
            if constexpr (std::is_same_v<std::decay_t<decltype(performer)>, BoundCommand>) {
                return CommandLine{std::move(command), performer.service};
            } else {
                return performer;
            }
        },
        row.performer);
}

struct Role {
    SessionRole role;
    std::size_t wanted;  // commands of different titles
};
constexpr Role roles[] = {{SessionRole::lock, 1}, {SessionRole::logOut, 1}, {SessionRole::further, 2}};

/// What has a key, whether somebody performs it or not.
std::vector<SessionCommand> boundCommands(SessionRole role, std::span<const SessionRow> rows, Bindings& bindings) {
    std::vector<SessionCommand> commands;
    for (const auto& row : rows) {
        if (row.role != role) continue;
        auto bound = bindings.of(row);
        if (bound) commands.push_back({row.title, bound->key, deedOf(row, std::move(bound->command))});
    }
    return commands;
}

/// The first of each title, at most `wanted`. Rows of one title stand together.
template <class Counts>
std::vector<SessionCommand> firstOfEachTitle(const std::vector<SessionCommand>& commands, std::size_t wanted,
                                             const Counts& counts) {
    std::vector<SessionCommand> found;
    for (const auto& command : commands) {
        if (found.size() == wanted) break;
        if ((found.empty() || found.back().title != command.title) && counts(command)) found.push_back(command);
    }
    return found;
}

}  // namespace

SessionMenu readSessionMenu(std::optional<Desktop> desktop, SettingsSource& source, SessionServices& services) {
    if (!desktop || sessionRows(*desktop).empty()) return {};
    const auto rows = sessionRows(*desktop);
    source.refresh();
    Bindings bindings(*desktop, rows, source);
    std::vector<SessionCommand> bound[std::size(roles)];
    bool isBound = true;
    for (std::size_t i = 0; i < std::size(roles); ++i) {
        bound[i] = boundCommands(roles[i].role, rows, bindings);
        const auto titles = firstOfEachTitle(bound[i], roles[i].wanted, [](const auto&) { return true; });
        isBound = isBound && titles.size() == roles[i].wanted;
    }
    if (!bindings.isAnswered()) return {SessionMenuState::noService, {}};
    if (!isBound) return {SessionMenuState::notBound, {}};

    services.refresh();  // its time begins when it is asked
    SessionMenu menu{SessionMenuState::present, {}};
    for (std::size_t i = 0; i < std::size(roles); ++i) {
        auto found = firstOfEachTitle(bound[i], roles[i].wanted,
                                      [&services](const auto& command) { return services.isThere(command.deed); });
        if (found.size() < roles[i].wanted) return {SessionMenuState::noService, {}};
        std::ranges::move(found, std::back_inserter(menu.commands));
    }
    return menu;
}

}  // namespace orlamo::desktops
