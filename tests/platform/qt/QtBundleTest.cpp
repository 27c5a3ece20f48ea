#include "platform/qt/QtBundle.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <fstream>
#include <vector>

#include "tests/doubles/FakeLog.h"
#include "tests/doubles/FakePropertyListParser.h"

namespace orlamo {
namespace {

namespace fs = std::filesystem;

class BundleOfFiles : public ::testing::Test {
protected:
    // The tests' own program stands beside the resources, as the program does.
    const fs::path built = qt::resourcesFolder(fs::read_symlink("/proc/self/exe"));
    FakeLog log;
    FakePropertyListParser parser;
};

TEST_F(BundleOfFiles, AnswersFromItsInformationAndFiles) {
    parser.result.value =
        PropertyList::Dictionary{{"CFBundleIdentifier", std::string("a.b")}, {"CFBundleShortVersionString", 1.5}};
    const qt::QtBundle bundle(built, {"en"});
    EXPECT_EQ(bundle.bundleIdentifier(), "a.b");
    EXPECT_EQ(bundle.infoDictionaryValue("CFBundleShortVersionString"), PropertyList(1.5));
    EXPECT_EQ(bundle.infoDictionaryValue("other"), PropertyList());
    EXPECT_EQ(bundle.pathForResource("Info", "plist"), (built / "Info.plist").string());
    EXPECT_EQ(bundle.pathForResource("Info", "other"), std::nullopt);
    EXPECT_EQ(bundle.pathForResource("", ""), std::nullopt);
    EXPECT_TRUE(log.lines.empty());
}

// What the toolkit makes of $LANGUAGE, or without it of $LC_ALL, $LC_MESSAGES or $LANG.
TEST_F(BundleOfFiles, SpeaksTheFirstOfTheUsersLanguagesThatItHas) {
    struct Case {
        const char* setting;
        QStringList languages;
        const char* spoken;
    };
    const std::vector<Case> cases{
        {"en_GB.UTF-8", {"en-GB", "en-Latn-GB"}, "Search"},
        {"de_AT.UTF-8", {"de-AT", "de-Latn-AT"}, "Suche"},
        {"fr_CA.UTF-8", {"fr-CA", "fr-Latn-CA"}, "Recherche"},
        {"ja_JP.UTF-8", {"ja-JP", "ja-Jpan-JP", "ja"}, "検索"},
        {"zh_CN.UTF-8", {"zh-CN", "zh-Hans-CN", "zh"}, "搜索"},
        {"zh_SG.UTF-8", {"zh-SG", "zh-Hans-SG"}, "搜索"},
        {"zh_TW.UTF-8: another script", {"zh-TW", "zh-Hant-TW"}, "Search"},
        {"C.UTF-8", {"C"}, "Search"},
        {"", {}, "Search"},
        {"xx_YY: no such language", {"xx-YY", "C"}, "Search"},
        {"ja:de", {"ja", "ja-Jpan-JP", "ja-JP", "de", "de-Latn-DE", "de-DE"}, "検索"},
        {"it:xx:fr", {"it", "it-Latn-IT", "it-IT", "xx", "C", "fr", "fr-Latn-FR", "fr-FR"}, "Recherche"},
        {"zh_TW:zh_CN", {"zh-TW", "zh-Hant-TW", "zh-CN", "zh-Hans-CN", "zh"}, "搜索"},
        {"de_AT:en", {"de-AT", "de-Latn-AT", "en", "en-Latn-US", "en-US"}, "Suche"},
        {"en_GB:de", {"en-GB", "en-Latn-GB", "de", "de-Latn-DE", "de-DE"}, "Search"},
    };
    for (const Case& each : cases)
        EXPECT_EQ(qt::QtBundle(built, each.languages).localizedString("Spotlight"), each.spoken) << each.setting;
    EXPECT_EQ(qt::QtBundle(built, {"zh-SG"}).language(), "zh_CN");
    EXPECT_EQ(qt::QtBundle(built, {"it"}).language(), "en");
    const qt::QtBundle chinese(built, {"zh-CN"});
    for (int time = 0; time < 2; ++time) EXPECT_EQ(chinese.localizedString("no.such.key"), "no.such.key");
}

TEST_F(BundleOfFiles, SaysWhatIsMissingAndLivesOn) {
    const qt::QtBundle bundle("/nowhere", {"en"});
    EXPECT_EQ(log.lines.size(), 2U);
    EXPECT_EQ(bundle.bundleIdentifier(), "");
    EXPECT_EQ(bundle.localizedString("System"), "System");
}

}  // namespace
}  // namespace orlamo
