#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>

#include "core/SystemShortcuts.h"
#include "platform/plist/LibplistParser.h"
#include "shell/pages/WebPages.h"

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

template <class Use>
void eachMatch(const std::string& text, const std::string& pattern, Use use) {
    const std::regex expression(pattern);
    for (std::sregex_iterator match(text.begin(), text.end(), expression), end; match != end; ++match) use(*match);
}

std::map<std::string, std::string> stringTable(const std::string& language) {
    const auto plain = [](const std::string& xml) { return std::regex_replace(xml, std::regex("&amp;"), "&"); };
    const std::string message = "<source>([^<]+)</source>\\s*<translation>([^<]+)</translation>";
    std::map<std::string, std::string> table;
    eachMatch(read("Localizable_" + language + ".ts"), message, [&](const std::smatch& match) {
        EXPECT_TRUE(table.emplace(plain(match[1]), plain(match[2])).second) << language << " " << match[1];
    });
    return table;
}

/// The files below a folder of the project whose ending is one of these, by their path from the resources.
std::vector<std::string> files(const std::string& below, const std::set<std::string>& endings) {
    std::vector<std::string> found;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder + below)) {
        if (endings.contains(entry.path().extension()))
            found.push_back(below + "/" + entry.path().lexically_relative(folder + below).string());
    }
    EXPECT_FALSE(found.empty()) << below;
    return found;
}

/// What the pattern's first group found in a file.
std::set<std::string> found(const std::string& file, const std::string& pattern) {
    std::set<std::string> all;
    eachMatch(read(file), pattern, [&all](const std::smatch& match) { all.insert(match[1]); });
    return all;
}

std::vector<std::string> sources() {
    std::vector<std::string> all;
    for (const auto* const room : {"core", "panel", "shell", "permissions", "preferences", "update", "platform", "app"})
        std::ranges::move(files("../" + std::string(room), {".h", ".cpp"}), std::back_inserter(all));
    return all;
}

std::vector<std::string> partsOf(std::string_view row) {
    const std::string text(row.substr(row.find(':') + 1));
    const std::regex separator("//");
    return {std::sregex_token_iterator(text.begin(), text.end(), separator, -1), {}};
}

class StringTable : public testing::TestWithParam<std::string> {};

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

// A text of an interface file that is no key says notr="true".
TEST(EnglishStringTable, HasEveryTextOfThePanelAndOfTheInterfaceFiles) {
    const auto table = stringTable("en");
    EXPECT_TRUE(table.contains("System"));
    for (const auto row : systemShortcutIDTable) {
        for (const auto& part : partsOf(row)) EXPECT_TRUE(table.contains(part)) << part;
    }
    std::size_t count = 0;
    for (const auto& file : files(".", {".ui"})) {
        for (const auto& key : found(file, "<string(?![^>]*notr=\"true\")[^>]*>([^<]+)</string>")) {
            EXPECT_TRUE(table.contains(key)) << file << ": " << key;
            ++count;
        }
    }
    EXPECT_GT(count, 0U);
}

// A literal that begins like one of the table's dotted keys is meant to be one.
TEST(EnglishStringTable, HasEveryKeyOfTheCode) {
    const auto table = stringTable("en");
    std::set<std::string> beginnings;
    for (const auto& [key, text] : table) {
        if (key.find(' ') == std::string::npos && key.find('.') != std::string::npos)
            beginnings.insert(key.substr(0, key.find('.')));
    }
    std::size_t count = 0;
    for (const auto& file : sources()) {
        auto keys = found(file, "(?:NSLocalizedString|localizedString)\\(\"([^\"]+)\"");
        for (const auto& literal : found(file, "\"([A-Za-z_]+\\.[A-Za-z_.]+)\"")) {
            if (literal.find(".json") == std::string::npos && beginnings.contains(literal.substr(0, literal.find('.'))))
                keys.insert(literal);
        }
        for (const auto& key : keys) EXPECT_TRUE(table.contains(key)) << file << ": " << key;
        count += keys.size();
    }
    EXPECT_GT(count, 0U);
}

/// The places for values, the line breaks and the markup of a text.
std::multiset<std::string> marksOf(const std::string& text) {
    std::multiset<std::string> marks;
    eachMatch(text, "%[0-9$]*@|\\n|&[a-z]+;", [&marks](const std::smatch& match) { marks.insert(match.str()); });
    return marks;
}

TEST_P(StringTable, HasTheKeysOfTheEnglishOneWithTheirMarks) {
    const auto english = stringTable("en");
    const auto table = stringTable(GetParam());
    EXPECT_EQ(found("Localizable_" + GetParam() + ".ts", "<TS [^>]* language=\"([^\"]+)\""), std::set{GetParam()});
    EXPECT_EQ(table.size(), english.size());
    for (const auto& [key, text] : english) {
        ASSERT_TRUE(table.contains(key)) << key;
        EXPECT_EQ(marksOf(text), marksOf(table.at(key))) << key;
    }
}

// Each language's own way to write, where the keys of another one slip in: a space before : ; ? ! » that a line may be
// broken at, three dots for one sign, punctuation of half width after Japanese or Chinese letters.
TEST_P(StringTable, KeepsToTheTypographyOfItsLanguage) {
    const std::string dots = "\\.\\.\\.";
    const std::map<std::string, std::string> strays{{"fr", "|'|\"|[ \\w]([:;?!]|»)|« "},
                                                    {"de", "|'|\"|\\w…| [:;?!]"},
                                                    {"ja", "|[\x80-\xFF] ?[.,:;?!()]"},
                                                    {"zh_CN", "|[\x80-\xFF] ?[.,:;?!()]"}};
    const auto own = strays.find(GetParam());
    const std::regex stray(dots + (own != strays.end() ? own->second : ""));
    for (const auto& [key, text] : stringTable(GetParam())) EXPECT_FALSE(std::regex_search(text, stray)) << text;
}

std::vector<std::string> languages() {
    std::vector<std::string> all;
    for (const auto& file : files(".", {".ts"})) {
        const auto name = std::filesystem::path(file).stem().string();
        all.push_back(name.substr(name.find('_') + 1));
    }
    return all;
}

INSTANTIATE_TEST_SUITE_P(OfEveryLanguage, StringTable, testing::ValuesIn(languages()));

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

TEST(InformationDictionary, NamesTheVersionThatIsBuiltThePublishersPagesAndNoFeed) {
    const auto info = parsed("Info.plist");
    const auto expect = [&info](const char* key, const char* text) {
        ASSERT_NE(info.at(key), nullptr) << key;
        EXPECT_EQ(*info.at(key), PropertyList(std::string(text)));
    };
    expect("CFBundleShortVersionString", ORLAMO_VERSION);
    expect("CFBundleIdentifier", "app.orlamo.Orlamo");
    expect("SUFeedURL", "");
    const auto* const pages = info.at("WebPages");
    ASSERT_NE(pages, nullptr);
    for (const auto page :
         {WebPages::home, WebPages::videoTutorial, WebPages::questionsAndAnswers, WebPages::support,
          WebPages::chatGroup, WebPages::permissionHelp, WebPages::applications, WebPages::developer}) {
        const auto* const address = pages->at(page);
        ASSERT_NE(address, nullptr) << page;
        ASSERT_NE(address->get<std::string>(), nullptr) << page;
        EXPECT_TRUE(address->get<std::string>()->starts_with("https://orlamo.example/")) << page;
    }
}

TEST(Images, AreThereForEveryName) {
    std::set<std::string> all{"menuBarIcon", "gear", "escape", "General1", "Learn1", "freeapp1", "contactus2"};
    const auto collect = [&all](const std::string& file, const std::string& pattern) {
        const auto names = found(file, pattern);
        all.insert(names.begin(), names.end());
        return names.size();
    };
    std::size_t named = 0;
    for (const auto& file : files(".", {".ui"}))
        named += collect(file, "name=\"image\"[^>]*>\\s*<string[^>]*>([^<]+)</string>");
    EXPECT_GT(named, 0U);
    EXPECT_GT(collect("theme.qss", "url\\(image:([^)]+)\\.svg\\)"), 0U);
    EXPECT_EQ(collect("../preferences/FreeAppsViewController.cpp", "\"(app\\.orlamo\\.\\w+)\""), 9U);
    for (const auto& name : all) EXPECT_NE(read(name + ".svg").find("<svg"), std::string::npos) << name;
}

}  // namespace
}  // namespace orlamo
