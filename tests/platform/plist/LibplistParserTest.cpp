#include "platform/plist/LibplistParser.h"

#include <gtest/gtest.h>

namespace orlamo::plist {
namespace {

using Bytes = std::vector<std::uint8_t>;
using Dictionary = PropertyList::Dictionary;
using Array = PropertyList::Array;

PropertyListParser::Result parse(const Bytes& data) {
    return LibplistParser().propertyListWithData(data);
}

PropertyListParser::Result parse(std::string_view text) {
    return parse(Bytes(text.begin(), text.end()));
}

std::string repeated(std::string_view text, int times) {
    std::string all;
    while (times-- > 0) all += text;
    return all;
}

std::string xml(const std::string& root) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">" + root + "</plist>\n";
}

// A binary property list of these objects, the first one on top, with one-byte offsets and references.
Bytes binary(const std::vector<Bytes>& objects) {
    Bytes data{'b', 'p', 'l', 'i', 's', 't', '0', '0'};
    Bytes offsets;
    for (const auto& object : objects) {
        offsets.push_back(static_cast<std::uint8_t>(data.size()));
        data.insert(data.end(), object.begin(), object.end());
    }
    const auto table = static_cast<std::uint8_t>(data.size());
    data.insert(data.end(), offsets.begin(), offsets.end());
    Bytes trailer(32, 0);
    trailer[6] = trailer[7] = 1;
    trailer[15] = static_cast<std::uint8_t>(objects.size());
    trailer[31] = table;
    data.insert(data.end(), trailer.begin(), trailer.end());
    return data;
}

// Arrays inside each other; each refers to the next one `uses` times, the last one to a number.
Bytes nested(int levels, int uses) {
    std::vector<Bytes> objects;
    for (int i = 1; i <= levels; ++i) {
        Bytes object(static_cast<std::size_t>(uses) + 1, static_cast<std::uint8_t>(i));
        object[0] = static_cast<std::uint8_t>(0xA0 | uses);
        objects.push_back(object);
    }
    objects.push_back({0x10, 7});
    return binary(objects);
}

TEST(LibplistParser, ReadsEveryTypeOfXml) {
    const auto result = parse(xml(
        "<!-- <dict> --><dict><key>a&amp;b</key><string>\xE2\x8C\x98 "
        "&lt;x&gt;</string><key>n</key><integer>-3</integer>"
        "<key>r</key><real>1.5</real><key>t</key><true/><key>f</key><false/><key>d</key><data>AQID</data>"
        "<key>when</key><date>2001-01-01T00:01:00Z</date><key>list</key><array><integer>65535</integer><array/></array>"
        "<key>none</key><dict/><key>blank</key><string></string></dict>"));
    EXPECT_EQ(result.error, "");
    EXPECT_EQ(result.value, PropertyList(Dictionary{{"a&b", std::string("\xE2\x8C\x98 <x>")},
                                                    {"n", std::int64_t{-3}},
                                                    {"r", 1.5},
                                                    {"t", true},
                                                    {"f", false},
                                                    {"d", PropertyList::Data{1, 2, 3}},
                                                    {"when", 60.0},
                                                    {"list", Array{std::int64_t{65535}, Array{}}},
                                                    {"none", Dictionary{}},
                                                    {"blank", std::string()}}));
}

TEST(LibplistParser, ReadsBinaryWithSharedObjects) {
    const auto result = parse(
        binary({{0xD2, 1, 2, 3, 3}, {0x51, 'a'}, {0x61, 0x23, 0x18}, {0xA3, 4, 5, 5}, {0x09}, {0x11, 0xFF, 0xFF}}));
    const Array shared{true, std::int64_t{65535}, std::int64_t{65535}};
    EXPECT_EQ(result.error, "");
    EXPECT_EQ(result.value, PropertyList(Dictionary{{"a", shared}, {"\xE2\x8C\x98", shared}}));
    EXPECT_EQ(parse(binary({{0x10, 5}})).value, PropertyList(std::int64_t{5})) << "no dictionary";
}

TEST(LibplistParser, ReadsEveryOtherTypeOfBinaryAndNothingThatIsCutOff) {
    const Bytes whole = binary({{0xA5, 1, 2, 3, 4, 5},
                                {0x44, 1, 2, 3, 4},
                                {0x23, 0x3F, 0xF8, 0, 0, 0, 0, 0, 0},
                                {0x33, 0x40, 0x4E, 0, 0, 0, 0, 0, 0},
                                {0x80, 5},
                                {0x08}});
    EXPECT_EQ(parse(whole).value,
              PropertyList(Array{PropertyList::Data{1, 2, 3, 4}, 1.5, 60.0, std::int64_t{5}, false}));
    for (auto part = whole; !part.empty();) {
        part.pop_back();
        EXPECT_NE(parse(part).error, "") << part.size();
    }
}

TEST(LibplistParser, SaysWhyItRefusesText) {
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"", "it is empty"},
        {" \n", "it is empty"},
        {"{ \"a\": 1 }", "neither XML nor binary"},
        {"\1\2\3", "neither XML nor binary"},
        {xml(std::string("<string>a\0b</string>", 20)), "a text holds a NUL"},
        {xml("<dict><key>&#x0;</key><true/></dict>"), "a text holds a NUL"},
        {"<?xml version=\"1.0\"?>", "neither XML nor binary"},
        {"<plist><dict><key>a</key><true/>", "the text ends inside <dict>"},
        {"<plist><dict", "the text ends inside a tag"},
        {"<plist><!-- no end </plist>", "the text ends before -->"},
        {"<plist><array></dict></plist>", "</dict> closes nothing"},
        {"<!DOCTYPE p [<!ENTITY a \"b\">]><plist><true/></plist>", "it declares entities"},
        {xml("<html>hello</html>"), "its XML is no property list"},
        {xml(repeated("<array>", 64) + repeated("</array>", 64)), "more than 64 levels"},
        {repeated("<array>", 100000), "more than 64 levels"},
        {"<plist>" + repeated(" ", 1 << 20) + "</plist>", "more than 1 MiB"},
    };
    for (const auto& [text, why] : cases) {
        const auto result = parse(text);
        EXPECT_EQ(result.error, "not a readable property list: " + why) << text.substr(0, 80);
        EXPECT_EQ(result.value, PropertyList()) << text.substr(0, 80);
    }
}

TEST(LibplistParser, SaysWhyItRefusesBinary) {
    auto damagedTrailer = binary({{0x09}});
    damagedTrailer[damagedTrailer.size() - 26] = 0;
    auto farObject = binary({{0xA1, 1}, {0x09}});
    farObject[farObject.size() - 33] = 200;
    auto manyObjects = binary({{0x09}});
    manyObjects[manyObjects.size() - 24] = 0xFF;
    const std::vector<std::pair<Bytes, std::string>> cases = {
        {{'b', 'p', 'l', 'i', 's', 't', '0', '0'}, "it is cut off"},
        {damagedTrailer, "its trailer is damaged"},
        {manyObjects, "its object table is cut off"},
        {farObject, "an object is damaged or of an unknown kind"},
        {binary({{0xA1, 0}}), "it contains itself"},
        {binary({{0xD1, 1, 2}, {0x51, 'a'}, {0xA1, 0}}), "it contains itself"},
        {binary({{0xA1, 9}}), "a reference leads nowhere"},
        {binary({{0x70}}), "an object is damaged or of an unknown kind"},
        {binary({{0x5F, 0x13, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}}),
         "an object is damaged or of an unknown kind"},
        {binary({{0x5F, 0x10, 200, 'a'}}), "an object is damaged or of an unknown kind"},
        {nested(64, 1), "more than 64 levels"},
        {nested(40, 2), "it unfolds to more than 16 MiB"},
        {binary({{0xD1, 1, 2}, {0x52, 'a', 0}, {0x09}}), "an object is damaged or of an unknown kind"},
        {binary({{0x62, 0, 'a', 0, 0}}), "an object is damaged or of an unknown kind"},
        {binary({{0xA2, 2, 1}, {0xA1, 0}, {0x09}}), "it contains itself"},
    };
    for (std::size_t i = 0; i < cases.size(); ++i) {
        const auto result = parse(cases[i].first);
        EXPECT_EQ(result.error, "not a readable property list: " + cases[i].second) << "case " << i;
    }
}

TEST(LibplistParser, ReadsAsDeepAsItPromisesAlsoBelowAnObjectThatWasVisitedBefore) {
    EXPECT_EQ(parse(xml(repeated("<array>", 63) + repeated("</array>", 63))).error, "");
    EXPECT_EQ(parse(nested(63, 1)).error, "");
    // The first element is a chain of 40 arrays; the second reaches the same chain through 30 more.
    std::vector<Bytes> objects{{0xA2, 1, 41}};
    for (std::uint8_t i = 2; i <= 41; ++i) objects.push_back({0xA1, i == 41 ? std::uint8_t{71} : i});
    for (std::uint8_t i = 42; i <= 71; ++i) objects.push_back({0xA1, i == 71 ? std::uint8_t{1} : i});
    objects.push_back({0x09});
    EXPECT_EQ(parse(binary(objects)).error, "not a readable property list: more than 64 levels");
}

}  // namespace
}  // namespace orlamo::plist
