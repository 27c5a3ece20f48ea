#include "platform/atspi/Utf8.h"

#include <array>

namespace orlamo::atspi {
namespace {

struct Sequence {
    std::size_t length;
    char32_t lowest;  // a lower value in so many bytes is an overlong form
    unsigned char leadBits;
};

std::optional<Sequence> sequenceOf(unsigned char lead) {
    if (lead < 0x80) return Sequence{1, 0, 0x7F};
    if (lead >= 0xC2 && lead < 0xE0) return Sequence{2, 0x80, 0x1F};
    if (lead >= 0xE0 && lead < 0xF0) return Sequence{3, 0x800, 0x0F};
    if (lead >= 0xF0 && lead < 0xF5) return Sequence{4, 0x10000, 0x07};
    return std::nullopt;
}

bool isBlank(char32_t character) {
    return character == U' ' || character == 0x00A0 || character == 0x3000 ||
           (character >= 0x2000 && character <= 0x200B);
}

/// Characters that would turn the direction of the text around them, or show nothing at all.
bool isUnfitToShow(char32_t character) {
    return character < 0x20 || (character >= 0x7F && character < 0xA0) || character == 0x061C || character == 0x200E ||
           character == 0x200F || (character >= 0x2028 && character <= 0x202E) ||
           (character >= 0x2060 && character <= 0x206F) || character == 0xFEFF ||
           (character >= 0xFFF9 && character <= 0xFFFB) || (character & 0xFFFE) == 0xFFFE ||
           (character >= 0xE0000 && character <= 0xE0FFF);
}

/// Marks that are drawn over the letter before them, each higher than the last.
bool isStackedMark(char32_t character) {
    return (character >= 0x0300 && character <= 0x036F) || (character >= 0x1AB0 && character <= 0x1AFF) ||
           (character >= 0x1DC0 && character <= 0x1DFF) || (character >= 0x20D0 && character <= 0x20FF) ||
           (character >= 0xFE20 && character <= 0xFE2F);
}

constexpr int mostStackedMarks = 3;  // more than any language puts on one letter

}  // namespace

std::optional<char32_t> takeCharacter(std::string_view& text) {
    if (text.empty()) return std::nullopt;
    const auto sequence = sequenceOf(static_cast<unsigned char>(text[0]));
    if (!sequence || text.size() < sequence->length) return std::nullopt;
    char32_t character = static_cast<unsigned char>(text[0]) & sequence->leadBits;
    for (std::size_t i = 1; i < sequence->length; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xC0) != 0x80) return std::nullopt;
        character = character << 6 | (byte & 0x3F);
    }
    const bool isSurrogate = character >= 0xD800 && character <= 0xDFFF;
    if (character < sequence->lowest || character > 0x10FFFF || isSurrogate) return std::nullopt;
    text.remove_prefix(sequence->length);
    return character;
}

std::optional<char32_t> singleCharacter(std::string_view text) {
    const auto character = takeCharacter(text);
    return text.empty() ? character : std::nullopt;
}

std::string toUtf8(char32_t character) {
    if (character < 0x80) return {static_cast<char>(character)};
    std::string text;
    const auto lead = [&](char32_t bits, int shift) { text += static_cast<char>(bits | character >> shift); };
    const auto follow = [&](int shift) { text += static_cast<char>(0x80 | (character >> shift & 0x3F)); };
    if (character < 0x800) {
        lead(0xC0, 6);
    } else if (character < 0x10000) {
        lead(0xE0, 12);
        follow(6);
    } else {
        lead(0xF0, 18);
        follow(12);
        follow(6);
    }
    follow(0);
    return text;
}

std::string cleanName(std::string_view name, std::size_t limit) {
    std::string clean;
    std::size_t withoutTrailingBlanks = 0;
    int marks = 0;
    while (!name.empty()) {
        const std::string_view before = name;
        const auto character = takeCharacter(name);
        if (!character) {
            name.remove_prefix(1);
            continue;
        }
        if (isUnfitToShow(*character)) continue;
        marks = isStackedMark(*character) ? marks + 1 : 0;
        if (marks > mostStackedMarks) continue;
        if (isBlank(*character) && clean.empty()) continue;
        const std::string_view bytes = before.substr(0, before.size() - name.size());
        if (clean.size() + bytes.size() > limit) break;
        clean += bytes;
        if (!isBlank(*character)) withoutTrailingBlanks = clean.size();
    }
    clean.resize(withoutTrailingBlanks);
    return clean;
}

}  // namespace orlamo::atspi
