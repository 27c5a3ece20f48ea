#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

// The constant tables behind KeyManager. Codes are virtual key codes.
namespace orlamo::keytables {

struct KeyRow {
    std::string_view text;
    std::int64_t code;
};

/// In byte order of the text.
extern const std::span<const KeyRow> codesByText;

inline constexpr std::int64_t firstCode = -1;
inline constexpr std::int64_t lastCode = 126;
inline constexpr std::size_t codeCount = lastCode - firstCode + 1;
/// Indexed by code - firstCode; "??" where a code has no name.
extern const std::array<std::string_view, codeCount> textsByCode;

/// Indexed by 1 for control, 2 for option, 4 for shift, 8 for command, added up.
extern const std::array<std::string_view, 16> modifierSymbols;

struct GlyphRow {
    std::int64_t glyph;  // a menu item's AXMenuItemCmdGlyph
    std::string_view symbol;
};
extern const std::span<const GlyphRow> glyphSymbols;

}  // namespace orlamo::keytables
