#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace orlamo::x11 {

/// The virtual key code of a key by its X name, as accelerators are written: "a", "Page_Up", "Print", "KP_Add",
/// and the pseudo key "Above_Tab". No value for a name without such a code (modifiers, media keys, "plus").
std::optional<std::uint16_t> virtualKeyCodeForKeysymName(std::string_view name);

}  // namespace orlamo::x11
