#include "core/ShortcutRecords.h"

#include <array>
#include <utility>

#include "platform/PropertyList.h"

namespace orlamo {

namespace {

struct Field {
    std::string_view key;
    std::optional<std::string> MenuItemRecord::*value;
};

constexpr std::array fields{
    Field{"Path", &MenuItemRecord::path},
    Field{"Title", &MenuItemRecord::title},
    Field{"Modifier", &MenuItemRecord::modifier},
    Field{"MenuItemCmdChar", &MenuItemRecord::menuItemCmdChar},
    Field{"MenuItemCmdGlyph", &MenuItemRecord::menuItemCmdGlyph},
};

const std::optional<std::string> absent;

PropertyList printed(const MenuItemRecord& record) {
    PropertyList::Dictionary dictionary;
    for (const auto& [key, value] : fields) {
        if (record.*value) dictionary.emplace(key, *(record.*value));
    }
    return dictionary;
}

PropertyList printed(const std::string& heading) {
    return heading;
}

}  // namespace

const std::optional<std::string>& MenuItemRecord::operator[](std::string_view key) const {
    for (const auto& [name, value] : fields) {
        if (name == key) return this->*value;
    }
    return absent;
}

ShortcutsModel::ShortcutsModel(CGRect rect, std::string title, std::optional<std::string> path, std::string modifier,
                               std::string keyString, std::string menuItemCmdGlyph, std::int64_t keycode,
                               std::int64_t modifierFlags)
    : rect(rect),
      title(std::move(title)),
      path(std::move(path)),
      modifier(std::move(modifier)),
      keyString(std::move(keyString)),
      menuItemCmdGlyph(std::move(menuItemCmdGlyph)),
      keycode(keycode),
      modifierFlags(modifierFlags) {}

CurrentShortcutsModel::CurrentShortcutsModel(CGRect rect, std::string title, std::string modifier,
                                             std::string keyString, std::string menuItemCmdGlyph, std::int64_t keycode,
                                             std::int64_t modifierFlags, AXUIElementRef element)
    : rect(rect),
      title(std::move(title)),
      modifier(std::move(modifier)),
      keyString(std::move(keyString)),
      menuItemCmdGlyph(std::move(menuItemCmdGlyph)),
      keycode(keycode),
      modifierFlags(modifierFlags),
      element(std::move(element)) {}

std::string describe(const std::vector<MenuEntry>& entries) {
    PropertyList::Array list;
    for (const MenuEntry& entry : entries) {
        list.push_back(std::visit([](const auto& value) { return printed(value); }, entry));
    }
    return PropertyList(std::move(list)).description();
}

}  // namespace orlamo
