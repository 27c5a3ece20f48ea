#pragma once

#include <string>
#include <string_view>

namespace orlamo::x11 {

/// What a PC keyboard prints for a modifier text; no wider than 50 points at 14. Other texts as they are. `ctrl` is the
/// name of the Ctrl key: "Ctrl", or as short a word of the user's language ("Strg").
std::string modifierLegendOf(std::string_view modifierText, std::string_view ctrl);
/// What it prints for a key text; no wider than 25 points at 14. Other texts as they are.
std::string_view keyLegendOf(std::string_view keyText);

}  // namespace orlamo::x11
