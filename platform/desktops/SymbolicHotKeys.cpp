#include "platform/desktops/SymbolicHotKeys.h"

#include <algorithm>

#include "platform/desktops/ActionTables.h"
#include "platform/desktops/Command.h"
#include "platform/desktops/HotKeys.h"
#include "platform/desktops/PlasmaApplets.h"
#include "platform/desktops/XfceBindings.h"

namespace orlamo::desktops {

namespace {

void addSettings(Desktop desktop, SettingsSource& source, HotKeys& hotKeys) {
    for (const auto rows : settingsRows(desktop)) {
        for (const auto& row : rows) {
            // GNOME keeps the bindings that its settings window does not offer in a second key.
            for (const auto& key : {std::string(row.key), std::string(row.key) + "-static"}) {
                const auto texts = source.texts(row.schema, key);
                if (!texts) continue;
                hotKeys.addAction(row.id);
                for (const auto& text : *texts) hotKeys.add(row.id, bindingOfAccelerator(text));
            }
        }
    }
}

void addXfce(SettingsSource& source, HotKeys& hotKeys) {
    const auto properties = source.properties(xfceChannel);
    if (!properties) return;
    const auto windowBindings = xfceBindings(*properties, "/xfwm4");
    for (const auto& row : xfceWindowRows()) {
        hotKeys.addAction(row.id);
        for (const auto& [accelerator, action] : windowBindings) {
            if (action == row.action) hotKeys.add(row.id, bindingOfAccelerator(accelerator));
        }
    }
    std::vector<std::pair<std::string, Command>> commands;  // by accelerator; split once for all rows
    for (const auto& [accelerator, text] : xfceBindings(*properties, "/commands")) {
        commands.emplace_back(accelerator, commandOf(text));
    }
    for (const auto& row : commandRows()) {
        hotKeys.addAction(row.id);
        for (const auto& [accelerator, command] : commands) {
            if (runs(command, row)) hotKeys.add(row.id, bindingOfAccelerator(accelerator));
        }
    }
}

// Plasma 5 names the launcher's action after the number that the applet has in the user's panel; Plasma 6 as here.
void nameLauncher(std::vector<GlobalShortcut>& shortcuts, SettingsSource& source) {
    constexpr std::string_view activate = "activate widget ";
    constexpr std::size_t limit = 1 << 20;
    std::optional<std::vector<std::string>> launchers;
    for (auto& shortcut : shortcuts) {
        if (shortcut.component != "plasmashell" || !shortcut.action.starts_with(activate)) continue;
        if (!launchers) launchers = plasmaLaunchers(source.file(plasmaAppletsFile, limit).value_or(""));
        if (std::ranges::find(*launchers, shortcut.action.substr(activate.size())) != launchers->end())
            shortcut.action = "activate application launcher";
    }
}

void addKde(SettingsSource& source, HotKeys& hotKeys) {
    std::vector<std::string_view> components;
    for (const auto& row : kdeRows()) {
        if (std::ranges::find(components, row.component) == components.end()) components.push_back(row.component);
    }
    auto shortcuts = source.globalShortcuts(components);
    if (!shortcuts) return;
    nameLauncher(*shortcuts, source);
    for (const auto& row : kdeRows()) {
        for (const auto& shortcut : *shortcuts) {
            if (shortcut.component != row.component || shortcut.action != row.action) continue;
            hotKeys.addAction(row.id);
            for (const auto key : shortcut.keys) hotKeys.add(row.id, bindingOfQtKey(key));
        }
    }
}

}  // namespace

PropertyList symbolicHotKeys(Desktop desktop, SettingsSource& source) {
    HotKeys hotKeys;
    if (desktop == Desktop::xfce) {
        addXfce(source, hotKeys);
    } else if (desktop == Desktop::kde) {
        addKde(source, hotKeys);
    } else {
        addSettings(desktop, source, hotKeys);
    }
    return hotKeys.propertyList();
}

}  // namespace orlamo::desktops
