#include "platform/desktops/KeyBinding.h"

#include <algorithm>

#include "platform/EventFlags.h"
#include "platform/desktops/KeyTable.h"
#include "platform/desktops/Text.h"

namespace orlamo::desktops {

namespace {

struct AcceleratorModifier {
    std::string_view name;
    std::uint64_t flag;
};
constexpr AcceleratorModifier acceleratorModifiers[] = {
    {"Shift", EventFlags::shift},  {"Primary", EventFlags::command}, {"Control", EventFlags::command},
    {"Ctrl", EventFlags::command}, {"Ctl", EventFlags::command},     {"Alt", EventFlags::option},
    {"Mod1", EventFlags::option},  {"Super", EventFlags::control},   {"Mod4", EventFlags::control},
    {"Meta", EventFlags::control},
};

// Meta stands on the Alt keys and Hyper on the Super keys.
constexpr AcceleratorModifier openboxModifiers[] = {
    {"C", EventFlags::command},   {"Control", EventFlags::command}, {"A", EventFlags::option},
    {"Alt", EventFlags::option},  {"Mod1", EventFlags::option},     {"M", EventFlags::option},
    {"Meta", EventFlags::option}, {"S", EventFlags::shift},         {"Shift", EventFlags::shift},
    {"W", EventFlags::control},   {"Super", EventFlags::control},   {"Mod4", EventFlags::control},
    {"H", EventFlags::control},   {"Hyper", EventFlags::control},
};

struct QtModifier {
    std::uint32_t bit;
    std::uint64_t flag;
};
constexpr QtModifier qtModifiers[] = {
    {0x02000000, EventFlags::shift},
    {0x04000000, EventFlags::command},
    {0x08000000, EventFlags::option},
    {0x10000000, EventFlags::control},
};

KeyBinding bindingOf(const Key* key, std::uint64_t mask) {
    if (key == nullptr) return {.isSet = true, .combination = {}};
    return {.isSet = true, .combination = KeyCombination{key->character, key->code, static_cast<std::int64_t>(mask)}};
}

const Key* keyOfQt(std::uint32_t key) {
    if (key == 0) return nullptr;
    const auto found = std::ranges::find(keyTable(), key, &Key::qtKey);
    return found == keyTable().end() ? nullptr : &*found;
}

}  // namespace

KeyBinding bindingOfAccelerator(std::string_view accelerator) {
    if (accelerator.empty() || equalIgnoringCase(accelerator, "disabled")) return {};
    std::uint64_t mask = 0;
    while (accelerator.starts_with('<')) {
        const auto end = accelerator.find('>');
        if (end == std::string_view::npos) return bindingOf(nullptr, 0);
        const auto name = accelerator.substr(1, end - 1);
        const auto* const modifier = std::ranges::find_if(
            acceleratorModifiers, [name](const auto& each) { return equalIgnoringCase(each.name, name); });
        if (modifier == std::end(acceleratorModifiers)) return bindingOf(nullptr, 0);
        mask |= modifier->flag;
        accelerator.remove_prefix(end + 1);
    }
    const auto key = std::ranges::find_if(
        keyTable(), [accelerator](const Key& each) { return equalIgnoringCase(each.name, accelerator); });
    return bindingOf(key == keyTable().end() ? nullptr : &*key, mask);
}

KeyBinding bindingOfOpenboxKey(std::string_view key) {
    std::uint64_t mask = 0;
    for (auto end = key.find('-'); end != std::string_view::npos; end = key.find('-')) {
        const auto name = key.substr(0, end);
        const auto* const modifier = std::ranges::find_if(
            openboxModifiers, [name](const auto& each) { return equalIgnoringCase(each.name, name); });
        if (modifier == std::end(openboxModifiers)) return bindingOf(nullptr, 0);
        mask |= modifier->flag;
        key.remove_prefix(end + 1);
    }
    const auto found = std::ranges::find_if(keyTable(), [key](const Key& each) {
        return each.name == key || (key.size() == 1 && equalIgnoringCase(each.name, key));
    });
    const bool isKeyOfX = found != keyTable().end() && found->name != "Above_Tab";
    return bindingOf(isKeyOfX ? &*found : nullptr, mask);
}

KeyBinding bindingOfQtKey(std::int32_t key) {
    if (key == 0) return {};
    auto rest = static_cast<std::uint32_t>(key);
    std::uint64_t mask = 0;
    for (const auto& modifier : qtModifiers) {
        if ((rest & modifier.bit) == 0) continue;
        rest &= ~modifier.bit;
        mask |= modifier.flag;
    }
    const auto* const found = keyOfQt(rest);
    return bindingOf(found != nullptr ? found : keyOfQt(rest & ~keypadBit), mask);
}

}  // namespace orlamo::desktops
