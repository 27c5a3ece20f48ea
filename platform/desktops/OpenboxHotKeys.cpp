#include "platform/desktops/OpenboxHotKeys.h"

#include <utility>

#include "platform/Log.h"
#include "platform/desktops/ActionTables.h"
#include "platform/desktops/Command.h"
#include "platform/desktops/HotKeys.h"
#include "platform/desktops/OpenboxConfiguration.h"
#include "platform/desktops/Text.h"

namespace orlamo::desktops {

namespace {

constexpr std::string_view usualConfiguration = "openbox/rc.xml";

struct BoundAction {
    KeyBinding key;
    const OpenboxAction* action;  // null when the key does several, or begins a chain
};

// Keys as Openbox takes them: bound again, a key does the further actions too; as the beginning of a chain it keeps
// what it was bound to first.
std::vector<BoundAction> boundActions(const std::vector<OpenboxBinding>& bindings) {
    struct Bound {
        std::size_t index;
        bool beginsChain;
    };
    std::map<std::pair<std::int64_t, std::int64_t>, Bound> taken;  // by key code and mask
    std::vector<BoundAction> bound;
    for (const auto& [keys, actions] : bindings) {
        for (const auto& key : keys) {
            const auto binding = bindingOfOpenboxKey(key);
            const BoundAction made{binding, actions.size() == 1 ? &actions.front() : nullptr};
            if (binding.combination) {
                const std::pair place(binding.combination->keyCode, binding.combination->mask);
                const auto [found, isNew] = taken.try_emplace(place, Bound{bound.size(), actions.empty()});
                if (!isNew) {
                    if (!actions.empty() && !found->second.beginsChain) bound[found->second.index].action = nullptr;
                    continue;
                }
            }
            bound.push_back(made);
        }
    }
    return bound;
}

std::string_view option(const OpenboxAction& action, std::string_view name) {
    const auto found = action.options.find(name);
    return found == action.options.end() ? std::string_view() : found->second;
}

bool does(const OpenboxAction& action, const OpenboxRow& row) {
    return equalIgnoringCase(action.name, row.action) &&
           (row.option.empty() || equalIgnoringCase(option(action, row.option), row.value));
}

Command executedCommand(const OpenboxAction& action) {
    if (!equalIgnoringCase(action.name, "Execute")) return {};
    const auto command = option(action, "command");
    return commandOf(command.empty() ? option(action, "execute") : command);
}

using Row = std::pair<std::size_t, int>;  // its place in both tables, one after the other, and its ID

std::vector<Row> rowsOf(const OpenboxAction& action) {
    std::vector<Row> found;
    std::size_t place = 0;
    for (const auto& row : openboxRows()) {
        if (does(action, row)) found.emplace_back(place, row.id);
        ++place;
    }
    const auto command = executedCommand(action);
    for (const auto& row : commandRows()) {
        if (runs(command, row)) found.emplace_back(place, row.id);
        ++place;
    }
    return found;
}

}  // namespace

PropertyList openboxHotKeys(const std::string& configuration, SettingsSource& source) {
    // A file that is not there, or is named from a folder that only Openbox knows, is passed over by Openbox too.
    const auto named =
        configuration.starts_with('/') ? source.file(configuration, maximumConfigurationSize + 1) : std::nullopt;
    const auto xml = named ? named : source.file(usualConfiguration, maximumConfigurationSize + 1);
    std::string error = "there is none";
    const auto bindings = xml ? openboxBindings(*xml, error) : std::nullopt;
    if (!bindings) {
        logLine("The configuration of Openbox " + (named ? configuration : std::string(usualConfiguration)) + ": " +
                error);
        return {};
    }

    HotKeys hotKeys;
    for (const auto& row : openboxRows()) hotKeys.addAction(row.id);
    std::map<Row, std::vector<KeyBinding>> keysOfRows;
    const OpenboxAction* last = nullptr;
    std::vector<Row> rows;
    for (const auto& [key, action] : boundActions(*bindings)) {
        if (action == nullptr) continue;
        if (action != last) rows = rowsOf(*action);  // once for all its keys, however long its command
        last = action;
        for (const auto& row : rows) keysOfRows[row].push_back(key);
    }
    for (const auto& [row, keys] : keysOfRows) {
        for (const auto& key : keys) hotKeys.add(row.second, key);
    }
    return hotKeys.propertyList();
}

}  // namespace orlamo::desktops
