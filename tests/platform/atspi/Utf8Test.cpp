#include "platform/atspi/Utf8.h"

#include <gtest/gtest.h>

using namespace std::literals;

namespace orlamo::atspi {
namespace {

TEST(CleanName, KeepsWhatCanBeShown) {
    const std::pair<std::string_view, std::string_view> rows[] = {
        {"New      ", "New"},
        {"\u00A0 Öffnen …\u3000", "Öffnen …"},
        {"a\nb\tc\x7F", "abc"},
        {"a\0b"sv, "ab"},
        {"\u202Egpj.exe\u2066", "gpj.exe"},
        {"a\xFF\xC3(\xED\xA0\x80\xC0\xAF z", "a( z"},
        {"日本語 😀", "日本語 😀"},
        {" \t ", ""},
        {"a\u2060b\U000E0041\uFFF9c", "abc"},
        {"Ệ E\u0302\u0323 Z\u0300\u0301\u0302\u0303\u0304\u20DDy", "Ệ E\u0302\u0323 Z\u0300\u0301\u0302y"},
    };
    for (const auto& [name, clean] : rows) EXPECT_EQ(cleanName(name), clean);
}

TEST(CleanName, IsCutBetweenTwoCharacters) {
    EXPECT_EQ(cleanName("aéé", 4), "aé");
    EXPECT_EQ(cleanName("ab  cd", 4), "ab");
}

}  // namespace
}  // namespace orlamo::atspi
