#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>

#include "core/SystemShortcuts.h"
#include "platform/plist/LibplistParser.h"

namespace orlamo {
namespace {

const std::string folder = ORLAMO_RESOURCES "/";

std::string read(const std::string& name) {
    std::ifstream file(folder + name);
    return {std::istreambuf_iterator<char>(file), {}};
}

PropertyList parsed(const std::string& name) {
    const auto text = read(name);
    const auto result =
        plist::LibplistParser().propertyListWithData({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
    EXPECT_EQ(result.error, "") << name;
    return result.value;
}

std::map<std::string, std::string> stringTable(const std::string& language) {
    const auto text = read("Localizable_" + language + ".ts");
    const auto plain = [](const std::string& xml) { return std::regex_replace(xml, std::regex("&amp;"), "&"); };
    const std::regex message("<source>([^<]+)</source>\\s*<translation>([^<]+)</translation>");
    std::map<std::string, std::string> table;
    for (std::sregex_iterator found(text.begin(), text.end(), message), end; found != end; ++found) {
        EXPECT_TRUE(table.emplace(plain((*found)[1]), plain((*found)[2])).second) << language << " " << (*found)[1];
    }
    return table;
}

std::vector<std::string> partsOf(std::string_view row) {
    std::vector<std::string> parts;
    std::string_view rest = row.substr(row.find(':') + 1);
    for (auto at = rest.find("//"); at != std::string_view::npos; at = rest.find("//")) {
        parts.emplace_back(rest.substr(0, at));
        rest.remove_prefix(at + 2);
    }
    parts.emplace_back(rest);
    return parts;
}

class StringTable : public testing::TestWithParam<std::string> {};

TEST_P(StringTable, HasEveryTextOfThePanel) {
    const auto table = stringTable(GetParam());
    EXPECT_TRUE(table.contains("System"));
    for (const auto row : systemShortcutIDTable) {
        for (const auto& part : partsOf(row)) EXPECT_TRUE(table.contains(part)) << part;
    }
}

// A heading without a slash is a category, one with a slash belongs below it.
TEST_P(StringTable, KeepsTheKindOfEachHeading) {
    const auto table = stringTable(GetParam());
    for (const auto row : systemShortcutIDTable) {
        const auto parts = partsOf(row);
        if (const auto found = table.find(parts[0]); found != table.end()) {
            EXPECT_EQ(found->second.find('/'), std::string::npos) << found->first;
        }
        if (parts.size() < 3) continue;
        if (const auto found = table.find(parts[0] + "/" + parts[1]); found != table.end()) {
            EXPECT_EQ(std::ranges::count(found->second, '/'), 1) << found->first;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(OfEveryLanguage, StringTable, testing::Values("en", "zh_CN"));

TEST(StringTables, HaveTheSameKeysAndPlaceholders) {
    const auto english = stringTable("en");
    const auto chinese = stringTable("zh_CN");
    const auto placeholders = [](const std::string& text) {
        const std::regex pattern("%[0-9$]*@");
        std::multiset<std::string> found;
        for (std::sregex_iterator each(text.begin(), text.end(), pattern), end; each != end; ++each)
            found.insert(each->str());
        return found;
    };
    EXPECT_EQ(english.size(), chinese.size());
    for (const auto& [key, text] : english) {
        ASSERT_TRUE(chinese.contains(key)) << key;
        EXPECT_EQ(placeholders(text), placeholders(chinese.at(key))) << key;
    }
}

TEST(DefaultHotKeys, HoldACompleteEntryForEveryIDThatIsSwitchedOff) {
    const auto root = parsed("com.apple.symbolichotkeys.plist");
    const auto* const hotKeys = root.at("AppleSymbolicHotKeys");
    ASSERT_NE(hotKeys, nullptr);
    std::set<std::string> ids;
    for (const auto row : systemShortcutIDTable) {
        const std::string id(row.substr(0, row.find(':')));
        ids.insert(id);
        const auto* const entry = hotKeys->at(id);
        ASSERT_NE(entry, nullptr) << id;
        EXPECT_EQ(*entry->at("enabled"), PropertyList(false)) << id;
        const auto* const parameters = entry->at("value")->at("parameters")->get<PropertyList::Array>();
        ASSERT_NE(parameters, nullptr) << id;
        EXPECT_EQ(parameters->size(), 3U) << id;
    }
    EXPECT_EQ(hotKeys->get<PropertyList::Dictionary>()->size(), ids.size());
}

TEST(InformationDictionary, NamesTheVersionThatIsBuilt) {
    const auto info = parsed("Info.plist");
    ASSERT_NE(info.at("CFBundleShortVersionString"), nullptr);
    EXPECT_EQ(*info.at("CFBundleShortVersionString"), PropertyList(std::string(ORLAMO_VERSION)));
    EXPECT_EQ(*info.at("CFBundleIdentifier"), PropertyList(std::string("app.orlamo.Orlamo")));
}

}  // namespace
}  // namespace orlamo
