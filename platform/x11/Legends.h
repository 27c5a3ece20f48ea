#pragma once

#include <string_view>

namespace orlamo::x11 {

/// What a PC keyboard prints for a modifier text; no wider than 50 points at 14. Other texts as they are.
std::string_view modifierLegendOf(std::string_view modifierText);
/// What it prints for a key text; no wider than 25 points at 14. Other texts as they are.
std::string_view keyLegendOf(std::string_view keyText);

}  // namespace orlamo::x11
