#include "platform/desktops/SymbolicHotKeys.h"

#include <algorithm>

#include "platform/desktops/ActionTables.h"
#include "platform/desktops/KeyBinding.h"
#include "platform/desktops/KeyTable.h"
#include "platform/desktops/Text.h"

namespace orlamo::desktops {

namespace {

constexpr std::string_view xfceChannel = "xfce4-keyboard-shortcuts";

// Collects the bindings of each hot key; the first one that can be written as a key with modifiers counts.
class HotKeys {
public:
    void addAction(int id) { bindings_.try_emplace(id); }

    void add(int id, const KeyBinding& binding) {
        auto& found = bindings_[id];
        if (found.combination) return;
        found.isSet = found.isSet || binding.isSet;
        found.combination = binding.combination;
    }

    PropertyList propertyList() const {
        PropertyList::Dictionary entries;
        for (const auto& [id, binding] : bindings_) {
            if (binding.isSet && !binding.combination) continue;
            constexpr KeyCombination noKey{noCharacter, noCharacter, 0};
            const auto [character, keyCode, mask] = binding.combination.value_or(noKey);
            entries[std::to_string(id)] = PropertyList::Dictionary{
                {"enabled", binding.isSet},
                {"value", PropertyList::Dictionary{{"parameters", PropertyList::Array{character, keyCode, mask}}}},
            };
        }
        if (entries.empty()) return {};
        return entries;
    }

private:
    std::map<int, KeyBinding> bindings_;
};

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

struct Command {
    std::string_view program;
    std::string options;
};

// "/usr/bin/xfce4-screenshooter -r --clipboard" is the program and the letters "rc".
Command commandOf(std::string_view text) {
    static constexpr std::pair<std::string_view, char> longOptions[] = {
        {"--fullscreen", 'f'}, {"--window", 'w'}, {"--region", 'r'}, {"--clipboard", 'c'}, {"--collapsed", 'c'}};
    Command command;
    for (const auto word : split(text, ' ')) {
        if (command.program.empty()) {
            command.program = word.substr(word.rfind('/') + 1);
        } else if (word.starts_with("--")) {
            const auto* const found = std::ranges::find(longOptions, word, &std::pair<std::string_view, char>::first);
            if (found != std::end(longOptions)) command.options += found->second;
        } else if (word.starts_with('-')) {
            command.options += word.substr(1);
        }
    }
    return command;
}

bool runs(const Command& command, const XfceCommandRow& row) {
    const auto given = [&command](char option) { return command.options.find(option) != std::string::npos; };
    return command.program == row.program && std::ranges::all_of(row.options, given) &&
           std::ranges::none_of(row.unwanted, given);
}

// The bindings below "/commands" or "/xfwm4": accelerator to action.
std::map<std::string, std::string> xfceBindings(const std::map<std::string, std::string>& properties,
                                                const std::string& root) {
    const auto override = properties.find(root + "/custom/override");
    const bool isCustom = override != properties.end() && override->second == "true";
    const std::string folder = root + (isCustom ? "/custom/" : "/default/");
    std::map<std::string, std::string> bindings;
    for (const auto& [path, action] : properties) {
        // What has a further slash belongs to a binding, as "startup-notify" does.
        if (path.starts_with(folder) && path.find('/', folder.size()) == std::string::npos)
            bindings[path.substr(folder.size())] = action;
    }
    return bindings;
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
    const auto commandBindings = xfceBindings(*properties, "/commands");
    for (const auto& row : xfceCommandRows()) {
        hotKeys.addAction(row.id);
        for (const auto& [accelerator, text] : commandBindings) {
            if (runs(commandOf(text), row)) hotKeys.add(row.id, bindingOfAccelerator(accelerator));
        }
    }
}

void addKde(SettingsSource& source, HotKeys& hotKeys) {
    std::vector<std::string_view> components;
    for (const auto& row : kdeRows()) {
        if (std::ranges::find(components, row.component) == components.end()) components.push_back(row.component);
    }
    const auto shortcuts = source.globalShortcuts(components);
    if (!shortcuts) return;
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
